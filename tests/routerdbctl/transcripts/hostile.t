Values arrive as they were typed:

  $ name="O'Neil'); drop table user_urlinfo; -- \" \\ %s \$(true) select"
  $ routerdbctl rule add user-url name="$name" url=x
  1
  $ test "$(routerdbctl rule get user-url 1.name)" = "$name"
  $ routerdbctl rule set user-url 1 name="$name$name"
  $ test "$(routerdbctl rule get user-url 1.name)" = "$name$name"
  $ routerdbctl rule set user-url 1 url="it's" --if name="$name$name"
  $ routerdbctl rule list user-url --where "name=$name$name" --fields id,url
  id  url
   1  it's
  $ routerdbctl rule add time-group name="' or 1--"
  1
  $ routerdbctl rule add url-filter name=x group="' or 1--"
  1
  $ routerdbctl rule add url-filter name=x group="'"
  routerdbctl: there is no time-group '
  [1]
  $ routerdbctl -o set rule list user-url > again
  $ routerdbctl rule rm user-url 1
  $ sh again
  1
  $ test "$(routerdbctl rule get user-url 1.name)" = "$name$name"

Names of tables, fields and ids are no statements:

  $ routerdbctl rule list 'user_urlinfo; drop table user_urlinfo'
  routerdbctl: there is no table "user_urlinfo; drop table user_urlinfo"; there are static-binding, url-filter, mac-filter, ip-filter, time-group, ip-group, smart-qos, user-url, family-member, port-forward, qos, behavior, wifi0-acl, wifi1-acl, wifi2-acl, domain-ip
  [2]
  $ routerdbctl rule list user-url --fields 'name" from user_urlinfo; --'
  routerdbctl: user-url has no field "name" from user_urlinfo; --"; "routerdbctl table show user-url" lists them
  [2]
  $ routerdbctl rule list user-url --sort '1; drop table user_urlinfo'
  routerdbctl: user-url has no field "1; drop table user_urlinfo"; "routerdbctl table show user-url" lists them
  [2]
  $ routerdbctl rule get user-url '1 or 1'
  routerdbctl: "1 or 1" is no id of a row
  [2]
  $ routerdbctl rule set user-url 1 'name"=x'
  routerdbctl: user-url has no field "name""; it has id, name, url, mark
  [2]
  $ routerdbctl rule rm user-url '1) or (1'
  routerdbctl: "1) or (1" is no id of a row
  [2]
  $ routerdbctl rule list user-url --where '1=1 or name=x'
  routerdbctl: user-url has no field "1"; "routerdbctl table show user-url" lists them
  [2]
  $ routerdbctl ap show "' or 1--"
  routerdbctl: no access point has the serial number, address or name "' or 1--"
  [3]
