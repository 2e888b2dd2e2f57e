insert into user_timegroup(id,name,weekday1,start_time,end_time) values(1,'evening',1,'18:00','22:00');
insert into filter_url(name,url,timecontrol,timegroup_id,weekday1,start_time,end_time,status) values('a','http://a',2,1,1,'07:00','08:00',1),('b','http://b',1,0,0,'9:30',NULL,0);
insert into filter_mac(name,devmac,timecontrol,timegroup_id,status) values('tablet','00:00:00:00:00:01',2,1,1);
