// Data that harms somebody: what callers of the exact profile see of it, and what callers of the modern one do.
#include <gtest/gtest.h>

#include <functional>

#include "profiles/library.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using profiles::Library;
using Action = std::function<std::string(const Library &)>;

struct Harm : support::Named {
    Action seen;
    std::string exact;
    std::string modern;
};

/// What is printed.
Action printed(int (*call)(const Library &library)) {
    return [call](const Library &library) { return support::streams_of([&] { call(library); }).output; };
}

/// The commands that are run.
Action commands(void (*call)(const Library &library)) {
    return [call](const Library &library) {
        support::Recorder recorder;
        recorder.keep_commands_from_running();
        support::streams_of([&] { call(library); });
        std::string text;
        for (const std::string &command : recorder.calls({"system"})) {
            text += command + "\n";
        }
        return text;
    };
}

/// What a query of the main database finds afterwards.
Action rows(void (*call)(const Library &library), const std::string &query) {
    return [call, query](const Library &library) {
        support::streams_of([&] { call(library); });
        std::string text;
        for (const std::string &row : support::Database().rows(query)) {
            text += row + ";";
        }
        return text;
    };
}

std::vector<Harm> harms() {
    return {
        {{"ANameThatIsMoreThanAValue"},
         printed([](const Library &library) { return LIBRARY_FUNCTION(library, GetAppInfoItem)("1"); }),
         R"("appname":"a","hidden":"b")",
         R"("appname":"a\",\"hidden\":\"b")"},
        {{"ANameOfBytesThatAreNoText"},
         printed([](const Library &library) { return LIBRARY_FUNCTION(library, GetAppInfoItem)("2"); }),
         "\"appname\":\"a\nb\xff\"",
         R"("appname":"a\nb�")"},
        {{"ANumberThatIsACondition"},
         printed([](const Library &library) { return LIBRARY_FUNCTION(library, GetAppInfoItem)("3' or Id='1"); }),
         R"("appname":"a","hidden":"b")",
         "{\"ItemList\":"},
        {{"AStatusForAnAddressThatIsACondition"},
         rows(
             [](const Library &library) {
                 LIBRARY_FUNCTION(library, SetDevStatus)
                 ("' or 1--", "0");
             },
             "select Dev_Status from DevInfo order by Dev_Sn;"),
         "0;0;",
         "1;1;"},
        {{"ATextThatAttachesAFile"},
         [](const Library &library) {
             support::streams_of([&] { LIBRARY_FUNCTION(library, DB_EXEC_SQL_CHAR)("vacuum into '/var/stolen.db';"); });
             return std::string(support::file_exists("/var/stolen.db") ? "a copy" : "nothing");
         },
         "a copy",
         "nothing"},
        {{"ATableThatIsMoreThanAName"},
         [](const Library &library) {
             return std::to_string(LIBRARY_FUNCTION(library, GetTableCount)("DevInfo where Dev_Sn='1'"));
         },
         "1",
         "0"},
        {{"AnAddressWithACommandBehindIt"},
         commands([](const Library &library) {
             LIBRARY_FUNCTION(library, GetApDevStaList)
             ("10.0.0.1;reboot");
         }),
         ";reboot",
         ""},
    };
}

class HarmfulData : public testing::TestWithParam<Harm> {
protected:
    HarmfulData() {
        support::execute(
            "insert into DevInfo(Dev_Sn,Dev_MAC,Dev_Status) values(1,'00:11:22:33:44:55','1'),(2,'its','1');");
        support::Database(support::catalogue_database)
            .execute(
                "insert into App_Info(Id,Class_Id,Name) values(1,3,'a\",\"hidden\":\"b'),"
                "(2,3,'a'||char(10)||'b'||cast(x'ff' as text));");
    }

    /// What is seen with a library, in a process that has no other one.
    static std::string seen_with(const char *library) {
        support::Process caller([&] {
            support::write_file("/var/seen", GetParam().seen(Library(library)));
            return true;
        });
        EXPECT_EQ(caller.wait(), 0);
        return support::file_content("/var/seen");
    }
};

constexpr bool modern = support::build_profile.careful;

TEST_P(HarmfulData, harms_in_the_exact_profile) {
    const std::string seen = seen_with(modern ? OTHER_LIBRARY : LIBRARY);
    EXPECT_NE(seen.find(GetParam().exact), std::string::npos) << seen;
}

TEST_P(HarmfulData, does_no_harm_in_the_modern_one) {
    const std::string seen = seen_with(modern ? LIBRARY : OTHER_LIBRARY);
    EXPECT_NE(seen.find(GetParam().modern), std::string::npos) << seen;
    EXPECT_EQ(seen.find(GetParam().exact), std::string::npos) << seen;
}

INSTANTIATE_TEST_SUITE_P(Of, HarmfulData, testing::ValuesIn(harms()), testing::PrintToStringParamName());

}  // namespace
