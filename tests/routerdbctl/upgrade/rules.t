Rules beside the factory copy say what names do not:

  $ database=/etc/config/systemconf/database/myrouter.db
  $ factory=/rom$database
  $ rules=${factory%/*}/upgrade.rules
  $ sqlite3 $database "CREATE TABLE portal(id INTEGER PRIMARY KEY, password TEXT, mode INTEGER, title TEXT); INSERT INTO portal VALUES(1, 'p', 0, 'a'), (2, 'q', 1, 'b'), (3, 'r', 5, '')"
  $ sqlite3 $factory "CREATE TABLE portal(id INTEGER PRIMARY KEY, secret TEXT, mode INTEGER, title TEXT); PRAGMA user_version = 3"
  $ cat > $rules <<'END'
  > # The guests' portal
  > version 2
  > rename portal.password portal.word
  > map portal.mode 0 1    # on and off
  > map portal.mode 1 0
  > version 3
  > rename PORTAL.Word portal.secret
  > map portal.title '' 'no title'
  > drop portal.nothing
  > END
  $ routerdbctl db upgrade --check
  myrouter.db: version 0 becomes 3
  myrouter.db: portal.password is now secret
  myrouter.db: portal.mode has values with another meaning in 2 rows
  myrouter.db: portal.title has values with another meaning in 1 rows
  [1]
  $ routerdbctl db upgrade --dry-run | grep -e portal
  DELETE FROM fresh."portal";
  INSERT INTO fresh."portal"("id", "secret", "mode", "title") SELECT "id", "password", "mode", "title" FROM main."portal";
  UPDATE fresh."portal" SET "mode" = CASE CAST("mode" AS TEXT) WHEN '0' THEN '1' WHEN '1' THEN '0' END WHERE CAST("mode" AS TEXT) IN ('0', '1');
  UPDATE fresh."portal" SET "title" = CASE CAST("title" AS TEXT) WHEN '' THEN 'no title' END WHERE CAST("title" AS TEXT) IN ('');
  $ routerdbctl -q db upgrade | tail -1
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-1
  $ sqlite3 $database "SELECT *, typeof(mode) FROM portal"
  1|p|1|a|integer
  2|q|0|b|integer
  3|r|5|no title|integer

They have been applied, and are not again:

  $ routerdbctl db upgrade --check
  $ routerdbctl db upgrade

On the way back to an older firmware they go backwards, as long as the newer one runs:

  $ mkdir old
  $ cp $database.before-1 old/myrouter.db
  $ sqlite3 old/myrouter.db "PRAGMA user_version = 1"
  $ routerdbctl db upgrade --to old/myrouter.db
  myrouter.db: version 3 becomes 1
  myrouter.db: portal.secret is now password
  myrouter.db: portal.title has values with another meaning in 1 rows
  myrouter.db: portal.mode has values with another meaning in 2 rows
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-2
  $ sqlite3 $database "SELECT * FROM portal"
  1|p|0|a
  2|q|1|b
  3|r|5|

A column that is dropped does not get into another one of its name:

  $ sqlite3 $factory "PRAGMA user_version = 4"
  $ echo 'version 4
  > drop portal.title' >> $rules
  $ routerdbctl db upgrade --check
  myrouter.db: version 1 becomes 4
  myrouter.db: portal.password is now secret
  myrouter.db: portal.title is new: NULL
  myrouter.db: portal.title is gone, with its values in 3 rows
  myrouter.db: portal.mode has values with another meaning in 2 rows
  [1]

What is wrong in the file is said before anything is touched:

  $ cat > $rules <<'END'
  > rename portal.password portal.secret
  > version 2
  > version 2
  > version two
  > renme portal.password portal.secret
  > rename portal.password
  > rename password secret
  > rename portal.password guests.secret
  > map portal.mode 1
  > map portal.mode 1 2
  > map portal.mode 1 3
  > drop portal
  > map portal.mode 1 2 3 4
  > version 9
  > END
  $ routerdbctl --yes db upgrade
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:1: no "version" stands before it
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:3: version 2 does not follow version 2
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:4: it has to be "version NUMBER"
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:5: there is no rule "renme"; there are rename, drop, map and version
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:6: it has to be "rename TABLE.COLUMN TABLE.COLUMN"
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:7: it has to be "rename TABLE.COLUMN TABLE.COLUMN"
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:8: a column stays in its table
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:9: it has to be "map TABLE.COLUMN VALUE VALUE"
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:11: line 10 has this value already
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:12: it has to be "drop TABLE.COLUMN"
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:13: it has to be "map TABLE.COLUMN VALUE VALUE"
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:14: the factory's database is of version 4 (its "user_version")
  [1]
  $ routerdbctl -q db upgrade --check 2>&1 | wc -l
  12
  $ routerdbctl db upgrade --check 2> /dev/null
  [2]
  $ cat > $rules <<'END'
  > version 2
  > rename portal.password portal.words
  > map guests.mode 1 2
  > END
  $ routerdbctl --yes db upgrade
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:2: the factory's database has no portal.words
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:3: the factory's database has no guests.mode
  [1]
  $ for number in $(seq 300); do echo "drop a.b$number"; done | sed '1i version 2' > $rules
  $ routerdbctl --yes db upgrade 2>&1 | head -2
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:258: there are more than 256 rules
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:259: there are more than 256 rules
  $ printf 'version 2\0\nnonsense\xff' > $rules
  $ routerdbctl --yes db upgrade --check
  routerdbctl: /rom/etc/config/systemconf/database/upgrade.rules:1: it has to be "version NUMBER"
  [2]
  $ ls ${database%/*}
  dpilib.db
  myrouter.db
  myrouter.db.before-1
  myrouter.db.before-2
