// Calls on the libraries of both profiles, with the same databases: their callers see no difference.
#include <gtest/gtest.h>

#include "profiles/calls.h"
#include "profiles/random_databases.h"
#include "support/database.h"
#include "support/process.h"
#include "support/record.h"

namespace {

using profiles::Library;
using profiles::Outcome;

constexpr char outcome_file[] = "/var/outcomes";

std::string packed(const std::vector<Outcome> &outcomes) {
    std::string text;
    for (const Outcome &outcome : outcomes) {
        for (const std::string &part : {outcome.call, outcome.seen}) {
            text += std::to_string(part.size()) + "\n" + part;
        }
    }
    return text;
}

std::string take_part(const std::string &text, std::size_t &place) {
    const std::size_t end = text.find('\n', place);
    const std::size_t size = std::stoul(text.substr(place, end - place));
    place = end + 1 + size;
    return text.substr(end + 1, size);
}

std::vector<Outcome> unpacked(const std::string &text) {
    std::vector<Outcome> outcomes;
    for (std::size_t place = 0; place < text.size();) {
        const std::string call = take_part(text, place);
        outcomes.push_back({call, take_part(text, place)});
    }
    return outcomes;
}

/// The outcomes with a library, in a process that has no other one.
std::vector<Outcome> outcomes_with(const char *library, std::mt19937 random) {
    support::Process caller([&] {
        support::write_file(outcome_file, packed(make_calls(Library(library), random)));
        return true;
    });
    EXPECT_EQ(caller.wait(), 0);
    return unpacked(support::file_content(outcome_file));
}

class Profiles : public testing::TestWithParam<unsigned> {};

TEST_P(Profiles, show_their_callers_the_same) {
    std::mt19937 random(GetParam());
    profiles::fill_databases(random);
    const profiles::Files files;
    const std::vector<Outcome> ours = outcomes_with(LIBRARY, random);
    files.restore();
    const std::vector<Outcome> others = outcomes_with(OTHER_LIBRARY, random);
    ASSERT_EQ(ours.size(), others.size());
    ASSERT_GT(ours.size(), 60U);
    for (std::size_t i = 0; i < ours.size(); ++i) {
        EXPECT_EQ(support::difference(ours[i].seen, others[i].seen), "") << ours[i].call;
    }
}

INSTANTIATE_TEST_SUITE_P(OnRandomDatabases, Profiles, testing::Range(1U, 33U));

}  // namespace
