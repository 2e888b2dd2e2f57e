#include "json/printed.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/streams.h"
#include <nlohmann/json.hpp>

namespace printed {

std::string by(const std::function<void()> &action) {
    const support::Streams::Text text = support::streams_of(action);
    EXPECT_EQ(text.error, "");
    return text.output;
}

bool is_json(const std::string &text) {
    return nlohmann::json::accept(text);
}

void expect_complete(const std::string &actual, const std::string &expected) {
    EXPECT_EQ(actual, expected);
    EXPECT_TRUE(is_json(actual)) << actual;
}

void expect_unfinished(const std::string &actual, const std::string &expected) {
    EXPECT_EQ(actual, expected);
    EXPECT_FALSE(is_json(actual)) << actual;
}

List parse(const std::string &text, const std::string &name) {
    const nlohmann::json whole = nlohmann::json::parse(text);
    if (whole.size() != 1) {
        throw std::runtime_error("more than one list");
    }
    List list;
    for (const auto &member : whole.at(name).items()) {
        if (member.value().is_array()) {
            list.elements = member.value().get<std::vector<Texts>>();
        } else {
            list.totals[member.key()] = member.value().get<std::string>();
        }
    }
    return list;
}

std::vector<std::string> values(const List &list, const std::string &key) {
    std::vector<std::string> found;
    for (std::size_t i = 0; i + 1 < list.elements.size(); ++i) {
        found.push_back(list.elements[i].at(key));
    }
    return found;
}

}  // namespace printed
