A backup, what has changed since then, and back:

  $ routerdbctl diff
  routerdbctl: there is no backup (/var/tmpconfig/database/myrouter.db)
  [3]
  $ routerdbctl --yes db restore
  routerdbctl: there is no backup (/var/tmpconfig/database/myrouter.db)
  [3]
  $ routerdbctl --dry-run db backup
  /etc/config/systemconf/database/myrouter.db -> /var/tmpconfig/database/myrouter.db
  $ routerdbctl rule add user-url name=kept url=a.example
  1
  $ routerdbctl db backup
  $ routerdbctl diff
  $ routerdbctl rule set user-url 1 name=changed
  $ routerdbctl rule add user-url name=later
  2
  $ routerdbctl diff
  user-url 1 name: 'kept' -> 'changed'
  + user-url 2 name='later'
  [1]
  $ routerdbctl --dry-run db restore
  user-url 1 name: 'changed' -> 'kept'
  - user-url 2 name='later'
  $ routerdbctl db restore
  user-url 1 name: 'changed' -> 'kept'
  - user-url 2 name='later'
  routerdbctl: this cannot be taken back, and there is no terminal to ask on: say --yes
  [2]
  $ routerdbctl rule get user-url 1.name
  changed
  $ routerdbctl --yes db restore
  user-url 1 name: 'changed' -> 'kept'
  - user-url 2 name='later'
  $ routerdbctl rule list user-url
  id  name  url        mark
   1  kept  a.example
  $ routerdbctl --yes db reset
  - user-url 1 name='kept' url='a.example'
  $ routerdbctl rule list user-url
  id  name  url  mark
  $ routerdbctl diff factory

Keys are not shown:

  $ database=/etc/config/systemconf/database/myrouter.db
  $ sqlite3 $database "INSERT INTO DevInfo(Dev_Sn, Dev_Name, Dev_Wlan1_Psk_Value, Dev_Wlan2_Wep_Value) VALUES(1, 'a', 'secret', 'hidden')"
  $ routerdbctl diff factory
  + DevInfo 1 Dev_Name='a' Dev_Wlan1_Psk_Value=*** Dev_Wlan2_Wep_Value=***
  [1]
  $ routerdbctl db backup
  $ sqlite3 $database "UPDATE DevInfo SET Dev_Wlan1_Psk_Value = 'other'"
  $ routerdbctl diff
  DevInfo 1 Dev_Wlan1_Psk_Value: '***' -> '***'
  [1]

Statements as they are typed:

  $ routerdbctl --yes db exec "insert into user_urlinfo(name) values('typed');"
  $ routerdbctl --yes db exec "insert into missing(name) values('typed');"
  routerdbctl: nothing was changed: no such table: missing
  [1]
  $ routerdbctl db exec "delete from user_urlinfo;"
  routerdbctl: this cannot be taken back, and there is no terminal to ask on: say --yes
  [2]
  $ routerdbctl --dry-run db exec "delete from user_urlinfo;"
  delete from user_urlinfo;
  $ routerdbctl db query "select id, name from user_urlinfo"
  id  name
   1  typed
  $ routerdbctl -o json db query "select id, name from user_urlinfo"
  [
    {"id":1,"name":"typed"}
  ]
  $ routerdbctl db query "delete from user_urlinfo"
  routerdbctl: this is no query that reads: not authorized
  [1]
  $ routerdbctl db query "attach 'x' as y"
  routerdbctl: this is no query that reads: not authorized
  [1]
  $ ls x
  ls: cannot access 'x': No such file or directory
  [2]
  $ routerdbctl db query "pragma user_version = 7"
  routerdbctl: this is no query that reads: not authorized
  [1]
  $ routerdbctl db query "selec"
  routerdbctl: this is no query that reads: near "selec": syntax error
  [1]
  $ routerdbctl db query ""
  routerdbctl: this is no query that reads: it is empty
  [1]
  $ routerdbctl db count "select count(*) from user_urlinfo"
  1
  $ routerdbctl db count "select 1 where 0"
  routerdbctl: the query has no row
  [3]
