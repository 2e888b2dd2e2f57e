A rule from its beginning to its end:

  $ routerdbctl rule add time-group name='School nights' days=mon-fri hours=20:30-23:59
  1
  $ routerdbctl rule add url-filter name=Games url=games.example group='School nights'
  1
  $ routerdbctl rule add url-filter name=Films url=films.example days=sat,sun hours=00:00-10:00 mark='not before ten'
  2
  $ routerdbctl rule list url-filter
  id  name   url            timecontrol  timegroup_id  days     start_time  end_time  status  mark
   1  Games  games.example            2             1  none                                1
   2  Films  films.example            1             0  sat,sun  00:00       10:00          1  not before ten
  $ routerdbctl rule list time-group
  id  name           days     start_time  end_time  mark
   1  School nights  mon-fri  20:30       23:59
  $ routerdbctl rule get url-filter 2
  id  name   url            timecontrol  timegroup_id  days     start_time  end_time  status  mark
   2  Films  films.example            1             0  sat,sun  00:00       10:00          1  not before ten
  $ routerdbctl rule get url-filter 2.days
  sat,sun
  $ routerdbctl rule get url-filter 2.mark
  not before ten
  $ routerdbctl -o json rule get url-filter 2.mark
  [
    {"mark":"not before ten"}
  ]
  $ routerdbctl rule set url-filter 2 hours=00:00-09:00 mark=
  $ routerdbctl rule get url-filter 2
  id  name   url            timecontrol  timegroup_id  days     start_time  end_time  status  mark
   2  Films  films.example            1             0  sat,sun  00:00       09:00          1
  $ routerdbctl rule set url-filter 2 group=#1
  $ routerdbctl rule list url-filter
  id  name   url            timecontrol  timegroup_id  days     start_time  end_time  status  mark
   1  Games  games.example            2             1  none                                1
   2  Films  films.example            2             1  sat,sun  00:00       09:00          1
  $ routerdbctl rule disable url-filter 1 2
  $ routerdbctl rule get url-filter 1.status
  0
  $ routerdbctl rule enable url-filter 1
  $ routerdbctl rule list url-filter --where status=1
  id  name   url            timecontrol  timegroup_id  days  start_time  end_time  status  mark
   1  Games  games.example            2             1  none                             1
  $ routerdbctl rule rm url-filter 1
  $ routerdbctl rule list url-filter
  id  name   url            timecontrol  timegroup_id  days     start_time  end_time  status  mark
   2  Films  films.example            2             1  sat,sun  00:00       09:00          0
  $ routerdbctl --yes rule rm url-filter --all
  $ routerdbctl rule list url-filter
  id  name  url  timecontrol  timegroup_id  days  start_time  end_time  status  mark

Rows that are chosen, ordered and cut:

  $ for name in one two three four; do routerdbctl rule add user-url name=$name url=$name.example; done
  1
  2
  3
  4
  $ routerdbctl rule list user-url --fields name,id --sort name
  name   id
  four    4
  one     1
  three   3
  two     2
  $ routerdbctl rule list user-url --fields name --sort -id --limit 2
  name
  four
  three
  $ routerdbctl rule list user-url --where name=two --where url=two.example --fields id --no-header
  2
  $ routerdbctl rule list user-url --where days=daily
  routerdbctl: user-url has no field "days"; "routerdbctl table show user-url" lists them
  [2]
  $ routerdbctl rule list user-url --where name
  routerdbctl: --where takes FIELD=VALUE, not "name"
  [2]
  $ routerdbctl rule list user-url --fields id,nothing
  routerdbctl: user-url has no field "nothing"; "routerdbctl table show user-url" lists them
  [2]
  $ routerdbctl rule list user-url --sort nothing
  routerdbctl: user-url has no field "nothing"; "routerdbctl table show user-url" lists them
  [2]
  $ routerdbctl rule list user-url --limit 0
  routerdbctl: --limit takes a number from 1 to 86400, not "0"
  [2]

What a rule is made of may come from a file, or from a pipe:

  $ printf '%s\n' '# a comment' 'name=From a file' '' 'url=file.example' > rule
  $ routerdbctl rule add user-url --from rule
  5
  $ printf 'name=From a pipe\nurl=pipe.example' | routerdbctl rule add user-url --from - mark=here
  6
  $ routerdbctl -o tsv rule list user-url --where url=pipe.example
  id\tname\turl\tmark (esc)
  6\tFrom a pipe\tpipe.example\there (esc)
  $ routerdbctl rule add user-url --from missing
  routerdbctl: cannot read missing: No such file or directory
  [3]

An id of one's own is taken if it is free:

  $ routerdbctl rule add user-url id=40 name=forty
  40
  $ routerdbctl rule add user-url id=40 name=again
  routerdbctl: user-url has a row 40 already
  [1]
  $ routerdbctl rule add user-url id=0 name=none
  routerdbctl: "0" is no id
  [2]

What is not there:

  $ routerdbctl rule get user-url 99
  routerdbctl: user-url has no row 99
  [3]
  $ routerdbctl rule set user-url 99 name=x
  routerdbctl: user-url has no row 99
  [3]
  $ routerdbctl rule rm user-url 1 99
  routerdbctl: user-url has no row 99
  [3]
  $ routerdbctl rule enable user-url 1
  routerdbctl: rows of user-url always apply: they have no status
  [2]
  $ routerdbctl rule get user-url one
  routerdbctl: "one" is no id of a row
  [2]
  $ routerdbctl rule get user-url 1.nothing
  routerdbctl: user-url has no field "nothing"; "routerdbctl table show user-url" lists them
  [2]

Nothing happens but in words:

  $ routerdbctl --dry-run rule add user-url name="O'Neil"
  INSERT INTO "user_urlinfo"("name", "url", "mark") SELECT 'O''Neil', '', '' WHERE (SELECT count(*) FROM "user_urlinfo") < 128;
  $ routerdbctl --dry-run rule set user-url 1 name=x
  UPDATE "user_urlinfo" SET "name" = 'x' WHERE id = 1;
  $ routerdbctl --dry-run rule rm user-url 1 2
  DELETE FROM "user_urlinfo" WHERE id IN (1, 2);
  $ routerdbctl --dry-run rule disable wifi0-acl 1
  routerdbctl: wifi0-acl has no row 1
  [3]
  $ routerdbctl rule add wifi0-acl mac=02:00:5e:10:00:01
  1
  $ routerdbctl --dry-run rule disable wifi0-acl 1
  UPDATE "wifi0acl" SET "status" = 0 WHERE id IN (1);
  $ routerdbctl rule get wifi0-acl 1.status
  1
