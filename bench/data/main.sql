-- Grows the network of the demo to full size: 20 access points with every column filled, 128 rules in each of two
-- tables, 8 time groups, 8 zero-configuration groups.

create temporary table digit(n);
with recursive counted(n) as (values (1) union all select n + 1 from counted where n < 128)
insert into digit select n from counted;

-- Access points. One statement for all eight networks would have 96 assignments; what a network has is the same in
-- each but for name and address.
update DevInfo set Dev_Subnet = '255.255.255.0', Dev_Gateway = '192.168.1.1', Dev_Dns1 = '192.168.1.1',
    Dev_Dns2 = '192.168.1.2', Dev_Manufacture = 'Example Networks', Dev_Sys_TrapIP = '192.168.1.1',
    Dev_IP_Assign = '0', Dev_CurrentDateTime = '2026-03-21 08:00:00', Dev_Upgrade_Status = '0',
    Dev_Wlan_Radio_Num = '8', Dev_Wlan_GroupId = '1',
    Dev_Wlan_Isolate = '0', Dev_Wlan_Rate = '0', Dev_Wlan_Mode = '9', Dev_Wlan_Bw = '1', Dev_Wlan_Ampdu = '1',
    Dev_Wlan_Beacon_Inertval = '100', Dev_Wlan_Rts = '2347', Dev_Wlan_Cts = '0', Dev_Wlan_ShortGI = '1',
    Dev_Wlan_MaxTxpower = '100', Dev_Wlan_RxOption = '0', Dev_Wlan_CoverageThreshold = '-95', Dev_Wlan_MaxStaNum = '64',
    Dev_Wlan_Isolate_sec = '0', Dev_Wlan_Rate_sec = '0', Dev_Wlan_Mode_sec = '14', Dev_Wlan_Bw_sec = '2',
    Dev_Wlan_Ampdu_sec = '1', Dev_Wlan_Beacon_Inertval_sec = '100', Dev_Wlan_Rts_sec = '2347', Dev_Wlan_Cts_sec = '0',
    Dev_Wlan_ShortGI_sec = '1', Dev_Wlan_MaxTxpower_sec = '80', Dev_Wlan_RxOption_sec = '0',
    Dev_Wlan_CoverageThreshold_sec = '-95', Dev_Wlan_MaxStaNum_sec = '64';
update DevInfo set Dev_Wlan1_Enable = '1', Dev_Wlan1_Hide_Ssid = '0', Dev_Wlan1_Ssid = 'Hotel 酒店',
    Dev_Wlan1_VlanId = '10', Dev_Wlan1_Bssid = '3C:5A:B4:30:00:01', Dev_Wlan1_Security = '3',
    Dev_Wlan1_Authmode = '4', Dev_Wlan1_Securitycipher = '2', Dev_Wlan1_Wep_Type = '0', Dev_Wlan1_Wep_Value = '',
    Dev_Wlan1_Psk_Type = '0', Dev_Wlan1_Psk_Value = 'correct horse 1';
update DevInfo set Dev_Wlan2_Enable = '1', Dev_Wlan2_Hide_Ssid = '0', Dev_Wlan2_Ssid = '访客网络 ' || Dev_Sn % 100,
    Dev_Wlan2_VlanId = '20', Dev_Wlan2_Bssid = '3C:5A:B4:30:00:02', Dev_Wlan2_Security = '3',
    Dev_Wlan2_Authmode = '4', Dev_Wlan2_Securitycipher = '2', Dev_Wlan2_Wep_Type = '0', Dev_Wlan2_Wep_Value = '',
    Dev_Wlan2_Psk_Type = '0', Dev_Wlan2_Psk_Value = 'correct horse 2';
update DevInfo set Dev_Wlan3_Enable = '1', Dev_Wlan3_Hide_Ssid = '0', Dev_Wlan3_Ssid = '会议室 Meetings',
    Dev_Wlan3_VlanId = '30', Dev_Wlan3_Bssid = '3C:5A:B4:30:00:03', Dev_Wlan3_Security = '3',
    Dev_Wlan3_Authmode = '4', Dev_Wlan3_Securitycipher = '2', Dev_Wlan3_Wep_Type = '0', Dev_Wlan3_Wep_Value = '',
    Dev_Wlan3_Psk_Type = '0', Dev_Wlan3_Psk_Value = 'correct horse 3';
update DevInfo set Dev_Wlan4_Enable = '1', Dev_Wlan4_Hide_Ssid = '0', Dev_Wlan4_Ssid = '办公室',
    Dev_Wlan4_VlanId = '40', Dev_Wlan4_Bssid = '3C:5A:B4:30:00:04', Dev_Wlan4_Security = '3',
    Dev_Wlan4_Authmode = '4', Dev_Wlan4_Securitycipher = '2', Dev_Wlan4_Wep_Type = '0', Dev_Wlan4_Wep_Value = '',
    Dev_Wlan4_Psk_Type = '0', Dev_Wlan4_Psk_Value = 'correct horse 4';
update DevInfo set Dev_Wlan5_Enable = '1', Dev_Wlan5_Hide_Ssid = '0', Dev_Wlan5_Ssid = 'Hotel 5G',
    Dev_Wlan5_VlanId = '50', Dev_Wlan5_Bssid = '3C:5A:B4:30:00:05', Dev_Wlan5_Security = '3',
    Dev_Wlan5_Authmode = '4', Dev_Wlan5_Securitycipher = '2', Dev_Wlan5_Wep_Type = '0', Dev_Wlan5_Wep_Value = '',
    Dev_Wlan5_Psk_Type = '0', Dev_Wlan5_Psk_Value = 'correct horse 5';
update DevInfo set Dev_Wlan6_Enable = '1', Dev_Wlan6_Hide_Ssid = '0', Dev_Wlan6_Ssid = '访客网络 5G',
    Dev_Wlan6_VlanId = '60', Dev_Wlan6_Bssid = '3C:5A:B4:30:00:06', Dev_Wlan6_Security = '3',
    Dev_Wlan6_Authmode = '4', Dev_Wlan6_Securitycipher = '2', Dev_Wlan6_Wep_Type = '0', Dev_Wlan6_Wep_Value = '',
    Dev_Wlan6_Psk_Type = '0', Dev_Wlan6_Psk_Value = 'correct horse 6';
update DevInfo set Dev_Wlan7_Enable = '1', Dev_Wlan7_Hide_Ssid = '0', Dev_Wlan7_Ssid = '会议室 5G',
    Dev_Wlan7_VlanId = '70', Dev_Wlan7_Bssid = '3C:5A:B4:30:00:07', Dev_Wlan7_Security = '3',
    Dev_Wlan7_Authmode = '4', Dev_Wlan7_Securitycipher = '2', Dev_Wlan7_Wep_Type = '0', Dev_Wlan7_Wep_Value = '',
    Dev_Wlan7_Psk_Type = '0', Dev_Wlan7_Psk_Value = 'correct horse 7';
update DevInfo set Dev_Wlan8_Enable = '1', Dev_Wlan8_Hide_Ssid = '0', Dev_Wlan8_Ssid = '办公室 5G',
    Dev_Wlan8_VlanId = '80', Dev_Wlan8_Bssid = '3C:5A:B4:30:00:08', Dev_Wlan8_Security = '3',
    Dev_Wlan8_Authmode = '4', Dev_Wlan8_Securitycipher = '2', Dev_Wlan8_Wep_Type = '0', Dev_Wlan8_Wep_Value = '',
    Dev_Wlan8_Psk_Type = '0', Dev_Wlan8_Psk_Value = 'correct horse 8';

-- Five more zero-configuration groups beside the demo's three.
insert into WlanZeroCfgGroupInfo select * from WlanZeroCfgGroupInfo where WlanGroup_Id = 1;
update WlanZeroCfgGroupInfo set WlanGroup_Id = 4, WlanGroup_Name = 'Group 4' where rowid = 4;
insert into WlanZeroCfgGroupInfo select * from WlanZeroCfgGroupInfo where WlanGroup_Id <= 4;
update WlanZeroCfgGroupInfo set WlanGroup_Id = rowid, WlanGroup_Name = 'Group ' || rowid where rowid > 4;

-- Rules, in place of the page's. Every other one references one of eight time groups.
delete from filter_url;
delete from user_timegroup;
insert into user_timegroup(id, name, weekday1, weekday2, weekday3, weekday4, weekday5, weekday6, weekday7,
    start_time, end_time, mark)
select n, 'School nights 上学日 ' || n, 1, 1, 1, 1, 1, 0, 0, '20:30', '23:' || (50 + n), '' from digit where n <= 8;

insert into filter_url(Id, name, url, timecontrol, timegroup_id, weekday1, weekday2, weekday3, weekday4, weekday5,
    weekday6, weekday7, start_time, end_time, status, mark)
select n, 'No videos 视频 ' || n, 'video-' || n || '.example/watch', 1 + n % 2, iif(n % 2, 1 + n / 2 % 8, 0),
    1, 1, 1, 1, 0, 0, 0, '16:00', '17:30', 1, 'Rule ' || n from digit;

-- Each behaviour rule names ten applications, two classes of five.
insert into behavior_rule(id, control_type, ipcontrol, ipgroup_id, timecontrol, timegroup_id, devmac, devstartip,
    devendip, behavior_type, behavior_info, weekday1, weekday2, weekday3, weekday4, weekday5, weekday6, weekday7,
    start_time, end_time, status, mark)
select n, 1, 1, 0, 1, 0, printf('3C:5A:B4:10:00:%02X', n % 32), '', '', 0,
    printf('%d:app-%d-1?app-%d-2?app-%d-3?app-%d-4?app-%d-5AND%d:app-%d-1?app-%d-2?app-%d-3?app-%d-4?app-%d-5',
        a, a, a, a, a, a, b, b, b, b, b, b),
    1, 1, 1, 1, 1, 0, 0, '18:00', '22:00', 1, 'Rule ' || n
from (select n, 1 + n % 30 as a, 1 + (n + 7) % 30 as b from digit);

drop table digit;
