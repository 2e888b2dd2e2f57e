-- Main database: user rules, static DHCP bindings, AP inventory, WLAN groups.
--
-- Most tables are read with "select *" and by position, so the order of the
-- columns is as binding as their names. Text is stored as UTF-8.

PRAGMA encoding = 'UTF-8';

BEGIN;

-- Rule tables ---------------------------------------------------------------
--
-- weekday1..weekday7, status, ipcontrol and timecontrol are small numbers;
-- start_time and end_time are times of day, "HH:MM".

CREATE TABLE dhcpserverstaticbind (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    devtype INTEGER, mac TEXT, ip TEXT, mark TEXT
);

CREATE TABLE filter_url (
    Id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, url TEXT,
    timecontrol INTEGER, timegroup_id INTEGER,
    weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
    weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER,
    start_time TEXT, end_time TEXT,
    status INTEGER, mark TEXT
);

CREATE TABLE filter_mac (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, devmac TEXT,
    timecontrol INTEGER, timegroup_id INTEGER,
    weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
    weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER,
    start_time TEXT, end_time TEXT,
    status INTEGER, mark TEXT
);

-- Addresses and ports stand before the times here, although inserts name the
-- times first.
CREATE TABLE filter_ipport (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT,
    ipcontrol INTEGER, ipgroup_id INTEGER,
    devstartip TEXT, devendip TEXT,
    devfromport INTEGER, devtoport INTEGER, protocol INTEGER,
    timecontrol INTEGER, timegroup_id INTEGER,
    weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
    weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER,
    start_time TEXT, end_time TEXT,
    status INTEGER, mark TEXT
);

CREATE TABLE user_timegroup (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT,
    weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
    weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER,
    start_time TEXT, end_time TEXT, mark TEXT
);

CREATE TABLE user_ipgroup (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, startip TEXT, endip TEXT, mark TEXT
);

CREATE TABLE smartqos_whitelist (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    devmac TEXT, mark TEXT
);

CREATE TABLE user_urlinfo (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, url TEXT, mark TEXT
);

-- One access list per radio; all three alike.
CREATE TABLE wifi0acl (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, mac TEXT, status INTEGER, mark TEXT
);

CREATE TABLE wifi1acl (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, mac TEXT, status INTEGER, mark TEXT
);

CREATE TABLE wifi2acl (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, mac TEXT, status INTEGER, mark TEXT
);

-- The two irregular names are the tables' names.
CREATE TABLE famliymember (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, mac TEXT, devtype INTEGER, mark TEXT
);

CREATE TABLE forword_ipport (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, devip TEXT, protocol INTEGER,
    devinnerfromport INTEGER, devinnertoport INTEGER,
    devexternfromport INTEGER, devexterntoport INTEGER,
    wanid INTEGER, status INTEGER, mark TEXT
);

CREATE TABLE qos_rule (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, control_type INTEGER, devmac TEXT,
    ipcontrol INTEGER, ipgroup_id INTEGER,
    devstartip TEXT, devendip TEXT,
    timecontrol INTEGER, timegroup_id INTEGER,
    weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
    weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER,
    start_time TEXT, end_time TEXT,
    bw_up INTEGER, bw_down INTEGER, bw_shared_mode INTEGER,
    status INTEGER, mark TEXT
);

-- behavior_info: groups "class:feature?feature" joined by "AND".
CREATE TABLE behavior_rule (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    control_type INTEGER,
    ipcontrol INTEGER, ipgroup_id INTEGER,
    timecontrol INTEGER, timegroup_id INTEGER,
    devmac TEXT, devstartip TEXT, devendip TEXT,
    behavior_type INTEGER, behavior_info TEXT,
    weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
    weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER,
    start_time TEXT, end_time TEXT,
    status INTEGER, mark TEXT
);

CREATE TABLE domain_ip (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT, domain TEXT, ip TEXT, status INTEGER, mark TEXT
);

-- AP inventory --------------------------------------------------------------
--
-- One row per managed AP, 160 columns. Values are kept as text, numbers
-- included; only the serial number and the sort key are numbers. The first
-- radio carries WLAN 1 to 4, the second WLAN 5 to 8. The comments give the
-- positions.

CREATE TABLE DevInfo (
    -- 0..15: identity, addresses, firmware
    Dev_Sn INTEGER PRIMARY KEY, -- address as a number, network byte order
    Dev_Group TEXT, Dev_Name TEXT,
    Dev_Ipaddress TEXT, Dev_Subnet TEXT, Dev_Gateway TEXT, Dev_Dns1 TEXT, Dev_Dns2 TEXT,
    Dev_MAC TEXT, Dev_OnlineTime TEXT,
    Dev_SwName TEXT, Dev_SwVer TEXT, Dev_Manufacture TEXT, Dev_Model_Name TEXT,
    Dev_Wlan_GroupId TEXT, Dev_Wlan_Radio_Num TEXT,
    -- 16..27: WLAN 1
    Dev_Wlan1_Enable TEXT,         Dev_Wlan1_Hide_Ssid TEXT,      Dev_Wlan1_Ssid TEXT,
    Dev_Wlan1_VlanId TEXT,         Dev_Wlan1_Bssid TEXT,          Dev_Wlan1_Security TEXT,
    Dev_Wlan1_Authmode TEXT,       Dev_Wlan1_Securitycipher TEXT, Dev_Wlan1_Wep_Type TEXT,
    Dev_Wlan1_Wep_Value TEXT,      Dev_Wlan1_Psk_Type TEXT,       Dev_Wlan1_Psk_Value TEXT,
    -- 28..39: WLAN 2
    Dev_Wlan2_Enable TEXT,         Dev_Wlan2_Hide_Ssid TEXT,      Dev_Wlan2_Ssid TEXT,
    Dev_Wlan2_VlanId TEXT,         Dev_Wlan2_Bssid TEXT,          Dev_Wlan2_Security TEXT,
    Dev_Wlan2_Authmode TEXT,       Dev_Wlan2_Securitycipher TEXT, Dev_Wlan2_Wep_Type TEXT,
    Dev_Wlan2_Wep_Value TEXT,      Dev_Wlan2_Psk_Type TEXT,       Dev_Wlan2_Psk_Value TEXT,
    -- 40..51: WLAN 3
    Dev_Wlan3_Enable TEXT,         Dev_Wlan3_Hide_Ssid TEXT,      Dev_Wlan3_Ssid TEXT,
    Dev_Wlan3_VlanId TEXT,         Dev_Wlan3_Bssid TEXT,          Dev_Wlan3_Security TEXT,
    Dev_Wlan3_Authmode TEXT,       Dev_Wlan3_Securitycipher TEXT, Dev_Wlan3_Wep_Type TEXT,
    Dev_Wlan3_Wep_Value TEXT,      Dev_Wlan3_Psk_Type TEXT,       Dev_Wlan3_Psk_Value TEXT,
    -- 52..63: WLAN 4
    Dev_Wlan4_Enable TEXT,         Dev_Wlan4_Hide_Ssid TEXT,      Dev_Wlan4_Ssid TEXT,
    Dev_Wlan4_VlanId TEXT,         Dev_Wlan4_Bssid TEXT,          Dev_Wlan4_Security TEXT,
    Dev_Wlan4_Authmode TEXT,       Dev_Wlan4_Securitycipher TEXT, Dev_Wlan4_Wep_Type TEXT,
    Dev_Wlan4_Wep_Value TEXT,      Dev_Wlan4_Psk_Type TEXT,       Dev_Wlan4_Psk_Value TEXT,
    -- 64..75: WLAN 5
    Dev_Wlan5_Enable TEXT,         Dev_Wlan5_Hide_Ssid TEXT,      Dev_Wlan5_Ssid TEXT,
    Dev_Wlan5_VlanId TEXT,         Dev_Wlan5_Bssid TEXT,          Dev_Wlan5_Security TEXT,
    Dev_Wlan5_Authmode TEXT,       Dev_Wlan5_Securitycipher TEXT, Dev_Wlan5_Wep_Type TEXT,
    Dev_Wlan5_Wep_Value TEXT,      Dev_Wlan5_Psk_Type TEXT,       Dev_Wlan5_Psk_Value TEXT,
    -- 76..87: WLAN 6
    Dev_Wlan6_Enable TEXT,         Dev_Wlan6_Hide_Ssid TEXT,      Dev_Wlan6_Ssid TEXT,
    Dev_Wlan6_VlanId TEXT,         Dev_Wlan6_Bssid TEXT,          Dev_Wlan6_Security TEXT,
    Dev_Wlan6_Authmode TEXT,       Dev_Wlan6_Securitycipher TEXT, Dev_Wlan6_Wep_Type TEXT,
    Dev_Wlan6_Wep_Value TEXT,      Dev_Wlan6_Psk_Type TEXT,       Dev_Wlan6_Psk_Value TEXT,
    -- 88..99: WLAN 7
    Dev_Wlan7_Enable TEXT,         Dev_Wlan7_Hide_Ssid TEXT,      Dev_Wlan7_Ssid TEXT,
    Dev_Wlan7_VlanId TEXT,         Dev_Wlan7_Bssid TEXT,          Dev_Wlan7_Security TEXT,
    Dev_Wlan7_Authmode TEXT,       Dev_Wlan7_Securitycipher TEXT, Dev_Wlan7_Wep_Type TEXT,
    Dev_Wlan7_Wep_Value TEXT,      Dev_Wlan7_Psk_Type TEXT,       Dev_Wlan7_Psk_Value TEXT,
    -- 100..111: WLAN 8
    Dev_Wlan8_Enable TEXT,         Dev_Wlan8_Hide_Ssid TEXT,      Dev_Wlan8_Ssid TEXT,
    Dev_Wlan8_VlanId TEXT,         Dev_Wlan8_Bssid TEXT,          Dev_Wlan8_Security TEXT,
    Dev_Wlan8_Authmode TEXT,       Dev_Wlan8_Securitycipher TEXT, Dev_Wlan8_Wep_Type TEXT,
    Dev_Wlan8_Wep_Value TEXT,      Dev_Wlan8_Psk_Type TEXT,       Dev_Wlan8_Psk_Value TEXT,
    -- 112..131: first radio (116..118 are not read)
    Dev_Wlan_Channel TEXT, Dev_Wlan_Current_Channel TEXT, Dev_Wlan_Isolate TEXT,
    Dev_Wlan_Rate TEXT, Dev_Wlan_Preamble TEXT, Dev_Wlan_Wmm TEXT, Dev_Wlan_Dtim TEXT,
    Dev_Wlan_Mode TEXT, Dev_Wlan_Bw TEXT, Dev_Wlan_Ampdu TEXT, Dev_Wlan_Beacon_Inertval TEXT,
    Dev_Wlan_Rts TEXT, Dev_Wlan_Cts TEXT, Dev_Wlan_ShortGI TEXT,
    Dev_Wlan_Txpower TEXT, Dev_Wlan_MaxTxpower TEXT, Dev_Wlan_Sta_Num TEXT,
    Dev_Wlan_RxOption TEXT, Dev_Wlan_CoverageThreshold TEXT, Dev_Wlan_MaxStaNum TEXT,
    -- 132..151: second radio (136..138 are not read)
    Dev_Wlan_Channel_sec TEXT, Dev_Wlan_Current_Channel_sec TEXT, Dev_Wlan_Isolate_sec TEXT,
    Dev_Wlan_Rate_sec TEXT, Dev_Wlan_Preamble_sec TEXT, Dev_Wlan_Wmm_sec TEXT, Dev_Wlan_Dtim_sec TEXT,
    Dev_Wlan_Mode_sec TEXT, Dev_Wlan_Bw_sec TEXT, Dev_Wlan_Ampdu_sec TEXT, Dev_Wlan_Beacon_Inertval_sec TEXT,
    Dev_Wlan_Rts_sec TEXT, Dev_Wlan_Cts_sec TEXT, Dev_Wlan_ShortGI_sec TEXT,
    Dev_Wlan_Txpower_sec TEXT, Dev_Wlan_MaxTxpower_sec TEXT, Dev_Wlan_Sta_Num_sec TEXT,
    Dev_Wlan_RxOption_sec TEXT, Dev_Wlan_CoverageThreshold_sec TEXT, Dev_Wlan_MaxStaNum_sec TEXT,
    -- 152..159: state of the AP
    Dev_Sys_TrapIP TEXT, Dev_Status TEXT, Dev_IP_Assign TEXT,
    Dev_IPSUM INTEGER, -- address as a number, host byte order: the order of every list
    Dev_CurrentDateTime TEXT, Dev_RebootTime_Enable TEXT, Dev_RebootTime TEXT, Dev_Upgrade_Status TEXT
);

-- Firmware images waiting to go out, keyed by their name.
CREATE TABLE DevUpgradeInfo (
    Dev_Description TEXT, -- at most 99 characters
    Dev_SwName TEXT,
    Dev_ApList TEXT       -- the APs that are to get it
);

-- WLAN groups ---------------------------------------------------------------
--
-- Group numbers are not unique by force: two programs that save a new group at
-- the same moment may draw the same number.

CREATE TABLE WlanGroupInfo (
    WlanGroup_Id INTEGER, WlanGroup_Name TEXT, -- 0, 1
    -- 2..12: WLAN 1
    WlanGroup_Wlan1_Enable TEXT,         WlanGroup_Wlan1_Hide_Ssid TEXT,      WlanGroup_Wlan1_Ssid TEXT,
    WlanGroup_Wlan1_VlanId TEXT,         WlanGroup_Wlan1_Security TEXT,       WlanGroup_Wlan1_Authmode TEXT,
    WlanGroup_Wlan1_Securitycipher TEXT, WlanGroup_Wlan1_Wep_Type TEXT,       WlanGroup_Wlan1_Wep_Value TEXT,
    WlanGroup_Wlan1_Psk_Type TEXT,       WlanGroup_Wlan1_Psk_Value TEXT,
    -- 13..23: WLAN 2
    WlanGroup_Wlan2_Enable TEXT,         WlanGroup_Wlan2_Hide_Ssid TEXT,      WlanGroup_Wlan2_Ssid TEXT,
    WlanGroup_Wlan2_VlanId TEXT,         WlanGroup_Wlan2_Security TEXT,       WlanGroup_Wlan2_Authmode TEXT,
    WlanGroup_Wlan2_Securitycipher TEXT, WlanGroup_Wlan2_Wep_Type TEXT,       WlanGroup_Wlan2_Wep_Value TEXT,
    WlanGroup_Wlan2_Psk_Type TEXT,       WlanGroup_Wlan2_Psk_Value TEXT,
    -- 24..34: WLAN 3
    WlanGroup_Wlan3_Enable TEXT,         WlanGroup_Wlan3_Hide_Ssid TEXT,      WlanGroup_Wlan3_Ssid TEXT,
    WlanGroup_Wlan3_VlanId TEXT,         WlanGroup_Wlan3_Security TEXT,       WlanGroup_Wlan3_Authmode TEXT,
    WlanGroup_Wlan3_Securitycipher TEXT, WlanGroup_Wlan3_Wep_Type TEXT,       WlanGroup_Wlan3_Wep_Value TEXT,
    WlanGroup_Wlan3_Psk_Type TEXT,       WlanGroup_Wlan3_Psk_Value TEXT,
    -- 35..45: WLAN 4
    WlanGroup_Wlan4_Enable TEXT,         WlanGroup_Wlan4_Hide_Ssid TEXT,      WlanGroup_Wlan4_Ssid TEXT,
    WlanGroup_Wlan4_VlanId TEXT,         WlanGroup_Wlan4_Security TEXT,       WlanGroup_Wlan4_Authmode TEXT,
    WlanGroup_Wlan4_Securitycipher TEXT, WlanGroup_Wlan4_Wep_Type TEXT,       WlanGroup_Wlan4_Wep_Value TEXT,
    WlanGroup_Wlan4_Psk_Type TEXT,       WlanGroup_Wlan4_Psk_Value TEXT,
    -- 46..56: WLAN 5
    WlanGroup_Wlan5_Enable TEXT,         WlanGroup_Wlan5_Hide_Ssid TEXT,      WlanGroup_Wlan5_Ssid TEXT,
    WlanGroup_Wlan5_VlanId TEXT,         WlanGroup_Wlan5_Security TEXT,       WlanGroup_Wlan5_Authmode TEXT,
    WlanGroup_Wlan5_Securitycipher TEXT, WlanGroup_Wlan5_Wep_Type TEXT,       WlanGroup_Wlan5_Wep_Value TEXT,
    WlanGroup_Wlan5_Psk_Type TEXT,       WlanGroup_Wlan5_Psk_Value TEXT,
    -- 57..67: WLAN 6
    WlanGroup_Wlan6_Enable TEXT,         WlanGroup_Wlan6_Hide_Ssid TEXT,      WlanGroup_Wlan6_Ssid TEXT,
    WlanGroup_Wlan6_VlanId TEXT,         WlanGroup_Wlan6_Security TEXT,       WlanGroup_Wlan6_Authmode TEXT,
    WlanGroup_Wlan6_Securitycipher TEXT, WlanGroup_Wlan6_Wep_Type TEXT,       WlanGroup_Wlan6_Wep_Value TEXT,
    WlanGroup_Wlan6_Psk_Type TEXT,       WlanGroup_Wlan6_Psk_Value TEXT,
    -- 68..78: WLAN 7
    WlanGroup_Wlan7_Enable TEXT,         WlanGroup_Wlan7_Hide_Ssid TEXT,      WlanGroup_Wlan7_Ssid TEXT,
    WlanGroup_Wlan7_VlanId TEXT,         WlanGroup_Wlan7_Security TEXT,       WlanGroup_Wlan7_Authmode TEXT,
    WlanGroup_Wlan7_Securitycipher TEXT, WlanGroup_Wlan7_Wep_Type TEXT,       WlanGroup_Wlan7_Wep_Value TEXT,
    WlanGroup_Wlan7_Psk_Type TEXT,       WlanGroup_Wlan7_Psk_Value TEXT,
    -- 79..89: WLAN 8
    WlanGroup_Wlan8_Enable TEXT,         WlanGroup_Wlan8_Hide_Ssid TEXT,      WlanGroup_Wlan8_Ssid TEXT,
    WlanGroup_Wlan8_VlanId TEXT,         WlanGroup_Wlan8_Security TEXT,       WlanGroup_Wlan8_Authmode TEXT,
    WlanGroup_Wlan8_Securitycipher TEXT, WlanGroup_Wlan8_Wep_Type TEXT,       WlanGroup_Wlan8_Wep_Value TEXT,
    WlanGroup_Wlan8_Psk_Type TEXT,       WlanGroup_Wlan8_Psk_Value TEXT,
    -- 90..105: first radio (93..95 are not read)
    WlanGroup_Wlan_Channel TEXT, WlanGroup_Wlan_Isolate TEXT, WlanGroup_Wlan_Rate TEXT,
    WlanGroup_Wlan_Radius_ServerIP TEXT, WlanGroup_Wlan_Radius_ServerPort TEXT, WlanGroup_Wlan_Radius_Sharekey TEXT,
    WlanGroup_Wlan_Mode TEXT, WlanGroup_Wlan_Bw TEXT, WlanGroup_Wlan_Ampdu TEXT,
    WlanGroup_Wlan_Beacon_Interval TEXT, WlanGroup_Wlan_Rts TEXT, WlanGroup_Wlan_Cts TEXT,
    WlanGroup_Wlan_ShortGI TEXT, WlanGroup_Wlan_RevOption TEXT,
    WlanGroup_Wlan_CoverageThreshold TEXT, WlanGroup_Wlan_MaxStaNum TEXT,
    -- 106..121: second radio (109..111 are not read)
    WlanGroup_Wlan_Channel_sec TEXT, WlanGroup_Wlan_Isolate_sec TEXT, WlanGroup_Wlan_Rate_sec TEXT,
    WlanGroup_Wlan_Radius_ServerIP_sec TEXT, WlanGroup_Wlan_Radius_ServerPort_sec TEXT,
    WlanGroup_Wlan_Radius_Sharekey_sec TEXT,
    WlanGroup_Wlan_Mode_sec TEXT, WlanGroup_Wlan_Bw_sec TEXT, WlanGroup_Wlan_Ampdu_sec TEXT,
    WlanGroup_Wlan_Beacon_Interval_sec TEXT, WlanGroup_Wlan_Rts_sec TEXT, WlanGroup_Wlan_Cts_sec TEXT,
    WlanGroup_Wlan_ShortGI_sec TEXT, WlanGroup_Wlan_RevOption_sec TEXT,
    WlanGroup_Wlan_CoverageThreshold_sec TEXT, WlanGroup_Wlan_MaxStaNum_sec TEXT
);

-- The same 122 columns, then four more.
CREATE TABLE WlanZeroCfgGroupInfo (
    WlanGroup_Id INTEGER, WlanGroup_Name TEXT, -- 0, 1
    -- 2..12: WLAN 1
    WlanGroup_Wlan1_Enable TEXT,         WlanGroup_Wlan1_Hide_Ssid TEXT,      WlanGroup_Wlan1_Ssid TEXT,
    WlanGroup_Wlan1_VlanId TEXT,         WlanGroup_Wlan1_Security TEXT,       WlanGroup_Wlan1_Authmode TEXT,
    WlanGroup_Wlan1_Securitycipher TEXT, WlanGroup_Wlan1_Wep_Type TEXT,       WlanGroup_Wlan1_Wep_Value TEXT,
    WlanGroup_Wlan1_Psk_Type TEXT,       WlanGroup_Wlan1_Psk_Value TEXT,
    -- 13..23: WLAN 2
    WlanGroup_Wlan2_Enable TEXT,         WlanGroup_Wlan2_Hide_Ssid TEXT,      WlanGroup_Wlan2_Ssid TEXT,
    WlanGroup_Wlan2_VlanId TEXT,         WlanGroup_Wlan2_Security TEXT,       WlanGroup_Wlan2_Authmode TEXT,
    WlanGroup_Wlan2_Securitycipher TEXT, WlanGroup_Wlan2_Wep_Type TEXT,       WlanGroup_Wlan2_Wep_Value TEXT,
    WlanGroup_Wlan2_Psk_Type TEXT,       WlanGroup_Wlan2_Psk_Value TEXT,
    -- 24..34: WLAN 3
    WlanGroup_Wlan3_Enable TEXT,         WlanGroup_Wlan3_Hide_Ssid TEXT,      WlanGroup_Wlan3_Ssid TEXT,
    WlanGroup_Wlan3_VlanId TEXT,         WlanGroup_Wlan3_Security TEXT,       WlanGroup_Wlan3_Authmode TEXT,
    WlanGroup_Wlan3_Securitycipher TEXT, WlanGroup_Wlan3_Wep_Type TEXT,       WlanGroup_Wlan3_Wep_Value TEXT,
    WlanGroup_Wlan3_Psk_Type TEXT,       WlanGroup_Wlan3_Psk_Value TEXT,
    -- 35..45: WLAN 4
    WlanGroup_Wlan4_Enable TEXT,         WlanGroup_Wlan4_Hide_Ssid TEXT,      WlanGroup_Wlan4_Ssid TEXT,
    WlanGroup_Wlan4_VlanId TEXT,         WlanGroup_Wlan4_Security TEXT,       WlanGroup_Wlan4_Authmode TEXT,
    WlanGroup_Wlan4_Securitycipher TEXT, WlanGroup_Wlan4_Wep_Type TEXT,       WlanGroup_Wlan4_Wep_Value TEXT,
    WlanGroup_Wlan4_Psk_Type TEXT,       WlanGroup_Wlan4_Psk_Value TEXT,
    -- 46..56: WLAN 5
    WlanGroup_Wlan5_Enable TEXT,         WlanGroup_Wlan5_Hide_Ssid TEXT,      WlanGroup_Wlan5_Ssid TEXT,
    WlanGroup_Wlan5_VlanId TEXT,         WlanGroup_Wlan5_Security TEXT,       WlanGroup_Wlan5_Authmode TEXT,
    WlanGroup_Wlan5_Securitycipher TEXT, WlanGroup_Wlan5_Wep_Type TEXT,       WlanGroup_Wlan5_Wep_Value TEXT,
    WlanGroup_Wlan5_Psk_Type TEXT,       WlanGroup_Wlan5_Psk_Value TEXT,
    -- 57..67: WLAN 6
    WlanGroup_Wlan6_Enable TEXT,         WlanGroup_Wlan6_Hide_Ssid TEXT,      WlanGroup_Wlan6_Ssid TEXT,
    WlanGroup_Wlan6_VlanId TEXT,         WlanGroup_Wlan6_Security TEXT,       WlanGroup_Wlan6_Authmode TEXT,
    WlanGroup_Wlan6_Securitycipher TEXT, WlanGroup_Wlan6_Wep_Type TEXT,       WlanGroup_Wlan6_Wep_Value TEXT,
    WlanGroup_Wlan6_Psk_Type TEXT,       WlanGroup_Wlan6_Psk_Value TEXT,
    -- 68..78: WLAN 7
    WlanGroup_Wlan7_Enable TEXT,         WlanGroup_Wlan7_Hide_Ssid TEXT,      WlanGroup_Wlan7_Ssid TEXT,
    WlanGroup_Wlan7_VlanId TEXT,         WlanGroup_Wlan7_Security TEXT,       WlanGroup_Wlan7_Authmode TEXT,
    WlanGroup_Wlan7_Securitycipher TEXT, WlanGroup_Wlan7_Wep_Type TEXT,       WlanGroup_Wlan7_Wep_Value TEXT,
    WlanGroup_Wlan7_Psk_Type TEXT,       WlanGroup_Wlan7_Psk_Value TEXT,
    -- 79..89: WLAN 8
    WlanGroup_Wlan8_Enable TEXT,         WlanGroup_Wlan8_Hide_Ssid TEXT,      WlanGroup_Wlan8_Ssid TEXT,
    WlanGroup_Wlan8_VlanId TEXT,         WlanGroup_Wlan8_Security TEXT,       WlanGroup_Wlan8_Authmode TEXT,
    WlanGroup_Wlan8_Securitycipher TEXT, WlanGroup_Wlan8_Wep_Type TEXT,       WlanGroup_Wlan8_Wep_Value TEXT,
    WlanGroup_Wlan8_Psk_Type TEXT,       WlanGroup_Wlan8_Psk_Value TEXT,
    -- 90..105: first radio (93..95 are not read)
    WlanGroup_Wlan_Channel TEXT, WlanGroup_Wlan_Isolate TEXT, WlanGroup_Wlan_Rate TEXT,
    WlanGroup_Wlan_Radius_ServerIP TEXT, WlanGroup_Wlan_Radius_ServerPort TEXT, WlanGroup_Wlan_Radius_Sharekey TEXT,
    WlanGroup_Wlan_Mode TEXT, WlanGroup_Wlan_Bw TEXT, WlanGroup_Wlan_Ampdu TEXT,
    WlanGroup_Wlan_Beacon_Interval TEXT, WlanGroup_Wlan_Rts TEXT, WlanGroup_Wlan_Cts TEXT,
    WlanGroup_Wlan_ShortGI TEXT, WlanGroup_Wlan_RevOption TEXT,
    WlanGroup_Wlan_CoverageThreshold TEXT, WlanGroup_Wlan_MaxStaNum TEXT,
    -- 106..121: second radio (109..111 are not read)
    WlanGroup_Wlan_Channel_sec TEXT, WlanGroup_Wlan_Isolate_sec TEXT, WlanGroup_Wlan_Rate_sec TEXT,
    WlanGroup_Wlan_Radius_ServerIP_sec TEXT, WlanGroup_Wlan_Radius_ServerPort_sec TEXT,
    WlanGroup_Wlan_Radius_Sharekey_sec TEXT,
    WlanGroup_Wlan_Mode_sec TEXT, WlanGroup_Wlan_Bw_sec TEXT, WlanGroup_Wlan_Ampdu_sec TEXT,
    WlanGroup_Wlan_Beacon_Interval_sec TEXT, WlanGroup_Wlan_Rts_sec TEXT, WlanGroup_Wlan_Cts_sec TEXT,
    WlanGroup_Wlan_ShortGI_sec TEXT, WlanGroup_Wlan_RevOption_sec TEXT,
    WlanGroup_Wlan_CoverageThreshold_sec TEXT, WlanGroup_Wlan_MaxStaNum_sec TEXT,
    -- 122..125: reboot schedule and transmit power
    WlanGroup_Dev_RebootTime_Enable TEXT, WlanGroup_Dev_RebootTime TEXT,
    WlanGroup_Wlan_Txpower TEXT, WlanGroup_Wlan_Txpower_sec TEXT
);

-- Applications of the traffic classifier ------------------------------------
--
-- The feature list of a class is read from here; everything else about
-- applications comes from the catalogue database, which has the same table.

CREATE TABLE App_Info (
    Id INTEGER PRIMARY KEY,
    Class_Id INTEGER, Name TEXT, Name_En TEXT, Features TEXT, Mark TEXT
);

COMMIT;
