insert into dhcpserverstaticbind(devtype,mac,ip,mark) values(1,'00:00:00:00:00:01','10.0.0.1','printer'),(2,NULL,x'0001',3.5);
