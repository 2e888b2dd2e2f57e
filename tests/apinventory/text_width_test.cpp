// Texts of access points that are longer than their members: callers have room for the member, and for no more.
#include <gtest/gtest.h>

#include <cstring>

#include "apinventory/tables.h"
#include "support/database.h"
#include "support/named.h"

namespace {

constexpr char mac[] = "00:1a:2b:3c:4d:5e";

struct TextReader : support::Named {
    void (*read)(char *out);
    const char *column;
    std::size_t width;  // of the member, its terminator included
};

const TextReader readers[] = {
    {"GetDevStatus", [](char *out) { GetDevStatus(mac, out); }, "Dev_Status", 5},
    {"GetDevUpgradeStatus", [](char *out) { GetDevUpgradeStatus(mac, out); }, "Dev_Upgrade_Status", 25},
    {"GetDevMacBySN", [](char *out) { GetDevMacBySN(7, out); }, "Dev_MAC", 20},
};

class TextWidth : public testing::TestWithParam<TextReader> {
protected:
    // Another program's table may hold an access point twice.
    TextWidth() {
        support::execute(
            "drop table DevInfo; create table DevInfo(Dev_Sn text,Dev_MAC text,Dev_Status text,Dev_Upgrade_Status "
            "text);");
    }

    static void insert(const std::string &text) {
        support::execute("insert into DevInfo(Dev_Sn,Dev_MAC) values('7','" + std::string(mac) + "');" +
                         "update DevInfo set " + GetParam().column + "='" + text +
                         "' where rowid=last_insert_rowid();");
    }

    /// Reads into room for the member; whatever lies behind it has to stay.
    static std::string read() {
        std::string room(GetParam().width + 4000, '#');
        GetParam().read(room.data());
        EXPECT_EQ(room.find_first_not_of('#', GetParam().width), std::string::npos);
        return room.substr(0, room.find('\0'));
    }

    const std::size_t longest_ = GetParam().width - 1;
};

TEST_P(TextWidth, is_that_of_the_member) {
    insert(std::string(longest_, 'x'));
    EXPECT_EQ(read(), std::string(longest_, 'x'));
}

TEST_P(TextWidth, cuts_a_text_that_is_longer) {
    insert(std::string(longest_, 'x') + "y");
    EXPECT_EQ(read(), std::string(longest_, 'x'));
    support::execute("update DevInfo set " + std::string(GetParam().column) + "='" + std::string(3000, 'z') + "';");
    EXPECT_EQ(read(), std::string(longest_, 'z'));
}

TEST_P(TextWidth, cuts_each_of_several_rows_of_which_the_last_one_stays) {
    insert(std::string(3000, 'x'));
    insert(std::string(longest_ + 1, 'y'));
    insert("last");
    EXPECT_EQ(read(), "last");
}

INSTANTIATE_TEST_SUITE_P(All, TextWidth, testing::ValuesIn(readers), testing::PrintToStringParamName());

}  // namespace
