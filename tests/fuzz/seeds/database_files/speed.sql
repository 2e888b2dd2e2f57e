insert into qos_rule(name,ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,bw_up,status) values('slow',2,1,2,1,'00:00:00:00:00:01',100,1);
insert into smartqos_whitelist(devmac,mark) values('00:00:00:00:00:01','mine');
insert into user_ipgroup(id,name) values(1,'guests');
