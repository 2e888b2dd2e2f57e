// The way of rules through the service, there and back.
#include <gtest/gtest.h>

#include "rules/golden/samples.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/service.h"

namespace {

using golden::Table;
using support::difference;

class Served : public testing::TestWithParam<Table> {
protected:
    explicit Served(const std::vector<std::string> &arguments = {}) : service_(arguments) {}

    static std::string list(std::size_t size = GetParam().list_size) {
        std::string buffer(size, '\x5a');
        GetParam().list(buffer.data());
        return buffer;
    }

    static std::string get(int id) {
        std::string buffer(GetParam().record_size, '\x5a');
        GetParam().get(id, buffer.data());
        return buffer;
    }

    /// The list that has to come of so many records.
    static std::string expected(const std::string &records, std::uint32_t count) {
        return support::list_of(records, count, GetParam().list_size);
    }

    support::Service service_;
};

TEST_P(Served, rows_are_added_listed_read_modified_and_deleted) {
    const std::string first = GetParam().record(1);
    const std::string second = GetParam().record(2);
    const std::string third = GetParam().record(3);
    std::string changed = GetParam().record(9);
    changed.replace(0, 4, support::words({1}));

    EXPECT_EQ(difference(expected("", 0), list()), "");
    GetParam().add(first.data());
    GetParam().add(second.data());
    EXPECT_EQ(difference(expected(first + second, 2), list()), "");
    EXPECT_EQ(difference(second, get(2)), "");
    EXPECT_EQ(difference(std::string(GetParam().record_size, '\0'), get(3)), "");
    GetParam().modify(changed.data());
    EXPECT_EQ(difference(expected(changed + second, 2), list()), "");
    GetParam().remove_first();
    EXPECT_EQ(difference(expected(second, 1), list()), "");
    GetParam().add(third.data());
    EXPECT_EQ(difference(expected(second + third, 2), list()), "");
}

TEST_P(Served, a_full_table_is_listed_byte_for_byte) {
    support::execute(GetParam().inserts(128));
    EXPECT_EQ(difference(expected(GetParam().records(128), 128), list()), "");
}

// Left as it is, the list would be empty: the reply does not come.
TEST_P(Served, more_rows_than_a_list_holds_are_refused_unless_lists_are_capped) {
    support::execute(GetParam().inserts(129));
    const std::string records = GetParam().records(support::build_profile.caps_lists ? 128 : 0);
    const std::uint32_t listed = support::build_profile.caps_lists ? 128 : 0;
    EXPECT_EQ(difference(expected(records, listed), list()), "");
}

INSTANTIATE_TEST_SUITE_P(, Served, testing::ValuesIn(golden::tables()));

class ServedWithRoom : public Served {
protected:
    ServedWithRoom() : Served({"--rows", "1000"}) {}
};

TEST_P(ServedWithRoom, more_rows_than_a_list_holds_are_listed_whole_unless_lists_are_capped) {
    constexpr int listed = support::build_profile.caps_lists ? 128 : 1000;
    support::execute(GetParam().inserts(1000));
    const std::string found = list(4 + 1000 * GetParam().record_size);
    const std::string cleared = expected(GetParam().records(listed), listed);
    EXPECT_EQ(difference(cleared, found.substr(0, cleared.size())), "");
}

INSTANTIATE_TEST_SUITE_P(, ServedWithRoom, testing::ValuesIn(golden::tables()));

class ServedRecord : public testing::TestWithParam<golden::Row> {};

TEST_P(ServedRecord, arrives_as_it_was_built) {
    GetParam().built.prepare();
    const support::Service service;
    std::string record(GetParam().table.record_size, '\x5a');
    GetParam().table.get(static_cast<int>(support::word(GetParam().built.record, 0)), record.data());
    EXPECT_EQ(difference(GetParam().built.record, record), "");
}

INSTANTIATE_TEST_SUITE_P(, ServedRecord, testing::ValuesIn(golden::rows()));

}  // namespace
