// Access points of the tests, and the page that is to be printed of them.
#pragma once

#include <string>
#include <vector>

namespace ap_list {

inline constexpr char opening[] = "{\"ApDevList\":{\"data\":[";
inline constexpr char nothing[] =
    R"({"ApDevList":{"count":"0","pagenum":"1","pagecount":"0","sumcount":"0","onlinecount":"0","stasumnum":"0"}})";

/// The arguments of one call.
struct Request {
    int page = 1;
    int mode = 0;
    int group = 0;
    int flag = 0;
    const char *ip = nullptr;
    const char *mac = nullptr;
    int page_size = 17;
};

/// What is printed for it.
std::string page(const Request &request);

/// Adds an access point; what `columns` does not name is NULL. `columns` is such as "Dev_Status='1',Dev_Name='attic'".
void add(int number, const std::string &columns);

/// Adds access points with numbers and addresses from 1 on: number 300 has 10.0.1.44.
void add_network(int count);

/// The element of an access point of which nothing else is known.
std::string element(const std::string &number, const std::string &ip, const std::string &mac, const std::string &status,
                    const std::string &stations);

/// The closing element, and the end of the array.
extern const char closing[];

}  // namespace ap_list
