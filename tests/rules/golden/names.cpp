#include "rules/golden/names.h"

namespace golden {

namespace {

using support::Record;

constexpr char leases[] =
    "1700000000 66:77:88:99:AA:BB 192.168.1.30 camera\n"
    "1700000000 00:11:22:33:44:55 192.168.1.20 tablet\n"
    "1700000000 00:11:22:33:44:55 192.168.1.21 phone\n"
    "1700000000 aa:bb:cc:dd:ee:ff 192.168.1.22 电视\n"
    "1700000000 AA:BB:CC:00:00:01 192.168.1.23\n";

std::string lease_of(const std::string &name) {
    return "1700000000 00:11:22:33:44:55 192.168.1.20 " + name + "\n";
}

/// Class 4 has applications but no entry; class 5, class 6 and the features n1 to n3 lack a name.
std::string catalogue() {
    return "insert into App_Class(Id,Name,Name_En) values(3,'聊天','Chat'),(7,'游戏','Games'),(5,'无',''),"
           "(6,null,'None');"
           "insert into App_Info(Class_Id,Name,Name_En,Features) values"
           "(3,'应用一','App 1','f1'),(3,'应用二','App 2','f2'),(7,'应用九','App 9','f9'),(4,'甲','Alpha','g1'),"
           "(4,'乙','Beta','g2'),(5,'丙','Gamma','h1'),(3,'','n','n1'),(3,'n','','n2'),(3,null,null,'n3'),"
           "(3,'" +
           of(1500, 'n') + "','" + of(1021, 'e') + "','long'),(3,'" + of(2040, 'n') + "','" + of(2042, 'e') +
           "','fitting');";
}

struct Text {
    std::size_t offset;
    std::string text;
};

/// Row 8 with one column given, and its record with some texts.
Built named(const Table &table, const std::string &name, const char *column, const std::string &sql,
            const std::vector<Text> &texts) {
    const Values values = changed(table.places, plain_values(table), {{column, ""}});
    Record record = built_record(table, values);
    for (const Text &text : texts) {
        record.text(text.offset, text.text);
    }
    return built_of(table, name, changed(table.places, as_sql(table.places, values), {{column, sql}}), record);
}

}  // namespace

std::vector<Built> with_host_names(const Table &table) {
    if (!table.host_name) {
        return {};
    }
    const std::size_t mac_offset = table.places[index_of(table.places, "devmac")].offset;
    const auto host = [&](const char *name, const std::string &sql, const char *mac, const std::string &host_name,
                          const std::string &lease_file) {
        Built row = named(table, name, "devmac", sql, {{mac_offset, mac}, {*table.host_name, host_name}});
        row.leases = lease_file;
        return row;
    };
    constexpr char known_mac[] = "00:11:22:33:44:55";
    const std::string tablet = "'00:11:22:33:44:55'";
    const std::string television = "'AA:BB:CC:DD:EE:FF'";
    return {
        host("host name, the first of its address", tablet, known_mac, "tablet", leases),
        host("host name of a lease in lower case", television, "AA:BB:CC:DD:EE:FF", "电视", leases),
        host("host name of a rule in lower case", "'aa:bb:cc:dd:ee:ff'", "aa:bb:cc:dd:ee:ff", "", leases),
        host("host name that the lease lacks", "'AA:BB:CC:00:00:01'", "AA:BB:CC:00:00:01", "", leases),
        host("host name of an unknown address", tablet, known_mac, "", other_lease),
        host("host name of 127 characters", tablet, known_mac, of(127, 'h'), lease_of(of(127, 'h'))),
        host("host name beyond 127 characters", tablet, known_mac, of(127, 'h'), lease_of(of(180, 'h'))),
        host("host name of no address", "''", "", "", lease_of("tablet")),
        host("host name of a NULL address, without leases", "null", "", "", ""),
    };
}

std::vector<Built> with_application_names(const Table &table) {
    if (!table.names) {
        return {};
    }
    const Place &info_place = table.places[index_of(table.places, "behavior_info")];
    const auto built = [&](const char *name, const std::string &info, const std::string &names,
                           const std::string &names_en) {
        Built row = named(table, name, "behavior_info", "'" + info + "'",
                          {{info_place.offset, info.substr(0, info_place.width - 1)},
                           {table.names->names, names},
                           {table.names->names_en, names_en}});
        row.catalogue = catalogue();
        return row;
    };
    const std::string cut = "3:" + of(2040, 'x') + "?f1?f2";  // one character too many
    return {
        built("classes and applications", "3:f1?f2AND7:f9", "聊天:应用一?应用二AND游戏:应用九",
              "Chat:App 1?App 2ANDGames:App 9"),
        built("features without a class", "f1?f2", "", ""),
        built("class without features", "3:", "聊天:", "Chat:"),
        built("unknown features", "3:f8?f1?f8?f2?", "聊天:应用一?应用二", "Chat:App 1?App 2"),
        built("unknown features only", "3:f8?f9AND7:f1", "聊天:AND游戏:", "Chat:ANDGames:"),
        built("group without a class among others", "f1AND3:f1ANDf2AND7:f9", "聊天:应用一AND游戏:应用九",
              "Chat:App 1ANDGames:App 9"),
        built("unknown class first", "4:g1?g2AND3:f1", "甲?乙AND聊天:应用一", "Alpha?BetaANDChat:App 1"),
        built("unknown class behind another", "3:f1AND4:g1?g2", "聊天:应用一甲?乙", "Chat:App 1Alpha?Beta"),
        built("unknown class and unknown features", "9:f1?f2", "", ""),
        built("classes that lack a name", "5:h1AND6:f1AND7:", "丙AND游戏:", "GammaANDGames:"),
        built("applications that lack a name", "3:n1?f1?n2?n3?f2", "聊天:应用一?应用二", "Chat:App 1?App 2"),
        built("class id that is followed by letters", " 3rd:f1", "聊天:应用一", "Chat:App 1"),
        built("names that fill their fields", "3:fitting", "聊天:" + of(2040, 'n'), "Chat:" + of(2042, 'e')),
        built("names that are cut at the ends of their fields", "3:long?longAND7:f9",
              "聊天:" + of(1500, 'n') + "?" + of(539, 'n'), "Chat:" + of(1021, 'e') + "?" + of(1020, 'e')),
        built("names of what is left of a text that is cut", cut, "聊天:应用一", "Chat:App 1"),
    };
}

}  // namespace golden
