insert into wifi0acl(name,mac,status) values('one','00:00:00:00:00:01',1);
insert into wifi1acl(name,mac,status) values('two','00:00:00:00:00:02',0);
insert into famliymember(name,mac,devtype) values('Ann','00:00:00:00:00:03',1);
