#include "apinventory/device_statements.h"

#include "apinventory/tables.h"
#include "support/profile.h"

namespace statements {

namespace {

constexpr char reported_device[] =
    " Dev_Group='c1', Dev_Name='c2', Dev_IP_Assign='c154', Dev_Ipaddress='192.168.1.20', Dev_IPSUM='3232235796',"
    " Dev_Subnet='c4', Dev_Gateway='c5', Dev_Dns1='c6', Dev_Dns2='c7', Dev_MAC='00:1a:2b:3c:4d:5e',"
    " Dev_OnlineTime='c9', Dev_SwVer='c11', Dev_SwName='c10', Dev_Model_Name='c13', Dev_CurrentDateTime='c156',"
    " Dev_RebootTime_Enable='c157', Dev_RebootTime='c158', Dev_Manufacture='c12',";

const std::vector<std::string> reported_wlans = {
    (" Dev_Wlan1_Enable='c16', Dev_Wlan1_Hide_Ssid='c17', Dev_Wlan1_Ssid='c18', Dev_Wlan1_VlanId='c19',"
     " Dev_Wlan1_Bssid='c20', Dev_Wlan1_Security='c21', Dev_Wlan1_Authmode='c22', Dev_Wlan1_Securitycipher='c23',"
     "Dev_Wlan1_Wep_Type='c24',Dev_Wlan1_Wep_Value='c25',Dev_Wlan1_Psk_Type='c26',Dev_Wlan1_Psk_Value='c27',"),
    (" Dev_Wlan2_Enable='c28', Dev_Wlan2_Hide_Ssid='c29', Dev_Wlan2_Ssid='c30', Dev_Wlan2_VlanId='c31',"
     " Dev_Wlan2_Bssid='c32', Dev_Wlan2_Security='c33', Dev_Wlan2_Authmode='c34', Dev_Wlan2_Securitycipher='c35',"
     "Dev_Wlan2_Wep_Type='c36',Dev_Wlan2_Wep_Value='c37',Dev_Wlan2_Psk_Type='c38',Dev_Wlan2_Psk_Value='c39',"),
    (" Dev_Wlan3_Enable='c40', Dev_Wlan3_Hide_Ssid='c41', Dev_Wlan3_Ssid='c42', Dev_Wlan3_VlanId='c43',"
     " Dev_Wlan3_Bssid='c44', Dev_Wlan3_Security='c45', Dev_Wlan3_Authmode='c46', Dev_Wlan3_Securitycipher='c47',"
     "Dev_Wlan3_Wep_Type='c48',Dev_Wlan3_Wep_Value='c49',Dev_Wlan3_Psk_Type='c50',Dev_Wlan3_Psk_Value='c51',"),
    (" Dev_Wlan4_Enable='c52', Dev_Wlan4_Hide_Ssid='c53', Dev_Wlan4_Ssid='c54', Dev_Wlan4_VlanId='c55',"
     " Dev_Wlan4_Bssid='c56', Dev_Wlan4_Security='c57', Dev_Wlan4_Authmode='c58', Dev_Wlan4_Securitycipher='c59',"
     "Dev_Wlan4_Wep_Type='c60',Dev_Wlan4_Wep_Value='c61',Dev_Wlan4_Psk_Type='c62',Dev_Wlan4_Psk_Value='c63',"),
    (" Dev_Wlan5_Enable='c64', Dev_Wlan5_Hide_Ssid='c65', Dev_Wlan5_Ssid='c66', Dev_Wlan5_VlanId='c67',"
     " Dev_Wlan5_Bssid='c68', Dev_Wlan5_Security='c69', Dev_Wlan5_Authmode='c70', Dev_Wlan5_Securitycipher='c71',"
     "Dev_Wlan5_Wep_Type='c72',Dev_Wlan5_Wep_Value='c73',Dev_Wlan5_Psk_Type='c74',Dev_Wlan5_Psk_Value='c75',"),
    (" Dev_Wlan6_Enable='c76', Dev_Wlan6_Hide_Ssid='c77', Dev_Wlan6_Ssid='c78', Dev_Wlan6_VlanId='c79',"
     " Dev_Wlan6_Bssid='c80', Dev_Wlan6_Security='c81', Dev_Wlan6_Authmode='c82', Dev_Wlan6_Securitycipher='c83',"
     "Dev_Wlan6_Wep_Type='c84',Dev_Wlan6_Wep_Value='c85',Dev_Wlan6_Psk_Type='c86',Dev_Wlan6_Psk_Value='c87',"),
    (" Dev_Wlan7_Enable='c88', Dev_Wlan7_Hide_Ssid='c89', Dev_Wlan7_Ssid='c90', Dev_Wlan7_VlanId='c91',"
     " Dev_Wlan7_Bssid='c92', Dev_Wlan7_Security='c93', Dev_Wlan7_Authmode='c94', Dev_Wlan7_Securitycipher='c95',"
     "Dev_Wlan7_Wep_Type='c96',Dev_Wlan7_Wep_Value='c97',Dev_Wlan7_Psk_Type='c98',Dev_Wlan7_Psk_Value='c99',"),
    (" Dev_Wlan8_Enable='c100', Dev_Wlan8_Hide_Ssid='c101', Dev_Wlan8_Ssid='c102', Dev_Wlan8_VlanId='c103',"
     " Dev_Wlan8_Bssid='c104', Dev_Wlan8_Security='c105', Dev_Wlan8_Authmode='c106', Dev_Wlan8_Securitycipher='c107',"
     "Dev_Wlan8_Wep_Type='c108',Dev_Wlan8_Wep_Value='c109',Dev_Wlan8_Psk_Type='c110',Dev_Wlan8_Psk_Value='c111',"),
};

constexpr char reported_radios[] =
    " Dev_Wlan_Channel='c112', Dev_Wlan_Current_Channel='c113', Dev_Wlan_Isolate='c114', Dev_Wlan_Rate='c115',"
    " Dev_Wlan_Mode='c119', Dev_Wlan_Bw='c120', Dev_Wlan_Ampdu='c121', Dev_Wlan_Beacon_Inertval='c122',"
    " Dev_Wlan_Rts='c123', Dev_Wlan_Cts='c124', Dev_Wlan_ShortGI='c125', Dev_Wlan_Txpower='55',"
    " Dev_Wlan_MaxTxpower='c127', Dev_Wlan_Sta_Num='c128',  Dev_Wlan_RxOption='c129',  Dev_Wlan_MaxStaNum='c131', "
    " Dev_Wlan_CoverageThreshold='c130',  Dev_Wlan_Channel_sec='c132', Dev_Wlan_Current_Channel_sec='c133',"
    " Dev_Wlan_Isolate_sec='c134', Dev_Wlan_Rate_sec='c135', Dev_Wlan_Mode_sec='c139', Dev_Wlan_Bw_sec='c140',"
    " Dev_Wlan_Ampdu_sec='c141', Dev_Wlan_Beacon_Inertval_sec='c142', Dev_Wlan_Rts_sec='c143',"
    " Dev_Wlan_Cts_sec='c144', Dev_Wlan_ShortGI_sec='c145', Dev_Wlan_Txpower_sec='66',"
    " Dev_Wlan_MaxTxpower_sec='c147', Dev_Wlan_Sta_Num_sec='c148',  Dev_Wlan_RxOption_sec='c149', "
    " Dev_Wlan_MaxStaNum_sec='c151',  Dev_Wlan_CoverageThreshold_sec='c150', ";

constexpr char configured_device[] =
    " Dev_IP_Assign='c154', Dev_Ipaddress='192.168.1.20', Dev_IPSUM='3232235796', Dev_Subnet='c4',"
    " Dev_Wlan_GroupId='c14',";

const std::vector<std::string> configured_wlans = {
    (" Dev_Wlan1_Enable='c16', Dev_Wlan1_Hide_Ssid='c17', Dev_Wlan1_Ssid='c18', Dev_Wlan1_VlanId='c19',"
     " Dev_Wlan1_Security='c21', Dev_Wlan1_Authmode='c22', Dev_Wlan1_Securitycipher='c23',Dev_Wlan1_Wep_Type='c24',"
     "Dev_Wlan1_Wep_Value='c25',Dev_Wlan1_Psk_Type='c26',Dev_Wlan1_Psk_Value='c27',"),
    (" Dev_Wlan2_Enable='c28', Dev_Wlan2_Hide_Ssid='c29', Dev_Wlan2_Ssid='c30', Dev_Wlan2_VlanId='c31',"
     " Dev_Wlan2_Security='c33', Dev_Wlan2_Authmode='c34', Dev_Wlan2_Securitycipher='c35',Dev_Wlan2_Wep_Type='c36',"
     "Dev_Wlan2_Wep_Value='c37',Dev_Wlan2_Psk_Type='c38',Dev_Wlan2_Psk_Value='c39',"),
    (" Dev_Wlan3_Enable='c40', Dev_Wlan3_Hide_Ssid='c41', Dev_Wlan3_Ssid='c42', Dev_Wlan3_VlanId='c43',"
     " Dev_Wlan3_Security='c45', Dev_Wlan3_Authmode='c46', Dev_Wlan3_Securitycipher='c47',Dev_Wlan3_Wep_Type='c48',"
     "Dev_Wlan3_Wep_Value='c49',Dev_Wlan3_Psk_Type='c50',Dev_Wlan3_Psk_Value='c51',"),
    (" Dev_Wlan4_Enable='c52', Dev_Wlan4_Hide_Ssid='c53', Dev_Wlan4_Ssid='c54', Dev_Wlan4_VlanId='c55',"
     " Dev_Wlan4_Security='c57', Dev_Wlan4_Authmode='c58', Dev_Wlan4_Securitycipher='c59',Dev_Wlan4_Wep_Type='c60',"
     "Dev_Wlan4_Wep_Value='c61',Dev_Wlan4_Psk_Type='c62',Dev_Wlan4_Psk_Value='c63',"),
    (" Dev_Wlan5_Enable='c64', Dev_Wlan5_Hide_Ssid='c65', Dev_Wlan5_Ssid='c66', Dev_Wlan5_VlanId='c67',"
     " Dev_Wlan5_Security='c69', Dev_Wlan5_Authmode='c70', Dev_Wlan5_Securitycipher='c71',Dev_Wlan5_Wep_Type='c72',"
     "Dev_Wlan5_Wep_Value='c73',Dev_Wlan5_Psk_Type='c74',Dev_Wlan5_Psk_Value='c75',"),
    (" Dev_Wlan6_Enable='c76', Dev_Wlan6_Hide_Ssid='c77', Dev_Wlan6_Ssid='c78', Dev_Wlan6_VlanId='c79',"
     " Dev_Wlan6_Security='c81', Dev_Wlan6_Authmode='c82', Dev_Wlan6_Securitycipher='c83',Dev_Wlan6_Wep_Type='c84',"
     "Dev_Wlan6_Wep_Value='c85',Dev_Wlan6_Psk_Type='c86',Dev_Wlan6_Psk_Value='c87',"),
    (" Dev_Wlan7_Enable='c88', Dev_Wlan7_Hide_Ssid='c89', Dev_Wlan7_Ssid='c90', Dev_Wlan7_VlanId='c91',"
     " Dev_Wlan7_Security='c93', Dev_Wlan7_Authmode='c94', Dev_Wlan7_Securitycipher='c95',Dev_Wlan7_Wep_Type='c96',"
     "Dev_Wlan7_Wep_Value='c97',Dev_Wlan7_Psk_Type='c98',Dev_Wlan7_Psk_Value='c99',"),
    (" Dev_Wlan8_Enable='c100', Dev_Wlan8_Hide_Ssid='c101', Dev_Wlan8_Ssid='c102', Dev_Wlan8_VlanId='c103',"
     " Dev_Wlan8_Security='c105', Dev_Wlan8_Authmode='c106', Dev_Wlan8_Securitycipher='c107',"
     "Dev_Wlan8_Wep_Type='c108',Dev_Wlan8_Wep_Value='c109',Dev_Wlan8_Psk_Type='c110',Dev_Wlan8_Psk_Value='c111',"),
};

constexpr char configured_channel[] = " Dev_Wlan_Channel='c112',";

constexpr char configured_first_radio[] =
    " Dev_Wlan_Isolate='c114', Dev_Wlan_Mode='c119', Dev_Wlan_Bw='c120', Dev_Wlan_Ampdu='c121',"
    " Dev_Wlan_Beacon_Inertval='c122', Dev_Wlan_Rts='c123', Dev_Wlan_Cts='c124', Dev_Wlan_ShortGI='c125',"
    " Dev_Wlan_RxOption='c129',  Dev_Wlan_MaxStaNum='c131',  Dev_Wlan_CoverageThreshold='c130', "
    " Dev_Wlan_Channel_sec='c132',";

constexpr char configured_second_radio[] =
    " Dev_Wlan_Isolate_sec='c134', Dev_Wlan_Mode_sec='c139', Dev_Wlan_Bw_sec='c140', Dev_Wlan_Ampdu_sec='c141',"
    " Dev_Wlan_Beacon_Inertval_sec='c142', Dev_Wlan_Rts_sec='c143', Dev_Wlan_Cts_sec='c144',"
    " Dev_Wlan_ShortGI_sec='c145', Dev_Wlan_RxOption_sec='c149',  Dev_Wlan_MaxStaNum_sec='c151', "
    " Dev_Wlan_CoverageThreshold_sec='c150', ";

std::string first_of(const std::vector<std::string> &pieces, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += pieces.at(static_cast<std::size_t>(i));
    }
    return text;
}

/// What stands between the group and the state.
std::string reported_wireless(const std::string &wlan_count, int wlans) {
    return " Dev_Wlan_Radio_Num='" + wlan_count + "'," + first_of(reported_wlans, wlans) + reported_radios;
}

constexpr char reported_end[] = " Dev_Sys_TrapIP='c152'   where Dev_MAC='00:1a:2b:3c:4d:5e';";

}  // namespace

DevInfo sample_device(const std::string &wlan_count) {
    DevInfo device = record_of(tables::devices, numbered_row(tables::devices, "77"));
    places::put(device, "Dev_Ipaddress", "192.168.1.20");
    places::put(device, "Dev_MAC", "00:1a:2b:3c:4d:5e");
    places::put(device, "Dev_Wlan_Radio_Num", wlan_count);
    places::put(device, "Dev_Wlan_Txpower", "55");
    places::put(device, "Dev_Wlan_Txpower_sec", "66");
    return device;
}

std::string registration_of_new(const std::string &wlan_count, int wlans) {
    return std::string("update DevInfo set ") + reported_device + " Dev_Wlan_GroupId='0', " +
           reported_wireless(wlan_count, wlans) + " Dev_Status='1',  Dev_Upgrade_Status='0', " + reported_end;
}

std::string registration_of_known(const std::string &wlan_count, int wlans) {
    return std::string("update DevInfo set ") + reported_device + reported_wireless(wlan_count, wlans) +
           " Dev_Status='1',  Dev_Upgrade_Status='0', " + reported_end;
}

std::string saving(const std::string &wlan_count, int wlans) {
    return std::string("update DevInfo set ") + reported_device + " Dev_Wlan_GroupId='c14'," +
           reported_wireless(wlan_count, wlans) + reported_end;
}

std::string configuration(int wlans, const std::string &first_power, const std::string &second_power) {
    return std::string("update DevInfo set ") + configured_device + first_of(configured_wlans, wlans) +
           configured_channel + first_power + configured_first_radio + second_power + configured_second_radio +
           " Dev_Status='1'   where Dev_Sn='77'  ;";
}

std::vector<std::string> write_of(const std::string &sql) {
    return {support::build_profile.syncs_in_full ? "sqlite3_exec PRAGMA synchronous = FULL; "
                                                 : "sqlite3_exec PRAGMA synchronous = NORMAL; ",
            "sqlite3_exec PRAGMA page_size = 12000; ", "sqlite3_exec PRAGMA cache_size = 4000; ",
            "sqlite3_exec " + sql};
}

}  // namespace statements
