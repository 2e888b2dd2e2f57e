// What the client operations make of replies, and of none.
#include <gtest/gtest.h>

#include <cerrno>

#include "rules/golden/golden.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/streams.h"

namespace {

using golden::Table;
using support::Conversation;
using support::difference;
using support::FakeService;
using support::Hearing;
using support::list_of;
using support::reply_of;
using support::words;

class Client : public testing::TestWithParam<Table> {
protected:
    /// The caller's buffers hold odd bytes before.
    static std::string list(std::size_t size = GetParam().list_size) {
        std::string buffer(size, '\x5a');
        GetParam().list(buffer.data());
        return buffer;
    }

    static std::string get() {
        std::string buffer(GetParam().record_size + 8, '\x5a');
        GetParam().get(7, buffer.data());
        EXPECT_EQ(buffer.substr(GetParam().record_size), "ZZZZZZZZ") << "written behind the record";
        return buffer.substr(0, GetParam().record_size);
    }

    static std::string list_of_none() { return std::string(GetParam().list_size, '\0'); }
    static std::string no_record() { return std::string(GetParam().record_size, '\0'); }

    static std::string records(int n) { return GetParam().records(n); }
};

TEST_P(Client, one_record_and_a_stray_byte_list_as_one) {
    const FakeService service(reply_of(records(1) + "x"));
    EXPECT_EQ(difference(list_of(records(1), 1, GetParam().list_size), list()), "");
    EXPECT_EQ(difference(records(1), get()), "");
}

TEST_P(Client, less_than_a_record_is_none) {
    const FakeService service(reply_of(records(1).substr(1)));
    EXPECT_EQ(difference(list_of_none(), list()), "");
    EXPECT_EQ(difference(no_record(), get()), "");
}

TEST_P(Client, an_empty_reply_leaves_the_whole_buffer_zero) {
    for (const std::uint32_t size : {0U, 0xffffffffU, 0x80000000U}) {
        const FakeService service(words({0, 0, size}));
        EXPECT_EQ(difference(list_of_none(), list()), "") << size;
        EXPECT_EQ(difference(no_record(), get()), "") << size;
    }
}

TEST_P(Client, a_full_list_arrives_byte_for_byte) {
    const FakeService service(reply_of(records(128)));
    EXPECT_EQ(difference(list_of(records(128), 128, GetParam().list_size), list()), "");
}

TEST_P(Client, a_stray_byte_behind_a_full_list_goes_nowhere) {
    const FakeService service(reply_of(records(128) + "x"));
    const std::string buffer = list(GetParam().list_size + 8);
    EXPECT_EQ(difference(list_of(records(128), 128, GetParam().list_size) + "ZZZZZZZZ", buffer), "");
}

TEST_P(Client, more_records_than_a_list_holds_are_cut_where_lists_are_capped) {
    constexpr int listed = support::build_profile.caps_lists ? 128 : 129;
    const FakeService service(reply_of(records(129)));
    const std::size_t room = 4 + 130 * GetParam().record_size;
    const std::string untouched(room - 4 - listed * GetParam().record_size, '\x5a');
    errno = 0;
    const std::string filled = list(room);
    const int reason = errno;
    EXPECT_EQ(difference(list_of(records(listed) + untouched, listed, room), filled), "");
    if (support::build_profile.caps_lists) {
        EXPECT_EQ(reason, EOVERFLOW);
    }
}

TEST_P(Client, gets_the_first_record_of_the_reply) {
    const FakeService service(reply_of(records(2)));
    EXPECT_EQ(difference(GetParam().record(1), get()), "");
}

TEST_P(Client, what_a_reply_cut_short_lacks_is_zero_unless_replies_are_checked) {
    const std::string whole = reply_of(records(2));
    const FakeService service(whole.substr(0, whole.size() - GetParam().record_size / 2));
    std::string expected =
        list_of(records(2).substr(0, 2 * GetParam().record_size - GetParam().record_size / 2), 2, GetParam().list_size);
    if (!support::build_profile.checks_replies) {
        EXPECT_EQ(difference(expected, list()), "");
        return;
    }
    errno = 0;
    const auto streams = support::streams_of([&] { EXPECT_EQ(difference(list_of_none(), list()), ""); });
    EXPECT_EQ(errno, EPROTO);
    EXPECT_EQ(streams.error, "recv data from sql socket server fail: Protocol error\n");
}

TEST_P(Client, a_reply_without_its_data_carries_no_records) {
    const FakeService service(Conversation{{reply_of(records(1)).substr(0, 40)}, Hearing::left_unread});
    const auto streams = support::streams_of([&] {
        EXPECT_EQ(difference(list_of_none(), list()), "");
        EXPECT_EQ(difference(no_record(), get()), "");
    });
    EXPECT_EQ(streams.error,
              "recv data from sql socket server fail: Connection reset by peer\n"
              "recv data from sql socket server fail: Connection reset by peer\n");
}

TEST_P(Client, without_a_service_lists_and_records_are_empty_and_changes_vanish) {
    const std::string record = GetParam().record(1);
    const auto streams = support::streams_of([&] {
        EXPECT_EQ(difference(list_of_none(), list()), "");
        EXPECT_EQ(difference(no_record(), get()), "");
        GetParam().add(record.data());
        GetParam().modify(record.data());
        GetParam().remove_first();
    });
    EXPECT_EQ(streams.output, "");
    std::string failures;  // one for each request: list, get, add, modify, delete
    for (int n = 0; n < 3 + GetParam().add_requests() + GetParam().modify_requests(); ++n) {
        failures += "cannot connect sql socket client: No such file or directory\n";
    }
    EXPECT_EQ(streams.error, failures);
}

INSTANTIATE_TEST_SUITE_P(, Client, testing::ValuesIn(golden::tables()));

}  // namespace
