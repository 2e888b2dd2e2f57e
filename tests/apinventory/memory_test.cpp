// What is allocated and released, and what happens when memory runs out.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/wrapped_calls.h"

namespace {

using places::put;
using statements::sample_device;
using support::Recorder;
using support::WrappedCalls;
using tables::devices;
using Lines = std::vector<std::string>;
using Sizes = std::vector<std::size_t>;

void insert_devices(int n) {
    for (int i = 1; i <= n; ++i) {
        insert(devices, {{0, std::to_string(i)}, {155, std::to_string(i)}});
    }
}

TEST(Memory, without_room_for_the_statement_a_registration_does_nothing_and_says_so) {
    const DevInfo device = sample_device();
    const Recorder recorder;
    WrappedCalls calls;
    calls.fail("malloc", 1, ENOMEM);
    EXPECT_EQ(DB_addinfo(device), -1);
    EXPECT_TRUE(calls.failed());
    EXPECT_EQ(recorder.calls(), Lines{"syslog 3 not have enough mem"});
}

TEST(Memory, without_room_for_the_statement_saving_does_nothing_and_says_so) {
    const DevInfo device = sample_device();
    const Recorder recorder;
    WrappedCalls calls;
    calls.fail("malloc", 1, ENOMEM);
    DB_saveinfo(&device);
    EXPECT_TRUE(calls.failed());
    EXPECT_EQ(recorder.calls(), Lines{"syslog 3 not have enough mem"});
}

TEST(Memory, without_room_for_a_long_insertion_a_registration_ends_without_event) {
    DevInfo device = sample_device();
    put(device, "Dev_Group", std::string(200, '\''));
    put(device, "Dev_Name", std::string(200, '\''));
    Recorder recorder;
    recorder.keep_commands_from_running();
    if (support::build_profile.registers_at_once) {
        recorder.answer("sqlite3_open", {SQLITE_CANTOPEN});  // or each statement on its own would stand in for it
    }
    WrappedCalls calls;
    calls.fail("malloc", 2, ENOMEM);
    EXPECT_EQ(DB_addinfo(device), -1);
    EXPECT_TRUE(calls.failed());
    EXPECT_EQ(recorder.calls({"sqlite3_exec insert", "sqlite3_exec update", "system"}), Lines());
    EXPECT_EQ(calls.blocks(), Sizes());
}

TEST(Memory, of_a_registration_is_room_for_the_longest_statement_and_released) {
    const DevInfo device = sample_device();
    Recorder recorder;
    Sizes during;
    WrappedCalls calls;
    recorder.keep_commands_from_running();
    recorder.watch([&](const std::string &line) {
        if (line.compare(0, 6, "system") == 0) {
            during = calls.blocks();  // the text is still there to be searched
        }
    });
    EXPECT_NE(DB_addinfo(device), -1);
    EXPECT_EQ(during, Sizes{81920});
    EXPECT_EQ(calls.blocks(), Sizes());
}

TEST(Memory, without_room_for_a_long_text_nothing_is_executed) {
    const std::string mac(5000, 'm');
    char status[5] = "old";
    const Recorder recorder;
    const auto without_memory = [](const auto &action) {
        WrappedCalls calls;
        calls.fail("malloc", 1, ENOMEM);
        action();
        EXPECT_TRUE(calls.failed());
    };
    without_memory([&] { SetDevStatus(mac.c_str(), "1"); });
    without_memory([&] { GetDevStatus(mac.c_str(), status); });
    without_memory([&] { EXPECT_EQ(GetTableCount(mac.c_str()), 0); });
    EXPECT_STREQ(status, "0");
    EXPECT_EQ(recorder.calls(), Lines());
}

TEST(Memory, a_list_ends_early_where_there_is_none_for_a_record) {
    insert_devices(3);
    for (const int n : {1, 2, 3, 4}) {
        ApDevList list;
        WrappedCalls calls;
        calls.fail("malloc", n, ENOMEM);
        EXPECT_EQ(GetApDevList(&list, 0), n == 1 ? 0 : 1);
        EXPECT_EQ(list.count, static_cast<uint32_t>(n - 1));
        EXPECT_EQ(calls.failed(), n < 4);
        EXPECT_EQ(calls.blocks(), Sizes(list.count, places::record_size));
        FreeApDevList(&list);
        EXPECT_EQ(calls.blocks(), Sizes());
    }
}

DevInfo **slots(ApDevList &list) {
    return list.devices;
}

ApDevUpgradeInfo **slots(ApDevUpgradeList &list) {
    return list.items;
}

void release(ApDevList &list) {
    FreeApDevList(&list);
}

void release(ApDevUpgradeList &list) {
    FreeApDevUpgradeList(&list);
}

/// A zero block on the heap. The library's own calls and this one are watched alike.
void *zero_block(std::size_t size) {
    void *const block = std::malloc(size);
    std::memset(block, 0, size);
    return block;
}

template <typename List>
class ListRelease : public testing::Test {
protected:
    using Record = std::remove_reference_t<decltype(*slots(std::declval<List &>())[0])>;

    ListRelease() {
        list_->count = 0;
        for (std::size_t i = 0; i < 1000; ++i) {
            slots(*list_)[i] = nullptr;
        }
    }
    ~ListRelease() override {
        for (std::size_t i = 0; i < 1000; ++i) {
            std::free(slots(*list_)[i]);
        }
    }

    void fill(std::initializer_list<std::size_t> indexes) {
        for (const std::size_t index : indexes) {
            slots(*list_)[index] = static_cast<Record *>(zero_block(sizeof(Record)));
        }
    }

    /// Releases the list with a count, and expects so many records left.
    void expect_left(uint32_t count, std::size_t records) {
        list_->count = count;
        release(*list_);
        EXPECT_EQ(calls_.blocks(), Sizes(records, sizeof(Record)));
        EXPECT_EQ(list_->count, count);
    }

    WrappedCalls calls_;
    std::unique_ptr<List> list_ = std::make_unique<List>();
};

using Lists = testing::Types<ApDevList, ApDevUpgradeList>;
TYPED_TEST_SUITE(ListRelease, Lists);

TYPED_TEST(ListRelease, releases_records_up_to_the_count_and_nulls_their_slots) {
    this->fill({0, 1, 2, 3});
    this->expect_left(3, 1);
    for (const std::size_t index : {0U, 1U, 2U}) {
        EXPECT_EQ(slots(*this->list_)[index], nullptr);
    }
    EXPECT_NE(slots(*this->list_)[3], nullptr);
}

TYPED_TEST(ListRelease, steps_over_null_slots) {
    this->fill({1, 3});
    this->expect_left(4, 0);
}

TYPED_TEST(ListRelease, a_second_release_finds_nothing) {
    this->fill({0});
    this->expect_left(1, 0);
    this->expect_left(1, 0);
}

TYPED_TEST(ListRelease, a_count_of_0_or_less_releases_nothing) {
    this->fill({0, 999});
    for (const uint32_t count : {0U, 4294967295U, 2147483648U}) {
        this->expect_left(count, 2);
    }
    EXPECT_NE(slots(*this->list_)[0], nullptr);
}

TYPED_TEST(ListRelease, a_count_beyond_the_room_ends_with_the_room) {
    this->fill({0, 999});
    this->expect_left(2147483647, 0);
}

TEST(UpgradeList, releases_the_block_that_a_record_owns) {
    WrappedCalls calls;
    const auto list = std::make_unique<ApDevUpgradeList>();
    list->count = 2;
    for (std::size_t i = 0; i < 2; ++i) {
        list->items[i] = static_cast<ApDevUpgradeInfo *>(zero_block(sizeof(ApDevUpgradeInfo)));
    }
    list->items[0]->block = zero_block(77);
    FreeApDevUpgradeList(list.get());
    EXPECT_EQ(calls.blocks(), Sizes());
    EXPECT_EQ(list->items[0], nullptr);
}

}  // namespace
