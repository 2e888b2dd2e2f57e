A firmware without another schema leaves the databases alone:

  $ directory=/etc/config/systemconf/database
  $ database=$directory/myrouter.db
  $ factory=/rom$database
  $ routerdbctl db upgrade --check
  $ routerdbctl db upgrade
  $ ls $directory
  dpilib.db
  myrouter.db

One with more columns, a table more and one less:

  $ routerdbctl rule add user-url name=mine url=a.example
  1
  $ routerdbctl rule add time-group name=School
  1
  $ routerdbctl rule add url-filter name=Games group=School
  1
  $ sqlite3 $database "CREATE TABLE notes(text); INSERT INTO notes VALUES('old')"
  $ sqlite3 $factory "ALTER TABLE user_urlinfo ADD COLUMN color TEXT DEFAULT 'red'"
  $ sqlite3 $factory "DROP TABLE user_ipgroup; CREATE TABLE user_ipgroup(id INTEGER PRIMARY KEY AUTOINCREMENT, mark TEXT, name TEXT NOT NULL, startip TEXT, endip TEXT)"
  $ sqlite3 $factory "CREATE TABLE speeds(id INTEGER PRIMARY KEY, name TEXT); INSERT INTO speeds VALUES(1, 'slow'); CREATE INDEX names ON speeds(name)"
  $ sqlite3 $factory "INSERT INTO user_urlinfo(id, name, color) VALUES(9, 'theirs', 'blue')"
  $ sqlite3 $factory "PRAGMA user_version = 2"
  $ routerdbctl db upgrade --check
  myrouter.db: version 0 becomes 2
  myrouter.db: speeds is a new table, with 1 rows
  myrouter.db: user_ipgroup.mark moves from place 4 to 1
  myrouter.db: user_ipgroup.name moves from place 1 to 2
  myrouter.db: user_ipgroup.name was TEXT and is TEXT NOT NULL
  myrouter.db: user_ipgroup.startip moves from place 2 to 3
  myrouter.db: user_ipgroup.endip moves from place 3 to 4
  myrouter.db: user_urlinfo.color is new: 'red'
  myrouter.db: notes is gone, with its 1 rows
  myrouter.db: index names is new
  [1]
  $ ls $directory
  dpilib.db
  myrouter.db
  $ routerdbctl db upgrade --dry-run | grep -e sequence -e urlinfo
  DELETE FROM fresh.sqlite_sequence WHERE name COLLATE NOCASE IN (SELECT name FROM main.sqlite_master);
  DELETE FROM fresh."user_urlinfo";
  INSERT INTO fresh."user_urlinfo"("id", "name", "url", "mark") SELECT "id", "name", "url", "mark" FROM main."user_urlinfo";
  DELETE FROM fresh.sqlite_sequence WHERE seq = 0 OR name COLLATE NOCASE IN (SELECT name FROM main.sqlite_sequence);
  INSERT INTO fresh.sqlite_sequence(name, seq) SELECT made.name, counted.seq FROM main.sqlite_sequence AS counted JOIN fresh.sqlite_master AS made ON made.name = counted.name COLLATE NOCASE AND made.sql LIKE '%AUTOINCREMENT%';

What is lost is asked for:

  $ routerdbctl db upgrade | tail -1
  routerdbctl: this cannot be taken back, and there is no terminal to ask on: say --yes
  myrouter.db: index names is new
  $ chmod 640 $database
  $ routerdbctl --yes db upgrade | tail -1
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-1
  $ stat -c '%a %n' $directory/*
  644 /etc/config/systemconf/database/dpilib.db
  640 /etc/config/systemconf/database/myrouter.db
  640 /etc/config/systemconf/database/myrouter.db.before-1
  $ sqlite3 $database "SELECT * FROM user_urlinfo; SELECT * FROM speeds; PRAGMA user_version; SELECT * FROM sqlite_sequence ORDER BY name"
  1|mine|a.example||red
  1|slow
  2
  filter_url|1
  user_timegroup|1
  user_urlinfo|1
  $ sqlite3 $directory/myrouter.db.before-1 "SELECT * FROM user_urlinfo; SELECT * FROM notes"
  1|mine|a.example|
  old
  $ routerdbctl db upgrade --check
  $ routerdbctl rule get url-filter 1.timegroup_id
  1
  $ routerdbctl rule add user-url name=next
  2

Back again, with what is lost that way:

  $ routerdbctl db upgrade --check --to $directory/myrouter.db.before-1
  myrouter.db: version 2 becomes 0
  myrouter.db: notes is a new table, with 1 rows
  myrouter.db: user_ipgroup.name moves from place 2 to 1
  myrouter.db: user_ipgroup.name was TEXT NOT NULL and is TEXT
  myrouter.db: user_ipgroup.startip moves from place 3 to 2
  myrouter.db: user_ipgroup.endip moves from place 4 to 3
  myrouter.db: user_ipgroup.mark moves from place 1 to 4
  myrouter.db: user_urlinfo.color is gone, with its values in 2 rows
  myrouter.db: speeds is gone, with its 1 rows
  myrouter.db: index names is gone
  [1]

The rows of another file, such as a backup of an older firmware:

  $ routerdbctl --yes db upgrade --from $directory/myrouter.db.before-1 | tail -3
  myrouter.db: index names is new
  myrouter.db: its rows give way to those of /etc/config/systemconf/database/myrouter.db.before-1
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-2
  $ sqlite3 $database "SELECT * FROM user_urlinfo"
  1|mine|a.example||red

The catalogue, where the firmware brings one:

  $ cp $directory/dpilib.db /rom$directory
  $ sqlite3 $directory/dpilib.db "INSERT INTO App_Class VALUES(1, 'a', 'A', 0, '')"
  $ sqlite3 /rom$directory/dpilib.db "ALTER TABLE App_Class ADD COLUMN Icon TEXT DEFAULT 'none'"
  $ routerdbctl db upgrade --check
  dpilib.db: App_Class.Icon is new: 'none'
  [1]
  $ routerdbctl db upgrade
  dpilib.db: App_Class.Icon is new: 'none'
  dpilib.db: upgraded; the old one is /etc/config/systemconf/database/dpilib.db.before-1
  $ sqlite3 $directory/dpilib.db "SELECT * FROM App_Class"
  1|a|A|0||none
  $ routerdbctl db upgrade --check --from $directory/dpilib.db.before-1
  dpilib.db: App_Class.Icon is new: 'none'
  dpilib.db: its rows give way to those of /etc/config/systemconf/database/dpilib.db.before-1
  [1]
  $ routerdbctl db upgrade --from $directory/dpilib.db --to $factory
  routerdbctl: one of them is a catalogue of applications, and the other is none
  [1]

Nobody else has the files open for long; a name with signs in it is a name:

  $ mkdir '/tmp/a?b#c%20'
  $ cp $factory '/tmp/a?b#c%20/new.db'
  $ sqlite3 '/tmp/a?b#c%20/new.db' 'ALTER TABLE user_urlinfo ADD COLUMN extra'
  $ routerdbctl db upgrade --check --to '/tmp/a?b#c%20/new.db'
  myrouter.db: user_urlinfo.extra is new: NULL
  [1]

Names are shown as a terminal may have them:

  $ sqlite3 $database "CREATE TABLE \"a'b; \"\"$(printf '\033')[31m%s\"(\"$(printf '\033')'\"\"c\", d); INSERT INTO \"a'b; \"\"$(printf '\033')[31m%s\" VALUES(1, 2)"
  $ routerdbctl db upgrade --check
  myrouter.db: a'b; "?[31m%s is gone, with its 1 rows
  [1]
  $ sqlite3 $factory "CREATE TABLE \"a'b; \"\"$(printf '\033')[31m%s\"(\"$(printf '\033')'\"\"c\", e)"
  $ routerdbctl --yes db upgrade
  myrouter.db: a'b; "?[31m%s.e is new: NULL
  myrouter.db: a'b; "?[31m%s.d is gone, with its values in 1 rows
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-3
  $ sqlite3 $database "SELECT * FROM \"a'b; \"\"$(printf '\033')[31m%s\""
  1|

No trigger runs meanwhile:

  $ sqlite3 $factory "CREATE TRIGGER louder AFTER INSERT ON user_urlinfo BEGIN UPDATE user_urlinfo SET name = upper(name); END"
  $ routerdbctl db upgrade
  myrouter.db: trigger louder is new
  myrouter.db: upgraded; the old one is /etc/config/systemconf/database/myrouter.db.before-4
  $ sqlite3 $database "SELECT name FROM user_urlinfo"
  mine
