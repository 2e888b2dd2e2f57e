// Gives files to a target, one after the other: what stands in for libFuzzer among the ordinary tests.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "support/database.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int main(int argc, char **argv) {
    std::vector<std::string> files;
    for (const std::string &folder : std::vector<std::string>(argv + 1, argv + argc)) {
        for (const auto &file : std::filesystem::directory_iterator(folder)) {
            files.push_back(file.path());
        }
    }
    std::sort(files.begin(), files.end());
    for (const std::string &file : files) {
        std::printf("%s\n", file.c_str());
        std::fflush(stdout);
        const std::string bytes = support::file_content(file);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    }
    return files.empty() ? 1 : 0;
}
