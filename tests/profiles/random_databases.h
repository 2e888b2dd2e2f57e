// Databases and leases with odd contents.
#pragma once

#include <random>
#include <string>

namespace profiles {

/// One of several texts.
template <typename Texts>
const std::string &one_of(const Texts &texts, std::mt19937 &random) {
    return texts[random() % std::size(texts)];
}

inline const std::string macs[] = {"00:11:22:33:44:55", "AA:BB:CC:DD:EE:FF", "00:00:00:00:00", "its", ""};
inline const std::string addresses[] = {"10.0.0.1", "192.168.1.20", "10.0.1.44", "nowhere", ""};
inline const std::string behaviors[] = {"",         "1:f1",           "1:f1?f2AND2:f1",  "2:its?f1AND1:f2",
                                        "1:?f1??5", "x:f1AND7:f9AND", "1:f1?f1?f2?zero", "3AND1:1?1.5"};

/// Fills all tables of both databases, leaves some of them out or without types, and writes leases or none.
void fill_databases(std::mt19937 &random);

/// All files that calls may read or change, as they are.
class Files {
public:
    Files();
    void restore() const;

private:
    std::string contents_[4];
};

/// All rows of the main database.
std::string dump();

}  // namespace profiles
