// Reads one access point and prints its name: the operation "process start".
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "harness/desk.h"

namespace bench::peers {

/// Reads all of it, as the others do.
template <typename Database>
void print_name() {
    constexpr int columns = 160;
    std::vector<std::string> device;
    Database(paths::main_database).for_each({known_device_sql}, [&](const auto &row) {
        for (int column = 0; column < columns; ++column) {
            device.emplace_back(row.text(column));
        }
    });
    std::puts(device[2].c_str());
}

}  // namespace bench::peers
