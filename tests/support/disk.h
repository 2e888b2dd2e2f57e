// What a power loss leaves of files that were being changed.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace support {

/// Contents of files by their absolute paths.
using Files = std::map<std::string, std::string>;

/// The files below some directories, none of them in a further one.
Files read_files(const std::vector<std::string> &directories);

/// Makes these files the only ones in the directories.
void put_files(const std::vector<std::string> &directories, const Files &files);

/// A disk behind a cache. It is told of changes and syncs in the order in which they are made, and knows what could be
/// left of them: names are on disk when their directory or everything was synced, contents when their file or
/// everything was. Until then each block of 512 bytes, size and name may have arrived or not, and the first part of a
/// block alone.
class Disk {
public:
    explicit Disk(const Files &files);

    void create(const std::string &path);
    void write(const std::string &path, std::size_t offset, const std::string &bytes);
    void resize(const std::string &path, std::size_t size);
    void link(const std::string &from, const std::string &to);
    void rename(const std::string &from, const std::string &to);
    void remove(const std::string &path);
    void sync_file(const std::string &path);
    void sync_directory(const std::string &path);
    void sync_all();

    bool exists(const std::string &path) const { return names_.count(path) != 0; }
    const std::string &content(const std::string &path) const { return contents_.at(names_.at(path)); }

    /// The number of things that it was told.
    std::size_t events() const { return events_.size(); }

    /// How many of them precede each sync: then most has not arrived.
    std::vector<std::size_t> events_before_syncs() const;

    /// Which of the changes that were not synced have arrived.
    enum class Arrived : std::uint8_t { none, all, names_and_sizes, some };

    /// What a power loss leaves after the first `events` of them.
    /// @param seed  of the choice, where some have arrived
    Files after(std::size_t events, Arrived arrived, unsigned seed = 0) const;

private:
    using Names = std::map<std::string, int>;     // of files by number; a number stays with a file
    using Contents = std::map<int, std::string>;  // which is renamed or has no name any more

    enum class Kind : std::uint8_t { name, size, block, file_synced, directory_synced, all_synced };

    struct Event {
        Kind kind;
        std::string path;       // of a name; of a directory
        int file = 0;           // none takes the name away
        std::size_t place = 0;  // offset or size
        std::string bytes{};
    };

    static constexpr int none = -1;

    static void apply(const Event &event, Names &names, Contents &contents);
    /// Each change arrives or is lost, as often as is drawn first; some blocks arrive in part.
    static void apply_some(const std::vector<const Event *> &changes, unsigned seed, Names &names, Contents &contents);
    static bool is_settled_by(const Event &change, const Event &sync);
    void note(const Event &event);

    Names first_names_;
    Contents first_contents_;
    Names names_;
    Contents contents_;
    std::vector<Event> events_;
    int next_file_ = 0;
};

}  // namespace support
