// What one call has looked up already.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <string_view>

#include "build_profile.h"

namespace routerdb {

/// The bytes that copies of texts take, and the copies. A text that has no address takes one byte and has no copy.
std::size_t room_for(const std::string_view *texts, std::size_t count);
void copy_texts(const std::string_view *texts, std::size_t count, char *place, const char **copies);

/// Entries on the heap, in the order in which they came, gone with the call. A lookup that failed is not to be
/// remembered: the next one may succeed. Where the build profile does not remember lookups it is always empty.
template <typename Entry>
class Remembered {
public:
    static constexpr bool enabled = build_profile.remembers_lookups;

    Remembered() = default;
    Remembered(const Remembered &) = delete;
    Remembered &operator=(const Remembered &) = delete;
    ~Remembered() { clear(); }

    void clear() {
        while (first_ != nullptr) {
            Node *const node = first_;
            first_ = node->next;
            node->~Node();
            std::free(node);
        }
        end_ = &first_;
    }

    /// The first entry that matches; null without one.
    template <typename Matches>
    Entry *find(Matches matches) {
        Node *node = first_;
        while (node != nullptr && !matches(node->entry)) {
            node = node->next;
        }
        return node != nullptr ? &node->entry : nullptr;
    }

    /// Makes a cleared entry.
    /// @return null without memory
    Entry *add() { return make(0); }

    /// Makes an entry whose member `texts` holds copies of the texts given, which lie behind it. One that has no
    /// address becomes null.
    /// @return null without memory
    template <std::size_t count>
    Entry *add(const std::string_view (&texts)[count]) {
        Entry *const entry = make(room_for(texts, count));
        if (entry != nullptr) {
            copy_texts(texts, count, reinterpret_cast<char *>(entry + 1), entry->texts);
        }
        return entry;
    }

private:
    struct Node {
        Node *next;
        Entry entry;
    };

    Entry *make(std::size_t room) {
        void *const block = enabled ? std::malloc(sizeof(Node) + room) : nullptr;
        if (block == nullptr) {
            return nullptr;
        }
        Node *const node = new (block) Node{};
        *end_ = node;
        end_ = &node->next;
        return &node->entry;
    }

    Node *first_ = nullptr;
    Node **end_ = &first_;
};

/// The same, found by a key: a search passes few other entries, however many there are. It looks at one bit of the key
/// after the other, from the lowest, so that ids may be keys as they are, and texts are hashed.
template <typename Entry>
class RememberedByKey {
public:
    static constexpr bool enabled = Remembered<Entry>::enabled;

    /// The first entry that matches among those with the key, and some others; null without one.
    template <typename Matches>
    Entry *find(std::uint32_t key, Matches matches) const {
        Branch *branch = root_;
        while (branch != nullptr && !matches(*branch)) {
            branch = branch->next[key & 1U];
            key >>= 1U;
        }
        return branch;
    }

    /// Make entries as Remembered does.
    /// @return null without memory
    Entry *add(std::uint32_t key) { return put(key, entries_.add()); }

    template <std::size_t count>
    Entry *add(std::uint32_t key, const std::string_view (&texts)[count]) {
        return put(key, entries_.add(texts));
    }

private:
    struct Branch : Entry {
        Branch *next[2];
    };

    Entry *put(std::uint32_t key, Branch *added) {
        Branch **place = &root_;
        for (; *place != nullptr; key >>= 1U) {
            place = &(*place)->next[key & 1U];
        }
        *place = added;
        return added;
    }

    Remembered<Branch> entries_;
    Branch *root_ = nullptr;
};

/// A text as a key.
constexpr std::uint32_t key_of(std::string_view text) {
    std::uint32_t key = 2166136261U;  // FNV-1a
    for (const char letter : text) {
        key = (key ^ static_cast<unsigned char>(letter)) * 16777619U;
    }
    return key;
}

}  // namespace routerdb
