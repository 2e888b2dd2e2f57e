// The same as consumer.c, the C++ way.
#include <routerdb.h>

#include <iostream>
#include <string>

namespace {

int count() {
    return GET_DB_SQL_INT("select * from famliymember;");
}

bool add(const std::string &name, const std::string &mac) {
    const std::string sql = "insert into famliymember (name, mac) values('" + name + "', '" + mac + "');";
    return DB_EXEC_SQL_CHAR(sql.c_str()) == 0;
}

}  // namespace

int main() {
    if (!add("Ada", "00:11:22:33:44:01") || !add("Ben", "00:11:22:33:44:02") || !add("Cleo", "00:11:22:33:44:03")) {
        return 1;
    }
    std::cout << "members: " << count() << '\n';
    std::string ids = "1#3";
    std::string sql = "delete from famliymember where ";
    sql.resize(128);
    sql.resize(generate_db_params(ids.data(), sql.data(), 128, ROUTERDB_COLUMN_ID));
    std::cout << sql << '\n';
    if (DB_EXEC_SQL_CHAR(sql.c_str()) != 0) {
        return 1;
    }
    std::cout << "members: " << count() << '\n';
    std::cout << "access lists: " << acl_wifi_id[0] << ' ' << acl_wifi_id[1] << ' ' << acl_wifi_id[2] << '\n';
    return 0;
}
