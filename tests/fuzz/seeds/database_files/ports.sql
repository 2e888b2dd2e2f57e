insert into user_ipgroup(id,name,startip,endip) values(1,'guests','10.0.0.1','10.0.0.9');
insert into filter_ipport(name,ipcontrol,ipgroup_id,timecontrol,devstartip,devfromport,protocol,status) values('games',2,1,1,'10.0.0.7',80,6,1);
insert into forword_ipport(name,protocol,devip,status,wanid) values('web',6,'10.0.0.2',1,1);
