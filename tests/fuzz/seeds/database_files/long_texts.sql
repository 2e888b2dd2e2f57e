-- Texts longer than their fields, with characters across the places where they are cut.
create temp table long(text);
insert into long values(replace(printf('%.400c','x'),'x','中'));
insert into user_timegroup(id,name,start_time,end_time,mark) select 1,text,'12:34'||text,text,text from long;
insert into user_ipgroup(id,name,startip,endip,mark) select 1,text,text,text,text from long;
insert into filter_url(name,url,timecontrol,timegroup_id,start_time,mark) select text,text||text,2,1,text,text from long;
insert into App_Class(Id,Name,Name_En,Mark) select 1,text,text,text from long;
insert into App_Info(Class_Id,Name,Name_En,Features,Mark) select 1,text,text,'f1',text from long;
insert into behavior_rule(ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,behavior_info)
    select 2,1,2,1,'00:00:00:00:00:01',replace(printf('%.200c','x'),'x','1:f1?f1AND') from long;
