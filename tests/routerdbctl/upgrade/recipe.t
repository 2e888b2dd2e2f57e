The init script of the guide, as firmwares come and go:

  $ guide=$(dirname "$(command -v random_rows)")/../../../docs/guide.md
  $ sed -n '/^## Updating a firmware$/,$ { /^```sh$/,/^```$/p }' "$guide" | grep -v '^```' > start
  $ sed -n '/^## Updating a firmware$/,$ { /^```none$/,/^```$/p }' "$guide" | grep -v '^```' | sed '/upgraded/q' > promised
  $ mkdir programs
  $ printf '#!/bin/sh\nshift 2\nif [ $# != 0 ]; then echo "$@"; else cat; fi >> /tmp/log\n' > programs/logger
  $ chmod +x programs/logger
  $ start() { rm -f /tmp/log; PATH=$PWD/programs:$PATH sh -u start; touch /tmp/log; cat /tmp/log; }
  $ directory=/etc/config/systemconf/database
  $ database=$directory/myrouter.db
  $ factory=/rom$database
  $ rm $database /var/databaselock
  $ sqlite3 $factory "PRAGMA user_version = 1; ALTER TABLE filter_url ADD COLUMN colour; ALTER TABLE wifi0acl ADD COLUMN since INTEGER DEFAULT 0"
  $ sqlite3 $factory "DROP TABLE user_urlinfo; CREATE TABLE user_urlinfo(id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT, url TEXT, mark TEXT, kind TEXT DEFAULT 'a')"

The first start of all, and the next one:

  $ start
  myrouter.db: its rows give way to those of /rom/etc/config/systemconf/database/myrouter.db
  myrouter.db: upgraded
  $ start
  $ ls $directory /var/databaselock
  /var/databaselock
  
  /etc/config/systemconf/database:
  dpilib.db
  myrouter.db
  $ routerdbctl rule add user-url name=mine url=a.example mark=kept
  1
  $ sqlite3 $database "INSERT INTO filter_url(name, colour) VALUES('a', 'red'), ('b', 'blue'), ('c', ''); INSERT INTO wifi0acl(mac) VALUES('02-00-5e-10-00-01 upstairs')"
  $ start

Another firmware, and what the guide promises of the log:

  $ sqlite3 $factory "PRAGMA user_version = 2; ALTER TABLE filter_url DROP COLUMN colour; CREATE TABLE speeds(id INTEGER PRIMARY KEY); INSERT INTO speeds VALUES(1), (2); CREATE TABLE portal(id INTEGER PRIMARY KEY, secret TEXT)"
  $ sqlite3 $factory "DROP TABLE user_urlinfo; CREATE TABLE user_urlinfo(id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT, url TEXT, mark TEXT, sort TEXT DEFAULT 'a', color TEXT DEFAULT 'red')"
  $ echo 'version 2
  > rename user_urlinfo.kind user_urlinfo.sort' > /rom$directory/upgrade.rules
  $ start | tee shown
  myrouter.db: version 1 becomes 2
  myrouter.db: filter_url.colour is gone, with its values in 3 rows
  myrouter.db: portal is a new table, with 0 rows
  myrouter.db: speeds is a new table, with 2 rows
  myrouter.db: user_urlinfo.kind is now sort
  myrouter.db: user_urlinfo.color is new: 'red'
  myrouter.db: wifi0acl.mac has texts of more than 19 bytes in 1 rows
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-1
  $ grep -vxFf shown promised
  [1]
  $ routerdbctl rule get user-url 1
  id  name  url        mark
   1  mine  a.example  kept
  $ start

A busy database is left to the next start:

  $ sqlite3 $factory "PRAGMA user_version = 3"
  $ sed -i 's/routerdbctl --yes/& --timeout 1/' start
  $ holding_database exclusive & holder=$!
  $ until test -e held; do sleep 0.1; done
  $ start
  routerdbctl: cannot read /etc/config/systemconf/database/myrouter.db: database is locked
  the next start tries again
  $ kill $holder
  $ wait $holder 2> /dev/null
  [143]
  $ start
  myrouter.db: version 2 becomes 3
  myrouter.db: wifi0acl.mac has texts of more than 19 bytes in 1 rows
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-2

An old database that cannot be brought over stays beside the factory's:

  $ sqlite3 $database "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 129) INSERT INTO wifi1acl(name) SELECT i FROM n"
  $ sqlite3 $factory "PRAGMA user_version = 4"
  $ start
  routerdbctl: wifi1acl has 129 rows, and programs have room for 128: remove some first
  the configuration could not be kept
  myrouter.db: its rows give way to those of /rom/etc/config/systemconf/database/myrouter.db
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-3
  $ routerdbctl rule list user-url
  id  name  url  mark
  $ sqlite3 $database.before-3 "SELECT count(*) FROM wifi1acl"
  129
