// One page of the list of access points: what is asked for, and the statements that follow from it.
#pragma once

#include "core/text.h"

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

/// Pages that so many rows take; 0 for less than one page.
int pages_for(int rows, const PageRequest &request);

}  // namespace routerdb
