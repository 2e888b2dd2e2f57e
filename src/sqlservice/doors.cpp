// The exported function of the SQL service's client side.
#include "routerdb.h"
#include "sqlservice/client.h"

int sqlclient_cmd(const SqlRequest *request, SqlReply *reply) {
    return routerdb::exchange(*request, *reply);
}
