-- Tables that lack columns, and have others in their place.
drop table DevInfo;
create table DevInfo(Dev_Sn, Dev_MAC, Dev_Ipaddress, Dev_Status);
insert into DevInfo values(1,'00:00:00:00:00:01','10.0.0.1','1');
drop table user_timegroup;
create table user_timegroup(id, mark);
insert into user_timegroup values(1,'x');
drop table qos_rule;
create table qos_rule(id, ipgroup_id, ipcontrol);
insert into qos_rule values(1,1,2);
drop table App_Class;
create table App_Class(Id);
insert into App_Class values(1);
