What is exported comes back:

  $ routerdbctl rule add time-group name=Nights hours=20:30-23:59
  1
  $ routerdbctl rule add url-filter name="O'Neil" url=a.example group=Nights
  1
  $ routerdbctl rule add static-binding mac=02:00:5e:10:00:01 ip=192.168.1.7
  1
  $ routerdbctl export time-group url-filter > some
  $ cat some
  {
    "format": 1,
    "schema": "e056a37777e4c16f",
    "tables": {
      "filter_url": [
        {"Id":1,"name":"O'Neil","url":"a.example","timecontrol":2,"timegroup_id":1,"weekday1":0,"weekday2":0,"weekday3":0,"weekday4":0,"weekday5":0,"weekday6":0,"weekday7":0,"start_time":"","end_time":"","status":1,"mark":""}],
      "user_timegroup": [
        {"id":1,"name":"Nights","weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"20:30","end_time":"23:59","mark":""}]
    }
  }
  $ routerdbctl -o sql export url-filter
  BEGIN;
  INSERT INTO "filter_url"("Id", "name", "url", "timecontrol", "timegroup_id", "weekday1", "weekday2", "weekday3", "weekday4", "weekday5", "weekday6", "weekday7", "start_time", "end_time", "status", "mark") VALUES(1, 'O''Neil', 'a.example', 2, 1, 0, 0, 0, 0, 0, 0, 0, '', '', 1, '');
  COMMIT;
  $ routerdbctl -o set export url-filter
  routerdbctl rule add --force url-filter id=1 name='O'\''Neil' url='a.example' timecontrol=2 timegroup_id=1 weekday1=0 weekday2=0 weekday3=0 weekday4=0 weekday5=0 weekday6=0 weekday7=0 start_time='' end_time='' status=1 mark=''
  $ routerdbctl -o tsv export url-filter
  routerdbctl: tables are exported as json, set or sql
  [2]
  $ routerdbctl export nothing
  routerdbctl: there is no table "nothing"; there are static-binding, url-filter, mac-filter, ip-filter, time-group, ip-group, smart-qos, user-url, family-member, port-forward, qos, behavior, wifi0-acl, wifi1-acl, wifi2-acl, domain-ip
  [2]
  $ routerdbctl export > all
  $ /usr/bin/python3 -c 'import json; print(len(json.load(open("all"))["tables"]))'
  16
  $ routerdbctl diff all
  $ routerdbctl --yes -q db reset
  - static-binding 1 devtype=0 mac='02:00:5e:10:00:01' ip='192.168.1.7'
  - url-filter 1 name='O''Neil' url='a.example' timecontrol=2 timegroup_id=1 weekday1=0 weekday2=0 weekday3=0 weekday4=0 weekday5=0 weekday6=0 weekday7=0 status=1
  - time-group 1 name='Nights' weekday1=1 weekday2=1 weekday3=1 weekday4=1 weekday5=1 weekday6=1 weekday7=1 start_time='20:30' end_time='23:59'
  $ routerdbctl diff some
  - url-filter 1 name='O''Neil' url='a.example' timecontrol=2 timegroup_id=1 weekday1=0 weekday2=0 weekday3=0 weekday4=0 weekday5=0 weekday6=0 weekday7=0 status=1
  - time-group 1 name='Nights' weekday1=1 weekday2=1 weekday3=1 weekday4=1 weekday5=1 weekday6=1 weekday7=1 start_time='20:30' end_time='23:59'
  [1]
  $ routerdbctl import --check all
  $ routerdbctl rule list url-filter
  id  name  url  timecontrol  timegroup_id  days  start_time  end_time  status  mark
  $ routerdbctl import all
  $ routerdbctl diff all

Rows with the same id give way, others stay, unless all are to be replaced:

  $ routerdbctl rule set url-filter 1 name=changed
  $ routerdbctl rule add url-filter name=another
  2
  $ routerdbctl import some
  $ routerdbctl rule list url-filter --fields id,name
  id  name
   1  O'Neil
   2  another
  $ routerdbctl --dry-run import --replace some
  BEGIN IMMEDIATE;
  DELETE FROM "filter_url";
  INSERT INTO "filter_url"("Id", "name", "url", "timecontrol", "timegroup_id", "weekday1", "weekday2", "weekday3", "weekday4", "weekday5", "weekday6", "weekday7", "start_time", "end_time", "status", "mark") VALUES(1, 'O''Neil', 'a.example', 2, 1, 0, 0, 0, 0, 0, 0, 0, '', '', 1, '');
  DELETE FROM "user_timegroup";
  INSERT INTO "user_timegroup"("id", "name", "weekday1", "weekday2", "weekday3", "weekday4", "weekday5", "weekday6", "weekday7", "start_time", "end_time", "mark") VALUES(1, 'Nights', 1, 1, 1, 1, 1, 1, 1, '20:30', '23:59', '');
  COMMIT;
  $ routerdbctl import --replace some
  routerdbctl: this cannot be taken back, and there is no terminal to ask on: say --yes
  [2]
  $ routerdbctl --yes import --replace some
  $ routerdbctl rule list url-filter --fields id,name
  id  name
   1  O'Neil
  $ routerdbctl import --merge --replace some
  routerdbctl: --merge keeps other rows and --replace removes them: say one of them
  [2]
  $ routerdbctl import - < some

Everything is looked at first; a line for each fault, and nothing is written:

  $ cat > faults <<'F'
  > {"format": 1, "tables": {
  >   "static-binding": [
  >     {"id": 5, "mac": "nobody", "ip": "192.168.1.300", "devtype": "x"},
  >     {"id": 6, "mac": "02:00:5e:10:00:01", "ip": "192.168.1.9"},
  >     {"id": 6, "colour": "red"},
  >     {"id": 7, "mark": ["a"]},
  >     {"id": 8, "mark": {"text": "xyz"}},
  >     {"id": 5}, {"mark": "no id"}, {"id": "x"},
  >     7],
  >   "url-filter": [{"id": 9, "timecontrol": 2, "timegroup_id": 77}],
  >   "nothing": [], "qos": 3}}
  > F
  $ routerdbctl import faults
  routerdbctl: dhcpserverstaticbind[0].mac: "nobody" is no MAC address, such as 02:00:5e:10:00:01
  routerdbctl: dhcpserverstaticbind[0].ip: "192.168.1.300" is no IPv4 address, such as 192.168.1.20
  routerdbctl: dhcpserverstaticbind[0].devtype: "x" is no number of 32 bits
  routerdbctl: dhcpserverstaticbind[2].colour: "colour" is no field
  routerdbctl: dhcpserverstaticbind[3].mark: "["a"]" is no value
  routerdbctl: dhcpserverstaticbind[4].mark: "{"text":"xyz"}" is no value
  routerdbctl: dhcpserverstaticbind[6].id: "" is no id
  routerdbctl: dhcpserverstaticbind[7].id: "" is no id
  routerdbctl: dhcpserverstaticbind[8]: "7" is no row
  routerdbctl: there is no table "nothing"; there are static-binding, url-filter, mac-filter, ip-filter, time-group, ip-group, smart-qos, user-url, family-member, port-forward, qos, behavior, wifi0-acl, wifi1-acl, wifi2-acl, domain-ip
  routerdbctl: qos: "3" is no list of rows
  [1]
  $ cat > results <<'F'
  > {"format": 1, "tables": {
  >   "static-binding": [{"id": 6, "mac": "02:00:5e:10:00:01", "ip": "192.168.1.9"}, {"id": 7, "ip": "192.168.1.9"}, {"id": 8, "ip": "192.168.1.10"}],
  >   "url-filter": [{"id": 9, "timecontrol": 2, "timegroup_id": 77}]}}
  > F
  $ routerdbctl import results
  routerdbctl: dhcpserverstaticbind 6, 1: they would have the same mac
  routerdbctl: dhcpserverstaticbind 6, 7: they would have the same ip
  routerdbctl: filter_url 9: there would be no time-group #77
  [1]
  $ routerdbctl rule list static-binding --fields id,mac,ip
  id  mac                ip
   1  02:00:5e:10:00:01  192.168.1.7
  $ echo '{"format": 1, "tables": {"filter_url": [' > broken
  $ routerdbctl import broken
  routerdbctl: the file is no JSON
  [1]
  $ echo '{"format": 2, "tables": {}}' > later
  $ routerdbctl import later
  routerdbctl: the file is no export of this format, 1
  [1]
  $ routerdbctl import missing
  routerdbctl: cannot read missing: No such file or directory
  [3]

Differences, from what was to what is:

  $ routerdbctl rule set url-filter 1 name=changed url=b.example
  $ routerdbctl rule rm static-binding 1
  $ routerdbctl rule add user-url name=new url=new.example
  1
  $ routerdbctl diff all
  - static-binding 1 devtype=0 mac='02:00:5e:10:00:01' ip='192.168.1.7'
  url-filter 1 name: 'O'Neil' -> 'changed'
  url-filter 1 url: 'a.example' -> 'b.example'
  + user-url 1 name='new' url='new.example'
  [1]
  $ routerdbctl -o json diff all
  [
    {"table":"dhcpserverstaticbind","row":1,"field":"","before":"devtype=0 mac='02:00:5e:10:00:01' ip='192.168.1.7'","after":null},
    {"table":"filter_url","row":1,"field":"name","before":"O'Neil","after":"changed"},
    {"table":"filter_url","row":1,"field":"url","before":"a.example","after":"b.example"},
    {"table":"user_urlinfo","row":1,"field":"","before":null,"after":"name='new' url='new.example'"}
  ]
  [1]
  $ routerdbctl diff all url-filter
  url-filter 1 name: 'O'Neil' -> 'changed'
  url-filter 1 url: 'a.example' -> 'b.example'
  [1]
  $ routerdbctl diff missing
  routerdbctl: there is no such file (missing)
  [3]
  $ routerdbctl diff
  routerdbctl: there is no backup (/var/tmpconfig/database/myrouter.db)
  [3]
  $ routerdbctl diff factory | cut -c 1-60
  + url-filter 1 name='changed' url='b.example' timecontrol=2 
  + time-group 1 name='Nights' weekday1=1 weekday2=1 weekday3=
  + user-url 1 name='new' url='new.example'
