Whatever the tables hold: export, reset and import give every byte back.

  $ database=/etc/config/systemconf/database/myrouter.db
  $ rows() { sqlite3 $database .dump | grep '^INSERT' | grep -v sqlite_sequence; }
  $ for seed in 1 2 3 4 5; do
  >     routerdbctl --yes -q db reset > /dev/null
  >     random_rows $seed | sqlite3 $database
  >     rows > before
  >     routerdbctl export > exported || echo "seed $seed: export"
  >     routerdbctl -o sql export > exported.sql || echo "seed $seed: export as SQL"
  >     routerdbctl --yes -q db reset > /dev/null || echo "seed $seed: reset"
  >     rows
  >     routerdbctl import --force exported || echo "seed $seed: import"
  >     rows | cmp - before || echo "seed $seed: import differs"
  >     routerdbctl diff exported || echo "seed $seed: diff"
  >     routerdbctl --yes -q db reset > /dev/null
  >     sqlite3 $database < exported.sql
  >     rows | cmp - before || echo "seed $seed: SQL differs"
  >     test -s before || echo "seed $seed: nothing was tried"
  > done
