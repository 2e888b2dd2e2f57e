// One page of the list of access points: what is asked for, and the statements that follow from it.
#pragma once

#include "text/text.h"

namespace routerdb {

/// What a caller asks for.
struct PageRequest {
    int page;
    int mode;
    int group;
    int flag;
    std::string_view address;  // parts to search for
    std::string_view mac;
    int size;  // rows of a page
};

/// Takes the arguments as callers give them.
PageRequest make_page_request(int page, int mode, int group, int flag, const char *address, const char *mac, int size);

/// Counts what the filter lets through. A mode that does not exist leaves the text empty.
void append_count(Text &sql, const PageRequest &request);

/// Selects the rows of the page.
void append_page(Text &sql, const PageRequest &request);

/// What a page says of itself.
struct PageNumbers {
    int page;
    int pages;
};

/// @param matches  what the filter lets through
/// @param printed  how much of it stands on the page; a page with nothing on it is page 1 of 0
PageNumbers page_numbers(const PageRequest &request, int matches, int printed);

}  // namespace routerdb
