// What a page of access points is asked for, and what it shows of them.
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"
#include "support/database.h"

// Modern alone: in exact both texts are SQL, and what the table holds is printed as it stands.
const char fuzz::what[] = "pages of access points: JSON, with nothing in it but access points";

void fuzz::prepare() {
    make_database({"DevInfo", "WlanZeroCfgGroupInfo"},
                  "insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC,Dev_Ipaddress,Dev_Status) values"
                  "(1,'one','00:00:00:00:00:01','10.0.0.1','1'),(2,'two','00:00:00:00:00:02','10.0.0.2','0');"
                  "insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name) values(1,'secret');");
}

void fuzz::run(Input input) {
    const int page = static_cast<int>(input.take_number(8)) - 2;
    const int mode = static_cast<int>(input.take_number(6)) - 1;
    const int group = static_cast<int>(input.take_number(4)) - 1;
    const int flag = static_cast<int>(input.take_number(4)) - 1;
    const int size = static_cast<int>(input.take_number(20)) - 2;
    input.take_line();
    Argument ip(input.take_line());
    Argument mac(input.take_line());
    require(GetApDevList_cgi(page, mode, group, flag, ip.text(), mac.text(), size) == 0, "a result that there is not");
    const std::string text = printed();
    require(is_json(text), "no JSON: " + text);
    require(text.find("secret") == std::string::npos, "what is in another table is shown: " + text);
}
