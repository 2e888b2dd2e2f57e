-- What the router knows before the tour: devices of the house with addresses of their own.
insert into dhcpserverstaticbind(devtype, mac, ip, mark) values
    (1, '3C:5A:B4:10:00:01', '192.168.1.10', '客厅电视 Living room TV'),
    (2, '3C:5A:B4:10:00:02', '192.168.1.11', '书房打印机 Printer'),
    (3, '3C:5A:B4:10:00:03', '192.168.1.12', 'Network storage');
