Programs have room for 128 rows:

  $ sqlite3 /etc/config/systemconf/database/myrouter.db "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 127) INSERT INTO user_urlinfo(name) SELECT i FROM n"
  $ routerdbctl rule add user-url name=last
  128
  $ routerdbctl rule add user-url name=more
  routerdbctl: user-url has 128 rows, as many as programs have room for; --force adds one nevertheless
  [1]
  $ routerdbctl rule add --force user-url name=more
  129
  $ routerdbctl -q rule list user-url --limit 1
  id  name  url  mark
   1  1
  $ routerdbctl rule list user-url --limit 1
  id  name  url  mark
   1  1
  routerdbctl: user-url has 129 rows; programs have room for 128

Nor is it imported:

  $ routerdbctl export user-url > rows
  $ routerdbctl import rows
  routerdbctl: user_urlinfo rows: they would be more than programs have room for
  [1]
  $ routerdbctl import --force rows
