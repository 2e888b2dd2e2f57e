Rules refer to groups by name or number:

  $ routerdbctl rule add time-group name=Nights hours=20:30-23:59
  1
  $ routerdbctl rule add time-group name=Twice
  2
  $ routerdbctl rule add time-group name=Twice
  3
  $ routerdbctl rule add ip-group name=Children startip=192.168.1.20 endip=192.168.1.29
  1
  $ routerdbctl rule add url-filter name=a url=a.example group=Nights
  1
  $ routerdbctl rule add url-filter name=b url=b.example time-group=#2
  2
  $ routerdbctl rule add ip-filter name=c time-group=Nights ip-group=Children
  1
  $ routerdbctl -o tsv rule list ip-filter --fields name,timecontrol,timegroup_id,ipcontrol,ipgroup_id
  name\ttimecontrol\ttimegroup_id\tipcontrol\tipgroup_id (esc)
  c\t2\t1\t2\t1 (esc)

What is not there, or not clear, is refused:

  $ routerdbctl rule add url-filter name=d group=Mornings
  routerdbctl: there is no time-group Mornings
  [1]
  $ routerdbctl rule add url-filter name=d group=#9
  routerdbctl: there is no time-group #9
  [1]
  $ routerdbctl rule add url-filter name=d group=#x
  routerdbctl: "#x" is no id, such as #3
  [2]
  $ routerdbctl rule add url-filter name=d group=Twice
  routerdbctl: there are several time-groups "Twice"; say which one, such as #2
  [1]
  $ routerdbctl rule add ip-filter name=d group=Nights
  routerdbctl: ip-filter has no field "group"; it has id, name, ipcontrol, ipgroup_id, timecontrol, timegroup_id, devstartip, devendip, devfromport, devtoport, protocol, days, start_time, end_time, status, mark
  [2]
  $ routerdbctl rule add url-filter name=d timecontrol=2 timegroup_id=9
  routerdbctl: there is no time-group #9
  [1]
  $ routerdbctl rule add --force url-filter name=d group=#9
  3
  $ routerdbctl rule set url-filter 1 group=Mornings
  routerdbctl: there is no time-group Mornings
  [1]

A group that rules use stays:

  $ routerdbctl rule rm time-group 1
  routerdbctl: still used by url-filter 1; ip-filter 1; --force removes it nevertheless
  [1]
  $ routerdbctl rule rm time-group 3
  $ routerdbctl --yes rule rm time-group --all
  routerdbctl: still used by url-filter 1, 2; ip-filter 1; --force removes it nevertheless
  [1]
  $ routerdbctl rule rm ip-group 1
  routerdbctl: still used by ip-filter 1; --force removes it nevertheless
  [1]
  $ routerdbctl --dry-run rule rm --force ip-group 1
  DELETE FROM "user_ipgroup" WHERE id IN (1);
  $ routerdbctl rule rm --force ip-group 1

A rule that has times of its own uses none, whatever number it still has:

  $ routerdbctl rule set url-filter 2 days=daily hours=00:00-12:00
  $ routerdbctl rule get url-filter 2.timegroup_id
  2
  $ routerdbctl rule rm time-group 2
