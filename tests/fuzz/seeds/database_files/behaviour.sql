insert into behavior_rule(control_type,ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,behavior_info,status) values(1,1,0,1,0,'00:00:00:00:00:01','1:f1?f2AND2:f1',1);
insert into App_Class(Id,Name,Name_En) values(1,'Spiele','Games'),(2,'Film','Films');
insert into App_Info(Class_Id,Name,Name_En,Features) values(1,'Schach','Chess','f1'),(1,'Dame','Draughts','f2'),(2,'Kino','Cinema','f1');
