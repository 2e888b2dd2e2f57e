-- Texts longer than their members.
insert into DevInfo(Dev_Sn,Dev_Name,Dev_Group,Dev_MAC,Dev_Ipaddress,Dev_Status,Dev_Upgrade_Status,Dev_Wlan2_Ssid,
        Dev_Wlan3_Psk_Value,Dev_SwVer,Dev_RebootTime)
    values(1,printf('%.300c','n'),printf('%.300c','"'),printf('%.40c','m'),printf('%.40c','1'),'123456','1234567890123456789012345',
        replace(printf('%.60c','x'),'x','中'),printf('%.300c','p'),x'e4b8',printf('%.60c',char(1)));
