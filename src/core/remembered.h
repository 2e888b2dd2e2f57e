// What one call has looked up already.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>
#include <string_view>

#include "build_profile.h"
#include "text/text.h"

namespace routerdb {

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
        std::size_t room = 0;
        for (const std::string_view text : texts) {
            room += text.size() + 1;
        }
        Entry *const entry = make(room);
        if (entry == nullptr) {
            return nullptr;
        }
        char *place = reinterpret_cast<char *>(entry + 1);
        for (std::size_t index = 0; index < count; ++index) {
            const std::string_view text = texts[index];
            if (text.data() != nullptr) {
                copy_cut(text, place, text.size() + 1);
                entry->texts[index] = place;
            }
            place += text.size() + 1;
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

}  // namespace routerdb
