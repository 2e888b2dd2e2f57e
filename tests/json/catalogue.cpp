#include "json/catalogue.h"

#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>

#include "routerdb.h"
#include "support/database.h"

namespace catalogue {

void execute(const std::string &sql) {
    support::Database(support::catalogue_database).execute(sql);
}

void fill() {
    execute(
        "insert into App_Class values(9,'空','Empty',1,'');"
        "insert into App_Class values(3,'聊天','Chat',5,'talk');"
        "insert into App_Class values(7,'视频','Video',2,'films');"
        "insert into App_Info values(1,3,'A','A en','fa','first');"
        "insert into App_Info values(2,7,'优酷','Youku','youku','');"
        "insert into App_Info values(4,3,'B','B en','fb','second');");
}

const std::vector<List> &lists() {
    static const std::vector<List> all{
        {"AllClasses", [](const char *) { return GetAppClassItemList(); }, "", "App_Class",
         "select  count(*) from App_Class;", "select * from App_Class order by Id ;",
         R"({"id":"","name":"","name_en":"","mark":"","priority":"","bw":"","appnames":"","appnames_en":"","appfeature":""}],"count":")"},
        {"OneClass", GetAppClassItem, "3", "App_Class", "select  count(*) from App_Class;",
         "select Name,Mark from App_Class where Id='3' ;", R"({"name":"","mark":"","priority":""}],"count":")"},
        {"OneApplication", GetAppInfoItem, "4", "App_Info", "select\tcount(*) from App_Info;",
         "select Class_Id,Name,Name_En,Features,Mark from App_Info where Id='4' ;",
         R"({"classname":"","appname":"","appname_en":"","features":"","mark":"" }],"count":")"},
        {"ApplicationsOfClass", GetAppInfoItemListByClassid, "3", "App_Info",
         "select  count(*) from App_Info where Class_Id='3';", "select * from App_Info where Class_Id='3';",
         R"({"id":"","class_id":"","appname":"","appname_en":"","features":"","mark":"" }],"count":")"},
    };
    return all;
}

void open_descriptor(int number) {
    const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (null < 0 || (null != number && (dup2(null, number) < 0 || close(null) != 0))) {
        throw std::runtime_error("no descriptor to be had");
    }
}

bool is_open(int descriptor) {
    return fcntl(descriptor, F_GETFD) >= 0;
}

}  // namespace catalogue
