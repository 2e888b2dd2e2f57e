// A word that somebody has typed, among those there are: whole, or its first letters where they are no other's.
#pragma once

#include "sql.h"
#include "status.h"

namespace ctl {

class Choices {
public:
    /// @param what  what the words name, such as "table"
    /// @param word  the one that was typed
    Choices(const char *what, const char *word) : what_(what), word_(word) {}

    /// Offers a word; several may stand for the same.
    void offer(const char *word, const void *meaning);

    /// Offers one that a message does not list.
    void offer_silently(const char *word, const void *meaning);

    /// @return done, or usage after a message that lists the choices
    template <typename Meaning>
    Status decide(const Meaning *&meaning) const {
        meaning = static_cast<const Meaning *>(whole_ != nullptr ? whole_ : is_clear_ ? start_ : nullptr);
        return meaning != nullptr ? Status::done : tell();
    }

private:
    Status tell() const;

    const char *what_;
    const char *word_;
    const void *whole_ = nullptr;  // what the word means when it is whole
    const void *start_ = nullptr;  // and when it is a start
    bool is_clear_ = false;        // it is the start of one only
    Sql listed_;                   // those that it may be the start of, or all
    Sql starting_;
};

}  // namespace ctl
