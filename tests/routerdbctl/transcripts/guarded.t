A change that holds only while the row is as somebody has seen it:

  $ routerdbctl rule add user-url name=old url=a.example
  1
  $ routerdbctl rule set user-url 1 name=new --if name=old
  $ routerdbctl rule set user-url 1 name=newer --if name=old
  routerdbctl: row 1 of user-url is not as --if expects it; nothing was changed
  [1]
  $ routerdbctl rule get user-url 1.name
  new
  $ routerdbctl rule set user-url 1 name=x --if nothing=old
  routerdbctl: --if takes FIELD=OLD with a field of user-url, not "nothing=old"
  [2]
  $ routerdbctl rule set user-url 1 name=x --if name
  routerdbctl: --if takes FIELD=OLD with a field of user-url, not "name"
  [2]
  $ routerdbctl --dry-run rule set user-url 1 name=x --if "name=new"
  UPDATE "user_urlinfo" SET "name" = 'x' WHERE id = 1 AND "name" = 'new';

Of many who add one to the same number each counts:

  $ routerdbctl rule add qos name=counter bw_up=0
  1
  $ add_one() {
  >     local up
  >     until up=$(routerdbctl rule get qos 1.bw_up) && routerdbctl -q rule set qos 1 bw_up=$((up + 1)) --if bw_up=$up 2> /dev/null; do :; done
  > }
  $ for i in 1 2 3 4 5 6 7 8 9 10 11 12; do add_one & done; wait
  $ routerdbctl rule get qos 1.bw_up
  12
