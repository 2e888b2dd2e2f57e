// What one call has looked up already.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

#include "core/build_profile.h"

namespace routerdb {

/// Entries on the heap, in the order in which they came, gone with the call. A lookup that failed is not to be
/// remembered: the next one may succeed.
template <typename Entry, bool remembers>
class EntriesOfCall {
public:
    static constexpr bool enabled = true;

    EntriesOfCall() = default;
    EntriesOfCall(const EntriesOfCall &) = delete;
    EntriesOfCall &operator=(const EntriesOfCall &) = delete;
    ~EntriesOfCall() { clear(); }

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

    /// Makes a cleared entry, with `room` bytes behind it.
    /// @return null without memory
    Entry *add(std::size_t room = 0) {
        void *const block = std::malloc(sizeof(Node) + room);
        if (block == nullptr) {
            return nullptr;
        }
        Node *const node = new (block) Node{};
        *end_ = node;
        end_ = &node->next;
        return &node->entry;
    }

private:
    struct Node {
        Node *next;
        Entry entry;
    };

    Node *first_ = nullptr;
    Node **end_ = &first_;
};

/// Where nothing is remembered, it is always empty.
template <typename Entry>
class EntriesOfCall<Entry, false> {
public:
    static constexpr bool enabled = false;

    static void clear() {}

    template <typename Matches>
    static Entry *find(Matches /*matches*/) {
        return nullptr;
    }
    static Entry *add(std::size_t /*room*/ = 0) { return nullptr; }
};

template <typename Entry>
using Remembered = EntriesOfCall<Entry, build_profile.remembers_lookups>;

}  // namespace routerdb
