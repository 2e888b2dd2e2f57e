// The driver: what happens around every input.
#include "fuzz/fuzz.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "fuzz/platform.h"
#include "support/database.h"
#include <nlohmann/json.hpp>

namespace fuzz {

namespace {

long inputs = 0;
std::string output;

ssize_t keep(void * /*unused*/, const char *text, size_t size) {
    output.append(text, size);
    return static_cast<ssize_t>(size);
}

ssize_t drop(void * /*unused*/, const char * /*text*/, size_t size) {
    return static_cast<ssize_t>(size);
}

/// Takes what the library writes in place of both streams.
class Streams {
public:
    Streams() {
        static FILE *const kept = fopencookie(nullptr, "w", {nullptr, keep, nullptr, nullptr});
        static FILE *const dropped = fopencookie(nullptr, "w", {nullptr, drop, nullptr, nullptr});
        output.clear();
        stdout = kept;
        stderr = dropped;
    }
    Streams(const Streams &) = delete;
    Streams &operator=(const Streams &) = delete;
    ~Streams() {
        std::fflush(stdout);
        stdout = stdout_;
        stderr = stderr_;
    }

private:
    FILE *stdout_ = stdout;
    FILE *stderr_ = stderr;
};

/// Such as a connection is kept with.
bool reads_a_file(int descriptor, int flags) {
    struct stat file {};
    return (flags & O_ACCMODE) == O_RDONLY && fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode);
}

/// How many are open, but for one to each database where connections are kept.
int open_descriptors() {
    constexpr int end = 128;
    int count = 0;
    int kept = build_profile.keeps_connection ? 2 : 0;
    for (int descriptor = 0; descriptor < end; ++descriptor) {
        const int flags = fcntl(descriptor, F_GETFL);
        if (flags != -1 && kept > 0 && reads_a_file(descriptor, flags)) {
            --kept;
        } else if (flags != -1) {
            ++count;
        }
    }
    return count;
}

/// The exact profile closes low descriptors that are not its own: standard input, and behind an unfinished list the one
/// whose number is SQLite's result code. So there is something to close, and it is put back.
void fill_low_descriptors() {
    constexpr int above_all_codes = 40;
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (int descriptor = 0; descriptor < above_all_codes; ++descriptor) {
        if (descriptor != nothing && fcntl(descriptor, F_GETFD) == -1) {
            require(!build_profile.closes_its_own || inputs == 0, "a descriptor of the caller's is closed");
            dup3(nothing, descriptor, O_CLOEXEC);
        }
    }
    if (nothing >= above_all_codes) {
        close(nothing);
    }
}

void tell() {
    std::printf("FIGURE %ld %s\n", inputs, what);
}

void begin() {
    std::atexit(tell);
    fill_low_descriptors();
    prepare();
}

}  // namespace

unsigned Input::take_number(unsigned limit) {
    const unsigned byte = rest_.empty() ? 'a' : static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(rest_.empty() ? 0 : 1);
    return (byte + 256 - 'a') % 256 % limit;
}

std::string Input::take_line(std::size_t longest) {
    const std::size_t end = rest_.find('\n');
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return std::string(line.substr(0, longest));
}

std::string Input::take_rest() {
    const std::string_view rest = rest_;
    rest_ = {};
    return std::string(rest);
}

void require(bool as_it_should_be, const char *fault) {
    if (!as_it_should_be) {
        dprintf(STDERR_FILENO, "FAULT: %s\n", fault);
        std::abort();
    }
}

void require(bool as_it_should_be, const std::string &fault) {
    require(as_it_should_be, fault.c_str());
}

std::string printed() {
    std::fflush(stdout);
    return output;
}

void make_database(const std::vector<std::string> &tables, const std::string &rows, const char *path) {
    const char *const made = path != nullptr ? path : support::main_database;
    std::string sql = "pragma page_size = 512;";
    {
        const support::Database schema(made);
        for (const std::string &table : tables) {
            sql += schema.value("select sql from sqlite_master where name = '" + table + "';") + ";";
        }
    }
    put_file(made, "");
    support::Database(made).execute(sql + rows);
}

void put_file(const char *path, std::string_view bytes) {
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const ssize_t written = write(file, bytes.data(), bytes.size());
    close(file);
    require(written == static_cast<ssize_t>(bytes.size()), std::string("cannot write ") + path);
}

bool is_json(const std::string &text) {
    return nlohmann::json::accept(text);
}

Room::Room(std::size_t size) : bytes_(static_cast<char *>(std::malloc(size))) {
    constexpr int unwritten = 0xa5;
    std::memset(bytes_, unwritten, size);
}

Room::~Room() {
    std::free(bytes_);
}

Argument::Argument(const std::string &text) : Room(text.size() + 1) {
    std::memcpy(this->text(), text.c_str(), text.size() + 1);
}

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace fuzz;
    [[maybe_unused]] static const bool begun = (begin(), true);
    const int before = open_descriptors();
    {
        const Streams streams;
        platform::watch();
        run(Input({reinterpret_cast<const char *>(data), size}));
        platform::unwatch();
    }
    fill_low_descriptors();
    require(open_descriptors() == before, "a descriptor is left open");
    ++inputs;
    return 0;
}
