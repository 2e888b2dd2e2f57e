#include "support/disk.h"

#include <algorithm>
#include <filesystem>
#include <random>

#include "support/database.h"

namespace support {

namespace {

constexpr std::size_t block_size = 512;

std::string directory_of(const std::string &path) {
    return path.substr(0, path.rfind('/'));
}

}  // namespace

Files read_files(const std::vector<std::string> &directories) {
    Files files;
    for (const std::string &directory : directories) {
        if (!file_exists(directory)) {
            continue;
        }
        for (const auto &entry : std::filesystem::directory_iterator(directory)) {
            files[entry.path()] = file_content(entry.path());
        }
    }
    return files;
}

void put_files(const std::vector<std::string> &directories, const Files &files) {
    for (const std::string &directory : directories) {
        std::filesystem::remove_all(directory);
        std::filesystem::create_directories(directory);
    }
    for (const auto &[path, content] : files) {
        write_file(path, content);
    }
}

Disk::Disk(const Files &files) {
    for (const auto &[path, content] : files) {
        names_[path] = next_file_;
        contents_[next_file_] = content;
        ++next_file_;
    }
    first_names_ = names_;
    first_contents_ = contents_;
}

void Disk::create(const std::string &path) {
    contents_[next_file_] = "";
    first_contents_[next_file_] = "";
    note({Kind::name, path, next_file_});
    ++next_file_;
}

void Disk::write(const std::string &path, std::size_t offset, const std::string &bytes) {
    const int file = names_.at(path);
    if (offset + bytes.size() > contents_.at(file).size()) {
        resize(path, offset + bytes.size());
    }
    std::size_t done = 0;
    while (done < bytes.size()) {
        const std::size_t size = std::min(bytes.size() - done, block_size - (offset + done) % block_size);
        note({Kind::block, "", file, offset + done, bytes.substr(done, size)});
        done += size;
    }
}

void Disk::resize(const std::string &path, std::size_t size) {
    note({Kind::size, "", names_.at(path), size});
}

void Disk::link(const std::string &from, const std::string &to) {
    note({Kind::name, to, names_.at(from)});
}

void Disk::rename(const std::string &from, const std::string &to) {
    note({Kind::name, to, names_.at(from)});
    note({Kind::name, from, none});
}

void Disk::remove(const std::string &path) {
    note({Kind::name, path, none});
}

void Disk::sync_file(const std::string &path) {
    note({Kind::file_synced, "", names_.at(path)});
}

void Disk::sync_directory(const std::string &path) {
    note({Kind::directory_synced, path});
}

void Disk::sync_all() {
    note({Kind::all_synced, ""});
}

std::vector<std::size_t> Disk::events_before_syncs() const {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < events_.size(); ++i) {
        if (events_[i].kind >= Kind::file_synced) {
            found.push_back(i);
        }
    }
    return found;
}

Files Disk::after(std::size_t events, Arrived arrived, unsigned seed) const {
    Names names = first_names_;
    Contents contents = first_contents_;
    std::vector<const Event *> pending;
    for (std::size_t i = 0; i < events; ++i) {
        const Event &event = events_[i];
        pending.push_back(&event);
        if (event.kind >= Kind::file_synced) {
            const auto settled = std::stable_partition(
                pending.begin(), pending.end(), [&](const Event *change) { return !is_settled_by(*change, event); });
            std::for_each(settled, pending.end(), [&](const Event *change) { apply(*change, names, contents); });
            pending.erase(settled, pending.end());
        }
    }
    if (arrived == Arrived::some) {
        apply_some(pending, seed, names, contents);
    }
    for (const Event *change : pending) {
        const bool early = arrived == Arrived::names_and_sizes && change->kind != Kind::block;
        if (arrived == Arrived::all || early) {
            apply(*change, names, contents);
        }
    }
    Files files;
    for (const auto &[path, file] : names) {
        files[path] = contents.at(file);
    }
    return files;
}

void Disk::apply_some(const std::vector<const Event *> &changes, unsigned seed, Names &names, Contents &contents) {
    std::mt19937 random(seed);
    const auto eighths = 1 + random() % 7;
    for (const Event *change : changes) {
        if (random() % 8 >= eighths) {
            continue;
        }
        Event arrived = *change;
        if (change->kind == Kind::block && random() % 8 == 0) {
            arrived.bytes.resize(random() % arrived.bytes.size());
        }
        apply(arrived, names, contents);
    }
}

void Disk::apply(const Event &event, Names &names, Contents &contents) {
    switch (event.kind) {
        case Kind::name:
            if (event.file == none) {
                names.erase(event.path);
            } else {
                names[event.path] = event.file;
            }
            break;
        case Kind::size:
            contents.at(event.file).resize(event.place);
            break;
        case Kind::block: {
            std::string &content = contents.at(event.file);
            content.resize(std::max(content.size(), event.place + event.bytes.size()));
            content.replace(event.place, event.bytes.size(), event.bytes);
            break;
        }
        case Kind::file_synced:
        case Kind::directory_synced:
        case Kind::all_synced:
            break;
    }
}

bool Disk::is_settled_by(const Event &change, const Event &sync) {
    switch (sync.kind) {
        case Kind::file_synced:
            return change.kind != Kind::name && change.file == sync.file;
        case Kind::directory_synced:
            return change.kind == Kind::name && directory_of(change.path) == sync.path;
        default:
            return true;
    }
}

void Disk::note(const Event &event) {
    apply(event, names_, contents_);
    events_.push_back(event);
}

}  // namespace support
