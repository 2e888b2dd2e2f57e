// How far a search goes among what a call remembers.
#include "core/remembered.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "support/profile.h"

namespace {

using routerdb::key_of;
using routerdb::RememberedByKey;

struct Entry {
    const char *texts[1];
};

using Entries = RememberedByKey<Entry>;
using KeyOf = std::function<std::uint32_t(unsigned number)>;

constexpr unsigned many = 4096;

std::string name(unsigned number) {
    return "feature " + std::to_string(number);
}

/// The most entries that a search for one of many passes. Each of them is found.
unsigned longest_search(const KeyOf &key) {
    Entries entries;
    for (unsigned number = 0; number < many; ++number) {
        entries.add(key(number), {name(number)});
    }
    unsigned longest = 0;
    for (unsigned number = 0; number < many; ++number) {
        unsigned passed = 0;
        const Entry *const found = entries.find(key(number), [&](const Entry &entry) {
            ++passed;
            return entry.texts[0] == name(number);
        });
        EXPECT_STREQ(found != nullptr ? found->texts[0] : "", name(number).c_str());
        longest = std::max(longest, passed);
    }
    return longest;
}

class WhatIsRemembered : public testing::Test {
protected:
    void SetUp() override {
        if (!support::build_profile.remembers_lookups) {
            GTEST_SKIP() << "this profile remembers nothing";
        }
    }
};

TEST_F(WhatIsRemembered, is_found_by_its_number_in_a_dozen_steps_among_thousands) {
    EXPECT_LE(longest_search([](unsigned number) { return number; }), 13U);
    EXPECT_LE(longest_search([](unsigned number) { return number * 1000; }), 16U);
}

TEST_F(WhatIsRemembered, is_found_by_its_text_in_some_steps_among_thousands) {
    EXPECT_LE(longest_search([](unsigned number) { return key_of(name(number)); }), 32U);
}

TEST_F(WhatIsRemembered, is_found_where_all_keys_are_the_same) {
    EXPECT_EQ(longest_search([](unsigned) { return 7U; }), many);
}

TEST_F(WhatIsRemembered, is_the_first_of_those_that_match) {
    Entries entries;
    const Entry *const first = entries.add(1, {"a"});
    entries.add(1, {"b"});
    EXPECT_EQ(entries.find(1, [](const Entry &) { return true; }), first);
    EXPECT_EQ(entries.find(1, [](const Entry &) { return false; }), nullptr);
}

TEST(WhatIsNotRemembered, is_not_found) {
    Entries entries;
    EXPECT_EQ(entries.find(1, [](const Entry &) { return true; }), nullptr);
    EXPECT_EQ(entries.add(1) != nullptr, support::build_profile.remembers_lookups);
}

}  // namespace
