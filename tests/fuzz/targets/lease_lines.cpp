// The text lease file.
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "text lease files: a host name that the file has, or none";

void fuzz::prepare() {}

void fuzz::run(Input input) {
    constexpr char lease_file[] = "/tmp/leases";
    constexpr char pid_file[] = "/tmp/pid";
    constexpr std::size_t name_width = 128;
    Argument mac(input.take_line());
    put_file(pid_file, input.take_line());
    const std::string file = input.take_rest();
    put_file(lease_file, file);

    Room name(name_width);
    std::strcpy(name.text(), "untouched");
    require(get_hostname_by_mac_from_lease(mac.text(), name.text(), lease_file, pid_file) == 1, "a file is not read");
    require(strnlen(name.text(), name_width) < name_width, "a host name without a terminator");
    const std::string found = name.text();
    require(found == "untouched" || file.find(found) != std::string::npos, "a host name from nowhere: " + found);
    getPid_sql(pid_file);
}
