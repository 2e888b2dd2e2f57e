insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC,Dev_Ipaddress,Dev_Status,Dev_Wlan2_Ssid) values(1,'k"tchen','00:00:00:00:00:01','10.0.0.1','1','中文'),(2,x'ff',NULL,'10.0.0.2','0','');
