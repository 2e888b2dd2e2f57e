// The tables of rules and of applications: whether each column is where it is read.
#include "core/paths.h"
#include "places.h"
#include "tables.h"

namespace ctl {

namespace {

struct Layout {
    char table[16];
    unsigned columns;
    char names[6][10];
};

constexpr Layout application_class = {"App_Class", 5, {"Id", "Name", "Name_En", "Priority", "Mark"}};
constexpr Layout application = {"App_Info", 6, {"Id", "Class_Id", "Name", "Name_En", "Features", "Mark"}};

void look_at_layout(Examination &examination, const Database &database, const Layout &layout) {
    Places places(examination, database, layout.table);
    for (unsigned place = 0; places.is_there() && place < layout.columns; ++place) {
        places.expect(place, layout.names[place]);
    }
}

void look_at_rule_table(Examination &examination, const Database &database, const Table &table) {
    Places places(examination, database, table.in_sql());
    if (!places.is_there()) {
        return;
    }
    places.expect(0, "id");
    const Column *before = nullptr;
    unsigned place = 0;
    for (const Column &column : Columns(table)) {
        // The columns of one field stand side by side.
        const bool is_first = before == nullptr || before->field != column.field;
        place = is_first ? static_cast<unsigned>(column.field->position) : place + 1;
        before = &column;
        if (column.field->position == routerdb::by_name) {
            places.expect(column.name);
        } else {
            places.expect(place, column.name);
        }
    }
}

}  // namespace

void look_at_rule_tables(Examination &examination) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    examination.report.ok("all %u are there, with each column in its place",
                          static_cast<unsigned>(sizeof(tables) / sizeof(*tables)));
    for (const Table &table : tables) {
        look_at_rule_table(examination, database, table);
    }
}

void look_at_application_tables(Examination &examination) {
    Report &report = examination.report;
    Database database;
    Database catalogue;
    if (!open_main_database(examination, database)) {
        return;
    }
    report.ok("App_Info and App_Class are there, with each column in its place");
    look_at_layout(examination, database, application);
    if (catalogue.open_to_look(routerdb::paths::catalogue_database, static_cast<int>(examination.seconds) * 250) !=
        SQLITE_OK) {
        report.warn("mend what is said of the catalogue first", "the catalogue is not looked at");
        return;
    }
    look_at_layout(examination, catalogue, application);
    look_at_layout(examination, catalogue, application_class);
}

}  // namespace ctl
