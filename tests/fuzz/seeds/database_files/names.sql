insert into user_urlinfo(name,url,mark) values('site','http://a',''),('other','http://b','x');
insert into domain_ip(name,domain,ip,status) values('own','a.example','10.0.0.1',1);
