What cannot be done changes nothing:

  $ directory=/etc/config/systemconf/database
  $ database=$directory/myrouter.db
  $ factory=/rom$database
  $ cp $factory shipped
  $ routerdbctl rule add user-url name=mine
  1
  $ sqlite3 $factory "ALTER TABLE user_urlinfo ADD COLUMN color"
  $ cp $factory next
  $ cp $database mine
  $ attempt() { routerdbctl --yes db upgrade "$@"; echo "status $?"; ls $directory | grep -v dpilib || :; }

An old database that is damaged, empty, or not there:

  $ printf 'no database at all' > $database
  $ attempt
  routerdbctl: cannot read /etc/config/systemconf/database/myrouter.db: file is not a database
  status 1
  myrouter.db
  $ attempt --check
  routerdbctl: cannot read /etc/config/systemconf/database/myrouter.db: file is not a database
  status 2
  myrouter.db
  $ cp mine $database
  $ head -c 40000 /dev/zero | dd of=$database bs=1 seek=20000 conv=notrunc 2> /dev/null
  $ attempt
  routerdbctl: the database is damaged
  status 1
  myrouter.db
  $ : > $database
  $ attempt
  routerdbctl: the database has no table
  status 1
  myrouter.db
  $ rm $database
  $ attempt
  routerdbctl: there is no database (/etc/config/systemconf/database/myrouter.db)
  status 3
  $ attempt --from /tmp/missing
  routerdbctl: there is no such file (/tmp/missing)
  status 3
  $ attempt --to /tmp/missing --check
  routerdbctl: there is no such file (/tmp/missing)
  status 2

Rows from elsewhere take the place of what is none:

  $ attempt --from mine
  myrouter.db: user_urlinfo.color is new: NULL
  myrouter.db: its rows give way to those of mine
  myrouter.db: upgraded
  status 0
  myrouter.db
  $ echo garbage > $database
  $ attempt --from mine
  myrouter.db: user_urlinfo.color is new: NULL
  myrouter.db: its rows give way to those of mine
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-1
  status 0
  myrouter.db
  myrouter.db.before-1
  $ cat $database.before-1
  garbage
  $ rm $database.before-1

A schema that the programs of this firmware do not read:

  $ cp mine $database
  $ sqlite3 $factory "ALTER TABLE domain_ip DROP COLUMN name; DROP TABLE wifi2acl; ALTER TABLE DevInfo RENAME Dev_Wlan3_Ssid TO Dev_Wlan9_Ssid; ALTER TABLE WlanZeroCfgGroupInfo DROP COLUMN WlanGroup_Wlan_MaxStaNum_sec"
  $ attempt
  routerdbctl: the schema has no wifi2acl.id, which programs read
  routerdbctl: the schema has no wifi2acl.name, which programs read
  routerdbctl: the schema has no wifi2acl.mac, which programs read
  routerdbctl: the schema has no wifi2acl.status, which programs read
  routerdbctl: the schema has no wifi2acl.mark, which programs read
  routerdbctl: the schema has no domain_ip.name, which programs read
  routerdbctl: the schema has domain_ip.domain in place 1, and programs read it in place 2
  routerdbctl: the schema has domain_ip.ip in place 2, and programs read it in place 3
  routerdbctl: the schema has domain_ip.status in place 3, and programs read it in place 4
  routerdbctl: the schema has domain_ip.mark in place 4, and programs read it in place 5
  routerdbctl: the schema has no DevInfo.Dev_Wlan3_Ssid, which programs read
  routerdbctl: the schema has WlanZeroCfgGroupInfo.WlanGroup_Dev_RebootTime_Enable in place 121, and programs read it in place 122
  routerdbctl: the schema has WlanZeroCfgGroupInfo.WlanGroup_Dev_RebootTime in place 122, and programs read it in place 123
  routerdbctl: the schema has WlanZeroCfgGroupInfo.WlanGroup_Wlan_Txpower in place 123, and programs read it in place 124
  routerdbctl: the schema has WlanZeroCfgGroupInfo.WlanGroup_Wlan_Txpower_sec in place 124, and programs read it in place 125
  routerdbctl: the schema has no WlanZeroCfgGroupInfo.WlanGroup_Wlan_MaxStaNum_sec, which programs read
  status 1
  myrouter.db

Rows that break what the new schema asks for, that lists have no room for, or that would lose their group:

  $ cp next $factory
  $ sqlite3 $database "UPDATE user_urlinfo SET url = NULL"
  $ sqlite3 $factory "DROP TABLE user_urlinfo; CREATE TABLE user_urlinfo(id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT, url TEXT NOT NULL, mark TEXT)"
  $ attempt
  routerdbctl: the rows do not suit the new schema: NOT NULL constraint failed: user_urlinfo.url
  status 1
  myrouter.db
  $ cp next $factory
  $ sqlite3 $database "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 129) INSERT INTO wifi1acl(name) SELECT i FROM n"
  $ attempt
  routerdbctl: wifi1acl has 129 rows, and programs have room for 128: remove some first
  status 1
  myrouter.db
  $ cp mine $database
  $ sqlite3 $database "INSERT INTO user_timegroup(id, name) VALUES(3, 'a'); INSERT INTO filter_url(timecontrol, timegroup_id) VALUES(2, 3), (2, 4)"
  $ attempt --check
  myrouter.db: user_urlinfo.color is new: NULL
  myrouter.db: filter_url has 1 rows whose timegroup_id is none of user_timegroup, as before
  status 1
  myrouter.db
  $ sqlite3 $factory "PRAGMA user_version = 1"
  $ echo 'version 1
  > map user_timegroup.id 3 5' > /rom$directory/upgrade.rules
  $ attempt
  routerdbctl: filter_url would have 2 rows whose timegroup_id is none of user_timegroup
  status 1
  myrouter.db
  $ rm /rom$directory/upgrade.rules

Texts that are longer than programs read stay whole:

  $ cp next $factory
  $ cp mine $database
  $ sqlite3 $factory "CREATE TABLE notes(text TEXT(5))"
  $ sqlite3 $database "CREATE TABLE notes(text TEXT); INSERT INTO notes VALUES('short'), ('longer'), ('größer')"
  $ sqlite3 $database "UPDATE user_urlinfo SET url = printf('%.512c', 'x'); INSERT INTO DevInfo(Dev_Sn, Dev_Wlan_GroupId, Dev_Wlan2_VlanId) VALUES(1, '12345', '1234567890')"
  $ attempt
  myrouter.db: notes.text was TEXT and is TEXT(5)
  myrouter.db: user_urlinfo.color is new: NULL
  myrouter.db: user_urlinfo.url has texts of more than 511 bytes in 1 rows
  myrouter.db: DevInfo.Dev_Wlan_GroupId has texts of more than 4 bytes in 1 rows
  myrouter.db: DevInfo.Dev_Wlan2_VlanId has texts of more than 4 bytes in 1 rows
  myrouter.db: notes.text has texts of more than 5 bytes in 2 rows
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-1
  status 0
  myrouter.db
  myrouter.db.before-1
  $ sqlite3 $database "SELECT length(url) FROM user_urlinfo; SELECT text FROM notes"
  512
  short
  longer
  größer

Places that cannot be written, or have no room:

  $ rm $database.before-1
  $ mv $directory aside
  $ ln -s /read-only $directory
  $ routerdbctl --yes db upgrade
  myrouter.db: notes is a new table, with 0 rows
  myrouter.db: user_urlinfo.color is new: NULL
  routerdbctl: cannot open /read-only/myrouter.db.upgrade: unable to open database: file:/read-only/myrouter.db.upgrade?mode=rwc
  [4]
  $ routerdbctl --yes db upgrade --check
  myrouter.db: notes is a new table, with 0 rows
  myrouter.db: user_urlinfo.color is new: NULL
  [1]
  $ rm $directory
  $ ln -s /small $directory
  $ cp mine /small/myrouter.db
  $ for left in 80 40 8 0; do
  >     rm -f /small/filling
  >     head -c $(( $(stat -f -c '%a * %S' /small) - left * 1024 )) /dev/zero > /small/filling
  >     routerdbctl --yes -q db upgrade > /dev/null 2> said
  >     echo "status $?"
  >     sed 's/the new database: .*full/the new database: no room/' said
  >     ls /small
  >     cmp mine /small/myrouter.db
  > done
  status 4
  routerdbctl: cannot make the new database: no room
  filling
  myrouter.db
  status 4
  routerdbctl: cannot make the new database: no room
  filling
  myrouter.db
  status 4
  routerdbctl: cannot make the new database: no room
  filling
  myrouter.db
  status 4
  routerdbctl: cannot make the new database: no room
  filling
  myrouter.db
  $ rm /small/filling
  $ routerdbctl --yes -q db upgrade | tail -1
  myrouter.db: upgraded; the old one is /small/myrouter.db.before-1
  $ rm $directory
  $ mv aside $directory

Where the database is a link, what it leads to is replaced:

  $ cp mine /tmp/elsewhere.db
  $ ln -sf /tmp/elsewhere.db $database
  $ routerdbctl --yes -q db upgrade | tail -1
  myrouter.db: upgraded; the old one is /tmp/elsewhere.db.before-1
  $ readlink $database
  /tmp/elsewhere.db

What an interrupted upgrade has left is removed:

  $ touch /tmp/elsewhere.db.upgrade
  $ routerdbctl db upgrade
  routerdbctl: /tmp/elsewhere.db.upgrade was left by an upgrade that was interrupted, and is removed
  $ ls /tmp/elsewhere*
  /tmp/elsewhere.db
  /tmp/elsewhere.db.before-1
