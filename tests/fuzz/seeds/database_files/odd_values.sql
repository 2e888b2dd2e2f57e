-- Values of every kind where another one is expected.
insert into user_timegroup(id,name,weekday1,start_time) values(1,-9223372036854775808,'x',1e300),(2,x'00',9e99,NULL);
insert into filter_mac(name,devmac,timecontrol,timegroup_id,status) values(x'ff00ff',1e308,'2',1.9,-1),(3,'','two','1x','');
insert into filter_ipport(ipcontrol,ipgroup_id,devfromport) values('2abc',4294967297,99999999999),(NULL,NULL,NULL);
insert into behavior_rule(ipcontrol,behavior_info,devmac) values(2,x'313a6631003a','a''b'),(1,':?AND?:','');
insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name) values('1',x'22005c'),(1e9,1e9),(NULL,NULL);
