-- Names that are not meant well, or not well meant for JSON.

update DevInfo set Dev_Name = '<img src=x onerror=alert(1)> & co' where Dev_Ipaddress = '192.168.1.30';
update DevInfo set Dev_Name = 'The "blue" one \ ' || char(9) where Dev_Ipaddress = '192.168.1.29';
