#include "apinventory/writers.h"

#include <algorithm>

#include "apinventory/device_statements.h"
#include "support/database.h"

namespace writers {

namespace {

// 116 to 118 and 136 to 138 belong to nobody.
Writer registration_of_new() {
    Writer writer{{"DB_addinfo_of_a_new_one"}};
    writer.write = DB_addinfo;
    writer.takes_new = true;
    writer.statement = statements::registration_of_new;
    writer.set = {{14, "0"}, {153, "1"}, {159, "0"}};
    return writer;
}

Writer registration_of_known() {
    Writer writer{{"DB_addinfo_of_a_known_one"}};
    writer.write = DB_addinfo;
    writer.statement = statements::registration_of_known;
    writer.left = {14, 116, 117, 118, 136, 137, 138};
    writer.set = {{153, "1"}, {159, "0"}};
    return writer;
}

Writer saving() {
    Writer writer{{"DB_saveinfo"}};
    writer.write = [](const DevInfo &device) {
        DB_saveinfo(&device);
        return 0;
    };
    writer.statement = statements::saving;
    writer.left = {116, 117, 118, 136, 137, 138, 153, 159};
    return writer;
}

Writer configuration() {
    Writer writer{{"DB_UpdateInfo"}};
    writer.write = DB_UpdateInfo;
    writer.converts = false;
    writer.statement = [](const std::string & /*not written*/, int wlans) { return statements::configuration(wlans); };
    writer.left = {1,   2,   5,   6,   7,   8,   9,   10,  11,  12,  13,  15,  20,  32,  44,  56,  68,  80,  92, 104,
                   113, 115, 116, 117, 118, 127, 128, 133, 135, 136, 137, 138, 147, 148, 152, 156, 157, 158, 159};
    writer.set = {{153, "1"}};
    return writer;
}

}  // namespace

std::vector<Writer> all() {
    return {registration_of_new(), registration_of_known(), saving(), configuration()};
}

void prepare(const Writer &writer, const DevInfo &device) {
    support::execute("delete from DevInfo;");
    if (!writer.takes_new) {
        tables::Row row = uniform_row(tables::devices, std::to_string(device.Dev_Sn), "old");
        row[8] = places::text(device, "Dev_MAC");
        insert(tables::devices, row);
    }
}

tables::Row written(const Writer &writer, const DevInfo &device) {
    tables::Row row;
    for (const places::Place &place : places::all()) {
        if (place.device != places::none) {
            row[place.device] = places::text(device, place);
        }
    }
    for (const int column : writer.left) {
        row[column] = column == 8 ? places::text(device, "Dev_MAC") : "old";
    }
    for (const auto &[column, text] : writer.set) {
        row[column] = text;
    }
    return row;
}

tables::Row only_row() {
    return row_where(tables::devices, "1");
}

}  // namespace writers
