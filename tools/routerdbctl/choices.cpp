#include "choices.h"

#include <strings.h>

#include <cstring>

namespace ctl {

void Choices::offer(const char *word, const void *meaning) {
    const bool starts = strncasecmp(word, word_, std::strlen(word_)) == 0;
    listed_.add("%s%s", listed_.is_empty() ? "" : ", ", word);
    if (starts) {
        starting_.add("%s%s", starting_.is_empty() ? "" : ", ", word);
    }
    offer_silently(word, meaning);
}

void Choices::offer_silently(const char *word, const void *meaning) {
    if (strncasecmp(word, word_, std::strlen(word_)) != 0) {
        return;
    }
    if (word[std::strlen(word_)] == '\0' && whole_ == nullptr) {
        whole_ = meaning;
    }
    is_clear_ = start_ == nullptr || (is_clear_ && start_ == meaning);
    start_ = meaning;
}

Status Choices::tell() const {
    return starting_.is_empty()
               ? fail(Status::usage, "there is no %s \"%s\"; there are %s", what_, word_, listed_.text())
               : fail(Status::usage, "which %s is \"%s\"? There are %s", what_, word_, starting_.text());
}

}  // namespace ctl
