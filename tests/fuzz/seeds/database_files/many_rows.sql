-- More rows than a list has room for.
with recursive n(i) as (values(1) union all select i + 1 from n where i < 140)
    insert into famliymember(name,mac,devtype) select i,i,i from n;
with recursive n(i) as (values(1) union all select i + 1 from n where i < 140)
    insert into App_Info(Class_Id,Name,Name_En,Features) select 1,i,i,i from n;
insert into App_Class(Id,Name,Name_En) values(1,'a','b');
