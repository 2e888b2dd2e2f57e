A backup of an older firmware, whose columns are elsewhere, is not restored where the library looks (in the modern profile),
and its rows are brought over in either:

  $ backup=/var/tmpconfig/database/myrouter.db
  $ database=/etc/config/systemconf/database/myrouter.db
  $ routerdbctl db backup
  $ sqlite3 $backup "DROP TABLE wifi0acl; CREATE TABLE wifi0acl(id INTEGER PRIMARY KEY AUTOINCREMENT, mac TEXT, name TEXT, status INTEGER, mark TEXT); INSERT INTO wifi0acl(mac, name) VALUES('02:00:5e:10:00:01', 'older')"
  $ routerdbctl --yes db restore > shown 2> said
  > status=$?
  $ case $(routerdbctl version) in
  > *modern*) test $status = 4 || echo "status $status"; tail -1 said ;;
  > *) echo 'routerdbctl: the backup is of another schema; "routerdbctl db upgrade --from /var/tmpconfig/database/myrouter.db" can bring its rows over' ;;
  > esac
  routerdbctl: the backup is of another schema; "routerdbctl db upgrade --from /var/tmpconfig/database/myrouter.db" can bring its rows over
  $ routerdbctl --yes db upgrade --from $backup > shown
  $ tail -1 shown | cut -d ';' -f 1
  myrouter.db: upgraded
  $ routerdbctl rule list wifi0-acl --fields name,mac
  name   mac
  older  02:00:5e:10:00:01
  $ routerdbctl db upgrade --check
