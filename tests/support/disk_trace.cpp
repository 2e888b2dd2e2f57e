#include "support/disk_trace.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "support/database.h"
#include "support/process.h"

namespace support {

namespace {

constexpr char trace_file[] = "/tmp/disk-trace";
constexpr char start_file[] = "/tmp/disk-trace-start";

// With a question mark in front a call need not exist on every processor.
constexpr char traced_calls[] =
    "?open,?creat,openat,write,pwrite64,ftruncate,?ftruncate64,lseek,?unlink,unlinkat,?rename,?renameat,renameat2,"
    "?link,linkat,fsync,fdatasync,syncfs,sync,copy_file_range";

/// One call, as "4<...>" and "\"...\"" say it; texts are in hexadecimal, so that only their ends look like ends.
struct TracedCall {
    std::string process;
    std::string name;
    std::vector<std::string> arguments;
    std::string result;
};

bool starts_with(const std::string &text, const std::string &start) {
    return text.compare(0, start.size(), start) == 0;
}

/// What stands between two marks, in bytes; "" without them.
std::string between(const std::string &text, char from, char to) {
    const std::size_t begin = text.find(from);
    const std::size_t end = text.rfind(to);
    std::string bytes;
    for (std::size_t i = begin; begin != std::string::npos && i + 4 < end + 1 && end != std::string::npos; i += 4) {
        bytes += static_cast<char>(std::stoi(text.substr(i + 3, 2), nullptr, 16));  // "\x41"
    }
    return bytes;
}

std::string text_of(const std::string &argument) {
    return between(argument, '"', '"');
}

/// The file behind a descriptor.
std::string path_of(const std::string &argument) {
    return between(argument, '<', '>');
}

std::size_t number_of(const std::string &argument) {
    return static_cast<std::size_t>(std::stoull(argument));
}

/// Reads "8  openat(...)   = 3<...>".
/// @return whether the line is a call that succeeded
bool read_call(const std::string &line, TracedCall &call) {
    const std::size_t name = line.find_first_not_of("0123456789 ");
    const std::size_t begin = line.find('(');
    const std::size_t end = line.find(')');
    const std::size_t result = line.find("= ", std::min(end, line.size()));
    if (begin == std::string::npos || result == std::string::npos || line[result + 2] == '-' ||
        line[result + 2] == '?') {
        return false;
    }
    call = {line.substr(0, line.find(' ')), line.substr(name, begin - name), {}, line.substr(result + 2)};
    std::size_t next = begin + 1;
    while (next < end) {
        const std::size_t comma = std::min(line.find(", ", next), end);
        call.arguments.push_back(line.substr(next, comma - next));
        next = comma + 2;
    }
    return true;
}

/// Tells a disk of calls.
class Retelling {
public:
    Retelling(Disk &disk, const std::vector<std::string> &directories) : disk_(disk), directories_(directories) {}

    void tell(const TracedCall &call) {
        const std::string &name = call.name;
        if (name == "open" || name == "openat" || name == "creat") {
            open(call);
        } else if (name == "lseek") {
            position(call) = number_of(call.result);
        } else if (name == "write" || name == "pwrite64") {
            write(call, text_of(call.arguments[1]));
        } else if (name == "copy_file_range") {
            copy(call);
        } else if (starts_with(name, "ftruncate")) {
            if (counts(path_of(call.arguments[0]))) {
                disk_.resize(path_of(call.arguments[0]), number_of(call.arguments[1]));
            }
        } else if (starts_with(name, "unlink") || starts_with(name, "rename") || starts_with(name, "link")) {
            change_name(call);
        } else {
            sync(call);
        }
    }

private:
    bool counts(const std::string &path) const {
        return std::any_of(directories_.begin(), directories_.end(),
                           [&](const std::string &directory) { return starts_with(path, directory + "/"); });
    }

    /// Where a descriptor stands in its file.
    std::size_t &position(const TracedCall &call, std::size_t argument = 0) {
        return positions_[call.process + " " + call.arguments[argument]];
    }

    void open(const TracedCall &call) {
        const std::string path = path_of(call.result);
        positions_[call.process + " " + call.result] = 0;
        const auto asks_for = [&](const char *flag) {
            return std::any_of(call.arguments.begin(), call.arguments.end(),
                               [&](const std::string &argument) { return argument.find(flag) != std::string::npos; });
        };
        if (!counts(path)) {
            return;
        }
        if (!disk_.exists(path)) {
            disk_.create(path);
        } else if (asks_for("O_TRUNC")) {
            disk_.resize(path, 0);
        }
    }

    void write(const TracedCall &call, const std::string &bytes) {
        const bool at_position = call.name != "pwrite64";
        const std::size_t offset = at_position ? position(call) : number_of(call.arguments[3]);
        position(call) += at_position ? bytes.size() : 0;
        if (counts(path_of(call.arguments[0]))) {
            disk_.write(path_of(call.arguments[0]), offset, bytes);
        }
    }

    void copy(const TracedCall &call) {
        const std::string from = path_of(call.arguments[0]);
        const std::string to = path_of(call.arguments[2]);
        const std::size_t size = number_of(call.result);
        std::size_t &source = position(call, 0);
        std::size_t &destination = position(call, 2);
        if (counts(to)) {
            const std::string content = counts(from) ? disk_.content(from) : file_content(from);
            disk_.write(to, destination, content.substr(source, size));
        }
        source += size;
        destination += size;
    }

    /// Of arguments that are no texts, descriptors and flags, there is none to see here.
    void change_name(const TracedCall &call) {
        std::vector<std::string> paths;
        for (const std::string &argument : call.arguments) {
            if (argument.front() == '"') {
                paths.push_back(text_of(argument));
            }
        }
        if (!counts(paths.front())) {
            return;
        }
        if (starts_with(call.name, "link")) {
            disk_.link(paths[0], paths[1]);
        } else if (paths.size() == 2) {
            disk_.rename(paths[0], paths[1]);
        } else {
            disk_.remove(paths[0]);
        }
    }

    void sync(const TracedCall &call) {
        const std::string path = call.arguments.empty() ? "" : path_of(call.arguments[0]);
        if (call.name == "sync" || call.name == "syncfs") {
            disk_.sync_all();
        } else if (counts(path)) {
            disk_.sync_file(path);
        } else {
            disk_.sync_directory(path);
        }
    }

    Disk &disk_;
    const std::vector<std::string> &directories_;
    std::map<std::string, std::size_t> positions_;  // by process and descriptor
};

bool trace(const Process &process) {
    const std::string id = std::to_string(process.id());
    execlp("strace", "strace", "-f", "-qq", "-p", id.c_str(), "-o", trace_file, "-xx", "-y", "-s", "10000000", "-e",
           traced_calls, nullptr);
    throw std::runtime_error("strace is missing");
}

void run_traced(const std::function<bool()> &action) {
    unlink(trace_file);
    Process process([&] {
        prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
        while (unlink(start_file) != 0) {  // the first calls in the trace
            usleep(1000);
        }
        return action();
    });
    Process tracer([&] { return trace(process); });
    const bool begun = eventually(
        [] { return file_exists(trace_file) && file_content(trace_file).find("unlink") != std::string::npos; });
    write_file(start_file, "");
    if (!begun || process.wait() != 0 || tracer.wait() != 0) {
        throw std::runtime_error("the traced process has failed");
    }
}

/// Puts a call together whose line was interrupted by another process, and gives whole lines to `take`.
void read_lines(const std::function<void(const std::string &line)> &take) {
    std::ifstream trace(trace_file);
    std::map<std::string, std::string> begun;
    std::string line;
    while (std::getline(trace, line)) {
        const std::string process = line.substr(0, line.find(' '));
        const std::size_t cut = line.find(" <unfinished ...>");
        const std::size_t resumed = line.find(" resumed>");
        if (cut != std::string::npos) {
            begun[process] = line.substr(0, cut);
        } else if (resumed != std::string::npos) {
            take(begun[process] + line.substr(resumed + sizeof(" resumed>") - 1));
        } else {
            take(line);
        }
    }
}

}  // namespace

Disk trace_disk(const std::vector<std::string> &directories, const std::function<bool()> &action) {
    Disk disk(read_files(directories));
    run_traced(action);
    Retelling retelling(disk, directories);
    read_lines([&](const std::string &line) {
        TracedCall call;
        if (read_call(line, call)) {
            retelling.tell(call);
        }
    });
    if (disk.after(disk.events(), Disk::Arrived::all) != read_files(directories)) {
        throw std::runtime_error("the trace does not tell all that became of the files");
    }
    return disk;
}

}  // namespace support
