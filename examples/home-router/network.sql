-- What the router knows before the tour: devices of the house with addresses of their own.
insert into dhcpserverstaticbind(devtype, mac, ip, mark) values
    (1, '3C:5A:B4:10:00:01', '192.168.1.10', '客厅电视 Living room TV'),
    (2, '3C:5A:B4:10:00:02', '192.168.1.11', '书房打印机 Printer'),
    (3, '3C:5A:B4:10:00:03', '192.168.1.12', 'Network storage');

-- The WLAN group that access points of the house follow.
insert into WlanGroupInfo(WlanGroup_Id, WlanGroup_Name,
    WlanGroup_Wlan1_Enable, WlanGroup_Wlan1_Ssid, WlanGroup_Wlan1_Authmode, WlanGroup_Wlan1_Psk_Value,
    WlanGroup_Wlan2_Enable, WlanGroup_Wlan2_Ssid, WlanGroup_Wlan_Isolate, WlanGroup_Wlan_Beacon_Interval) values
    (1, 'House 家', '1', 'Home', '1', 'correct horse', '1', '访客 Guests', '1', '100');
