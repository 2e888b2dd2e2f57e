#include "apinventory/paging.h"

#include "core/row.h"

namespace routerdb {

namespace {

enum Mode : int { all = 0, online = 1, offline = 2, search = 3 };
enum Flag : int { outside_group = 1, short_page = 2 };

constexpr int usual_page = 17;
constexpr int group_page = 14;
constexpr std::size_t longest_search = 254;

void append_group(Text &sql, const PageRequest &request) {
    sql.append("from DevInfo where Dev_Wlan_GroupId").append(request.flag == outside_group ? "<>" : "=");
    sql.append_quoted(long{request.group});
}

void append_pattern(Text &sql, std::string_view searched) {
    StackText<longest_search + sizeof("%%")> pattern;
    pattern.append("%").append(searched).append("%");
    sql.append_quoted(pattern.view());
}

/// "Dev_Ipaddress like '%1.2%' and Dev_MAC like '%AA%'", or the one that is searched for
void append_search(Text &sql, const PageRequest &request) {
    if (!request.address.empty()) {
        sql.append("Dev_Ipaddress like ");
        append_pattern(sql, request.address);
    }
    if (!request.address.empty() && !request.mac.empty()) {
        sql.append(" and ");
    }
    if (!request.mac.empty()) {
        sql.append("Dev_MAC like ");
        append_pattern(sql, request.mac);
    }
}

bool searches(const PageRequest &request) {
    return request.mode == search && !(request.address.empty() && request.mac.empty());
}

/// "select * from DevInfo where ..." with its irregular blanks, up to the order.
void append_rows(Text &sql, const PageRequest &request) {
    if (request.group > 0) {
        sql.append("select * ");
        append_group(sql, request);
        sql.append("  ");
    } else if (searches(request)) {
        const bool both = !request.address.empty() && !request.mac.empty();
        sql.append(both ? "select * from DevInfo where " : "select  *  from DevInfo where ");
        append_search(sql, request);
        sql.append(both ? "  " : " ");
    } else if (request.mode == online) {
        sql.append("select * from DevInfo where Dev_Status='1'  and  Dev_Ipaddress <> '' ");
    } else if (request.mode == offline) {
        sql.append("select * from DevInfo where Dev_Status='0' and  Dev_Ipaddress <> '' ");
    } else {
        sql.append("select * from DevInfo where Dev_Ipaddress <> '' ");
    }
}

}  // namespace

PageRequest make_page_request(int page, int mode, int group, int flag, const char *address, const char *mac, int size) {
    const int rows = flag == outside_group || flag == short_page ? group_page : size;
    return {page,
            mode,
            group,
            flag,
            field_text(or_empty(address), longest_search),
            field_text(or_empty(mac), longest_search),
            rows < 1 ? usual_page : rows};
}

void append_count(Text &sql, const PageRequest &request) {
    if (request.group > 0) {
        sql.append("select count(*) ");
        append_group(sql, request);
        sql.append(";");
    } else if (searches(request)) {
        sql.append("select count(*) from DevInfo where ");
        append_search(sql, request);
        sql.append(" ;");
    } else if (request.mode == all) {
        sql.append("select count(*) from DevInfo where Dev_Ipaddress <> '';");
    } else if (request.mode == online) {
        sql.append("select count(*) from DevInfo where Dev_Status='1' and Dev_Ipaddress <> '';");
    } else if (request.mode == offline) {
        sql.append("select count(*) from DevInfo where Dev_Status='0' and Dev_Ipaddress <> '';");
    } else if (request.mode == search) {
        sql.append("select count(*) from DevInfo;");  // Deliberate: the page leaves out those without an address.
    }
}

void append_page(Text &sql, const PageRequest &request) {
    // The page that was asked for, even behind the last one; a product that no int holds wraps as it always did.
    const unsigned offset = static_cast<unsigned>(request.size) * (static_cast<unsigned>(request.page) - 1U);
    append_rows(sql, request);
    sql.append("order by Dev_IPSUM  limit ").append(long{static_cast<int>(offset)}).append(",");
    sql.append(long{request.size}).append(" ;");
}

PageNumbers page_numbers(const PageRequest &request, int matches, int printed) {
    if (printed == 0) {
        return {1, 0};
    }
    const int whole = matches / request.size;
    // Deliberate: less than one page counts as none.
    const int pages = whole > 0 && matches % request.size != 0 ? whole + 1 : whole;
    const int page = pages < request.page ? pages : request.page;
    return {page != 0 ? page : 1, pages};
}

}  // namespace routerdb
