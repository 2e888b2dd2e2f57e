// What one call has looked up already.
#pragma once

#include <cstdlib>
#include <new>

#include "core/build_profile.h"

namespace routerdb {

/// Entries on the heap, in the order in which they came, gone with the call. Where the build profile remembers nothing,
/// it stays empty. A lookup that failed is not to be remembered: the next one may succeed.
template <typename Entry>
class Remembered {
public:
    static constexpr bool enabled = build_profile.remembers_lookups;

    Remembered() = default;
    Remembered(const Remembered &) = delete;
    Remembered &operator=(const Remembered &) = delete;
    ~Remembered() {
        while (first_ != nullptr) {
            Node *const node = first_;
            first_ = node->next;
            node->~Node();
            std::free(node);
        }
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
    /// @return null where nothing is remembered, and without memory
    Entry *add(std::size_t room = 0) {
        if constexpr (!enabled) {
            return nullptr;
        }
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
        Entry entry;
        Node *next;
    };

    Node *first_ = nullptr;
    Node **end_ = &first_;
};

}  // namespace routerdb
