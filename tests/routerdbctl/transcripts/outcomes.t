Exit status 4, and a reason, when the database cannot be had.

  $ database=/etc/config/systemconf/database/myrouter.db
  $ routerdbctl rule add user-url name=a
  1

Somebody has the lock file, and keeps it: nothing happens, nor later.

  $ holding_lock_file sleep 30 &
  $ until test -e held; do sleep 0.05; done; rm held
  $ routerdbctl --timeout 1 rule add user-url name=b
  routerdbctl: the database was not free within 1 s; nothing was changed, and will not be later (see "routerdbctl lock")
  [4]
  $ routerdbctl --timeout 1 rule set user-url 1 name=b
  routerdbctl: the database was not free within 1 s; nothing was changed, and will not be later (see "routerdbctl lock")
  [4]
  $ routerdbctl --timeout 1 rule rm user-url 1
  routerdbctl: the database was not free within 1 s; nothing was changed, and will not be later (see "routerdbctl lock")
  [4]
  $ routerdbctl --timeout 1 ap status 1 online
  routerdbctl: no access point has the serial number, address or name "1"
  [3]
  $ kill %1; wait %1 2> /dev/null
  [143]
  $ routerdbctl rule list user-url
  id  name  url  mark
   1  a

Somebody is writing, and does not come to an end: readers go on, writers do not.

  $ holding_database reserved &
  $ until test -e held; do sleep 0.05; done; rm held
  $ routerdbctl rule get user-url 1.name
  a
  $ routerdbctl --timeout 1 rule set user-url 1 name=b
  routerdbctl: the database was not free within 1 s; nothing was changed, and will not be later (see "routerdbctl lock")
  [4]
  $ kill %1; wait %1 2> /dev/null
  [143]
  $ routerdbctl rule get user-url 1.name
  a

Nobody may even look: what has become of a change that has begun cannot be seen.

  $ holding_database exclusive &
  $ until test -e held; do sleep 0.05; done; rm held
  $ routerdbctl --timeout 1 rule get user-url 1.name
  routerdbctl: cannot read /etc/config/systemconf/database/myrouter.db: database is locked
  [4]
  $ kill %1; wait %1 2> /dev/null
  [143]

A copy that goes on is not ended:

  $ holding_lock_file sleep 2 &
  $ until test -e held; do sleep 0.05; done; rm held
  $ routerdbctl --timeout 1 db backup
  routerdbctl: it takes more than 1 s and still goes on; see "routerdbctl lock"
  [5]
  $ wait
  $ until test -s /var/tmpconfig/database/myrouter.db; do sleep 0.05; done

No database, an empty one, one that is none, one without a table:

  $ mv $database kept
  $ routerdbctl rule list user-url
  routerdbctl: cannot read /etc/config/systemconf/database/myrouter.db: unable to open database file
  [4]
  $ test -e $database
  [1]
  $ : > $database
  $ routerdbctl rule list user-url
  routerdbctl: the database has no table user_urlinfo; "routerdbctl doctor" says more
  [4]
  $ routerdbctl rule add user-url name=b
  routerdbctl: the database has no table user_urlinfo; "routerdbctl doctor" says more
  [4]
  $ head -c 5000 /dev/zero > $database
  $ routerdbctl rule list user-url
  routerdbctl: cannot read /etc/config/systemconf/database/myrouter.db: file is not a database
  [4]
  $ cp kept $database; sqlite3 $database 'DROP TABLE user_urlinfo'
  $ routerdbctl rule list user-url
  routerdbctl: the database has no table user_urlinfo; "routerdbctl doctor" says more
  [4]
  $ cp kept $database

No lock file:

  $ rm /var/databaselock
  $ routerdbctl rule set user-url 1 name=b
  routerdbctl: nothing was changed: cannot open /var/databaselock!
  [4]
  $ : > /var/databaselock
  $ routerdbctl rule set user-url 1 name=b

A disk that is full:

  $ routerdbctl rule list user-url > /dev/full
  routerdbctl: cannot write to standard output
  [4]

Statements of one's own that were ended:

  $ holding_lock_file sleep 30 &
  $ until test -e held; do sleep 0.05; done; rm held
  $ routerdbctl --yes --timeout 1 db exec "insert into user_urlinfo(name) values('x');"
  routerdbctl: it took more than 1 s and was ended: look whether it has happened
  [5]
  $ kill %1; wait %1 2> /dev/null
  [143]

Of statements that are refused nothing happens:

  $ routerdbctl --yes db exec "begin; delete from user_urlinfo; insert into missing values(1); commit;"
  routerdbctl: nothing was changed: no such table: missing
  [1]
  $ routerdbctl rule get user-url 1.name
  b
