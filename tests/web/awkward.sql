-- Names that are not meant well, or not well meant for JSON.

update DevInfo set Dev_Name = '<img src=x onerror=alert(1)> & co' where Dev_Ipaddress = '192.168.1.30';

-- Only a search for its MAC address finds one without an address: it breaks no other list.
insert into DevInfo(Dev_Sn, Dev_Name, Dev_Ipaddress, Dev_MAC, Dev_Status)
values (1, 'The "blue" one', '', '02:DE:AD:00:00:01', '0');
