-- A small hotel: 20 access points, some of them offline, three zero-configuration groups, and rules for what the house
-- keeps from its guests. stations.txt has the stations that are counted here.

create temporary table place(n, name, radios, status, stations, stations_sec, channel, channel_sec, since);
insert into place values
    (11, 'Lobby 大堂', 8, '1', '6', '11', '1', '36', '2026-03-20 08:47:22'),
    (12, 'Reception 前台', 8, '1', '2', '3', '6', '44', '2026-02-28 13:18:09'),
    (13, 'Restaurant 餐厅', 8, '1', '7', '12', '11', '149', '2026-02-16 17:49:16'),
    (14, 'Kitchen 厨房', 4, '1', '3', '0', '1', '', '2026-02-18 17:17:15'),
    (15, 'Terrace 露台', 8, '1', '2', '5', '6', '36', '2026-02-10 23:33:01'),
    (16, 'Library 图书室', 8, '1', '1', '4', '11', '44', '2026-02-11 23:27:04'),
    (17, 'Meeting room 会议室', 8, '1', '0', '9', '1', '149', '2026-02-16 15:22:41'),
    (18, 'Garden 花园', 4, '0', '0', '0', '6', '', '2026-01-07 23:11:25'),
    (19, 'Pool 泳池', 4, '1', '4', '0', '11', '', '2026-01-04 01:02:11'),
    (20, 'Gym 健身房', 8, '1', '2', '6', '1', '44', '2026-02-16 01:22:59'),
    (21, 'First floor east 一楼东', 8, '1', '3', '5', '6', '149', '2026-02-08 20:03:31'),
    (22, 'First floor west 一楼西', 8, '1', '2', '4', '11', '157', '2026-01-01 09:41:48'),
    (23, 'Second floor east 二楼东', 8, '1', '1', '7', '1', '36', '2026-01-20 05:40:45'),
    (24, 'Second floor west 二楼西', 8, '0', '0', '0', '6', '44', '2026-02-10 06:50:51'),
    (25, 'Third floor east 三楼东', 8, '1', '2', '2', '11', '149', '2026-03-16 21:30:55'),
    (26, 'Third floor west 三楼西', 8, '1', '0', '1', '1', '157', '2026-02-25 16:13:18'),
    (27, 'Laundry 洗衣房', 4, '1', '1', '0', '6', '', '2026-02-14 09:59:00'),
    (28, 'Workshop 工具间', 4, '0', '0', '0', '11', '', '2026-03-12 22:51:53'),
    (29, 'Car park 停车场', 4, '1', '2', '0', '1', '', '2026-02-20 19:35:13'),
    (30, 'Roof 屋顶', 4, '1', '0', '0', '6', '', '2026-02-07 21:39:20');

-- 192.168.1.n, as the serial number has it and as lists are ordered.
insert into DevInfo(Dev_Sn, Dev_IPSUM, Dev_Ipaddress, Dev_MAC, Dev_Group, Dev_Name, Dev_Model_Name, Dev_SwName,
    Dev_SwVer, Dev_Wlan_Radio_Num, Dev_Status, Dev_OnlineTime, Dev_Upgrade_Status, Dev_Wlan_GroupId,
    Dev_Wlan1_Enable, Dev_Wlan1_Ssid, Dev_Wlan_Channel, Dev_Wlan_Current_Channel, Dev_Wlan_Txpower, Dev_Wlan_Sta_Num,
    Dev_Wlan5_Enable, Dev_Wlan5_Ssid, Dev_Wlan_Channel_sec, Dev_Wlan_Current_Channel_sec, Dev_Wlan_Txpower_sec,
    Dev_Wlan_Sta_Num_sec, Dev_RebootTime_Enable, Dev_RebootTime)
select 192 + 168 * 256 + 65536 + n * 16777216, 192 * 16777216 + 168 * 65536 + 256 + n, '192.168.1.' || n,
    printf('3C:5A:B4:20:00:%02X', n), 'Hotel', name, iif(radios = 8, 'Dual-band ceiling', 'Single-band wall'), 'ap-image',
    '2.4.' || (n % 3), radios, status, since, '', '1',
    '1', 'Hotel 酒店', '0', channel, '100', stations,
    iif(radios = 8, '1', '0'), iif(radios = 8, 'Hotel 5G', ''), '0', channel_sec, '80',
    stations_sec, '1', '3'
from place;

insert into WlanZeroCfgGroupInfo(WlanGroup_Id, WlanGroup_Name,
    WlanGroup_Wlan1_Ssid, WlanGroup_Wlan1_Security, WlanGroup_Wlan1_Authmode, WlanGroup_Wlan1_Securitycipher,
    WlanGroup_Wlan1_Wep_Value, WlanGroup_Wlan1_Psk_Value, WlanGroup_Wlan_Channel, WlanGroup_Wlan_Txpower,
    WlanGroup_Wlan5_Ssid, WlanGroup_Wlan5_Security, WlanGroup_Wlan5_Authmode, WlanGroup_Wlan5_Securitycipher,
    WlanGroup_Wlan5_Wep_Value, WlanGroup_Wlan5_Psk_Value, WlanGroup_Wlan_Channel_sec, WlanGroup_Wlan_Txpower_sec,
    WlanGroup_Dev_RebootTime_Enable, WlanGroup_Dev_RebootTime) values
    (1, 'Guests 客人',
        'Hotel 酒店', '1', '1', '0', '', 'good-morning', '0', '100',
        'Hotel 5G', '1', '1', '0', '', 'good-morning', '0', '80', '1', '3'),
    (2, 'Staff 员工',
        'Staff 员工', '1', '1', '0', '', 'correct horse', '6', '100',
        'Staff 5G', '1', '1', '0', '', 'battery staple', '44', '60', '0', '3'),
    (3, 'Old devices 旧设备',
        'Devices', '1', '0', '1', '0badcafe00', '', '11', '50',
        'Demo room', '0', '0', '0', '', '', '149', '30', '0', '3');

insert into user_timegroup(id, name, weekday1, weekday2, weekday3, weekday4, weekday5, weekday6, weekday7,
    start_time, end_time, mark) values
    (1, 'Working hours 上班时间', 1, 1, 1, 1, 1, 0, 0, '08:00', '18:00', 'Rooms of the staff'),
    (2, 'Quiet nights 安静夜晚', 1, 1, 1, 1, 1, 1, 1, '22:00', '23:59', '');

insert into filter_url(Id, name, url, timecontrol, timegroup_id, weekday1, weekday2, weekday3, weekday4, weekday5,
    weekday6, weekday7, start_time, end_time, status, mark) values
    (1, 'No videos 视频', 'video.example', 2, 1, 0, 0, 0, 0, 0, 0, 0, '', '', 1, ''),
    (2, 'No games 游戏', 'games.example', 2, 2, 0, 0, 0, 0, 0, 0, 0, '', '', 1, 'The children may play by day'),
    (3, 'Quiet lobby 大堂', 'radio.example', 1, 0, 0, 0, 0, 0, 0, 1, 1, '09:00', '12:00', 0, '');
