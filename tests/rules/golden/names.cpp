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

}  // namespace

std::vector<Built> with_host_names(const InsertValue &insert, const Record &record, const HostPlaces &places) {
    const auto named = [&](const char *mac, const std::string &name) {
        return Record(record).text(places.mac, mac).text(places.name, name).bytes();
    };
    constexpr char mac[] = "00:11:22:33:44:55";
    const std::string tablet = insert("'00:11:22:33:44:55'");
    const std::string television = insert("'AA:BB:CC:DD:EE:FF'");
    return {
        {"host name, the first of its address", tablet, named(mac, "tablet"), leases},
        {"host name of a lease in lower case", television, named("AA:BB:CC:DD:EE:FF", "电视"), leases},
        {"host name of a rule in lower case", insert("'aa:bb:cc:dd:ee:ff'"), named("aa:bb:cc:dd:ee:ff", ""), leases},
        {"host name that the lease lacks", insert("'AA:BB:CC:00:00:01'"), named("AA:BB:CC:00:00:01", ""), leases},
        {"host name of an unknown address", tablet, named(mac, ""), other_lease},
        {"host name of 127 characters", tablet, named(mac, of(127, 'h')), lease_of(of(127, 'h'))},
        {"host name beyond 127 characters", tablet, named(mac, of(127, 'h')), lease_of(of(180, 'h'))},
        {"host name of no address", insert("''"), named("", ""), lease_of("tablet")},
        {"host name of a NULL address, without leases", insert("null"), named("", "")},
    };
}

std::vector<Built> with_application_names(const InsertValue &insert, const Record &record, const NamePlaces &places) {
    const auto built = [&](const char *name, const std::string &info, const std::string &names,
                           const std::string &names_en) {
        const std::string carried = info.substr(0, 2047);
        const std::string whole =
            Record(record).text(places.info, carried).text(places.names, names).text(places.names_en, names_en).bytes();
        return Built{name, insert("'" + info + "'"), whole, "", catalogue()};
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
