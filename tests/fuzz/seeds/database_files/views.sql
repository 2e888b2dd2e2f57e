-- Views in place of tables, one of which never ends.
drop table user_urlinfo;
create view user_urlinfo as with recursive n(id) as (values(1) union all select id + 1 from n) select id, 'a' as name,
    'b' as url, 'c' as mark from n where id < 0;
drop table user_ipgroup;
create view user_ipgroup as select 1 as id, 'all' as name, '10.0.0.1' as startip, '10.0.0.9' as endip, '' as mark;
drop table domain_ip;
create table domain_ip(id integer primary key, name as (upper(id)), domain, ip, mark, status);
insert into domain_ip(id) values(1);
