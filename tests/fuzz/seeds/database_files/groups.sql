insert into user_timegroup(name,weekday1,start_time,end_time,mark) values('evening',1,'18:00','22:00','');
insert into user_ipgroup(name,startip,endip,mark) values('guests','10.0.0.1','10.0.0.9','');
