insert into App_Class(Id,Name,Name_En,Priority,Mark) values(1,'Spiele "1"','Games',1,'');
insert into App_Info(Class_Id,Name,Name_En,Features) values(1,'Sch\ach','Chess','f1'),(1,NULL,x'ff22','f2');
