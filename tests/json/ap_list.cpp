#include "json/ap_list.h"

#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"

namespace ap_list {

const char closing[] =
    R"({"m_sn":"","m_group_name":"","m_dev_name":"","m_dev_ip":"","m_dev_mac":"","m_onlinetime":"","m_sw_ver":"",)"
    R"("m_sw_name":"","m_channel":"","m_stanum":"","m_dev_status":"","m_dev_upgrade_status":"",)"
    R"("m_wlan_group_name":"","m_wlan_radio_num":"","m_channel_sec":"","m_TimeRebootEnable":"","m_RebootTime":"",)"
    R"("m_CurrentTime":"","m_dev_modelname":"","m_wlan_txpower":"","m_wlan_txpower_sec":""}])";

std::string page(const Request &request) {
    return printed::by([&request] {
        GetApDevList_cgi(request.page, request.mode, request.group, request.flag, request.ip, request.mac,
                         request.page_size);
    });
}

void add(int number, const std::string &columns) {
    const std::string sn = std::to_string(number);
    support::execute("insert into DevInfo(Dev_Sn,Dev_IPSUM) values(" + sn + "," + sn + "); update DevInfo set " +
                     columns + " where Dev_Sn=" + sn + ";");
}

void add_network(int count) {
    support::execute("with recursive n(i) as (select 1 union all select i+1 from n where i<" + std::to_string(count) +
                     ") insert into DevInfo(Dev_Sn,Dev_IPSUM,Dev_Ipaddress) select i,i,'10.0.'||(i/256)||'.'||(i%256)"
                     " from n;");
}

std::string element(const std::string &number, const std::string &ip, const std::string &mac, const std::string &status,
                    const std::string &stations) {
    return R"({"m_sn":")" + number + R"(","m_group_name":"","m_dev_name":"","m_dev_ip":")" + ip + R"(","m_dev_mac":")" +
           mac +
           R"(","m_onlinetime":"","m_sw_ver":"","m_sw_name":"","m_channel":"","m_current_channel":"","m_stanum":")" +
           stations + R"(","m_dev_status":")" + status +
           R"(","m_dev_upgrade_status":"","m_wlan_group_name":"N/A","m_wlan_radio_num":"","m_channel_sec":"",)"
           R"("m_current_channel_sec":"","m_TimeRebootEnable":"","m_RebootTime":"","m_CurrentTime":"",)"
           R"("m_dev_modelname":"","m_wlan_txpower":"","m_wlan_txpower_sec":"","m_wlan_ssid":"","m_wlan_ssid_sec":""},)";
}

}  // namespace ap_list
