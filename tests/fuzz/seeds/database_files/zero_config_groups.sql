insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name,WlanGroup_Wlan2_Ssid) values(1,'de"fault','中文'),(2,'',NULL);
