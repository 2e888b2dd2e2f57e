-- The catalogue at full size: 30 classes of 20 applications.

with recursive class(n) as (values (1) union all select n + 1 from class where n < 30)
insert into App_Class(Id, Name, Name_En, Priority, Mark)
select n, '应用类别 ' || n, 'Class ' || n, 0, 'mark ' || n from class;

with recursive application(n) as (values (0) union all select n + 1 from application where n < 599)
insert into App_Info(Id, Class_Id, Name, Name_En, Features, Mark)
select n + 1, 1 + n / 20, '示例应用 ' || (n + 1), 'Example application ' || (n + 1),
    printf('app-%d-%d', 1 + n / 20, 1 + n % 20), '' from application;
