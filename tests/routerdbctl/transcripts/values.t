What a field is not made for is refused, with a reason, before anything happens.

  $ routerdbctl rule add static-binding mac=02-00-5e-10-00-01
  routerdbctl: mac: "02-00-5e-10-00-01" is no MAC address, such as 02:00:5e:10:00:01
  [2]
  $ routerdbctl rule add static-binding mac=02:00:5e:10:00
  routerdbctl: mac: "02:00:5e:10:00" is no MAC address, such as 02:00:5e:10:00:01
  [2]
  $ routerdbctl rule add static-binding ip=192.168.1.256
  routerdbctl: ip: "192.168.1.256" is no IPv4 address, such as 192.168.1.20
  [2]
  $ routerdbctl rule add static-binding ip=192.168.1.1000000000000000000
  routerdbctl: ip: "192.168.1.1000000000000000000" has 29 bytes, of which 19 fit
  [2]
  $ routerdbctl rule add static-binding devtype=many
  routerdbctl: devtype: "many" is no number of 32 bits
  [2]
  $ routerdbctl rule add static-binding devtype=2147483648
  routerdbctl: devtype: "2147483648" is no number of 32 bits
  [2]
  $ routerdbctl rule add static-binding devtype=
  routerdbctl: devtype: "" is no number of 32 bits
  [2]
  $ routerdbctl rule add wifi0-acl status=2
  routerdbctl: status: "2" is neither 0 nor 1
  [2]
  $ routerdbctl rule add time-group start_time=24:00
  routerdbctl: start_time: "24:00" is no time of day, such as 20:30
  [2]
  $ routerdbctl rule add time-group start_time=7:00
  routerdbctl: start_time: "7:00" is no time of day, such as 20:30
  [2]
  $ routerdbctl rule add time-group hours=20:30
  routerdbctl: "20:30" are no hours, such as 20:30-23:59
  [2]
  $ routerdbctl rule add time-group hours=20:30-24:30
  routerdbctl: "20:30-24:30" are no hours, such as 20:30-23:59
  [2]
  $ routerdbctl rule add time-group days=monday
  routerdbctl: "monday" are no days, such as mon-fri, sat,sun, daily or none
  [2]
  $ routerdbctl rule add time-group days=
  routerdbctl: "" are no days, such as mon-fri, sat,sun, daily or none
  [2]
  $ routerdbctl rule add time-group days=mon,
  routerdbctl: "mon," are no days, such as mon-fri, sat,sun, daily or none
  [2]
  $ routerdbctl rule add time-group weekday1=3
  routerdbctl: weekday1: "3" is neither 0 nor 1
  [2]
  $ routerdbctl rule add user-url name
  routerdbctl: "name" is not of the form FIELD=VALUE
  [2]
  $ routerdbctl rule add user-url days=daily
  routerdbctl: user-url has no field "days"; it has id, name, url, mark
  [2]
  $ routerdbctl rule add user-url
  routerdbctl: a row needs at least one FIELD=VALUE; "routerdbctl table show user-url" lists the fields
  [2]
  $ routerdbctl rule add behavior behavior_type=1
  routerdbctl: behavior has no field "behavior_type"; it has id, control_type, ipcontrol, ipgroup_id, timecontrol, timegroup_id, devmac, devstartip, devendip, behavior_info, days, start_time, end_time, status, mark
  [2]
  $ routerdbctl rule set user-url 1
  routerdbctl: say what to set, as FIELD=VALUE
  [2]
  $ routerdbctl rule set user-url 1 id=2
  routerdbctl: the id of a row stays
  [2]
  $ routerdbctl rule add user-url name=$'\303('
  routerdbctl: name: "\xc3(" is no UTF-8 (esc)
  [2]

Widths are counted in bytes: of 151 that fit, 150 are letters here and two a letter.

  $ letters=$(printf 'a%.0s' $(seq 150))
  $ routerdbctl rule add time-group name=${letters}ä 2>&1 | tail -c 40
  aaaa\xc3\xa4" has 152 bytes, of which 151 fit (esc)
  $ routerdbctl rule add time-group name=${letters}b
  1

Days of a week:

  $ for days in daily none mon-fri sat,sun fri-mon mon,wed,fri sun mon-tue thu-thu; do
  >     echo "$days: $(routerdbctl rule get time-group $(routerdbctl rule add time-group days=$days).days)"
  > done
  daily: daily
  none: none
  mon-fri: mon-fri
  sat,sun: sat,sun
  fri-mon: mon,fri-sun
  mon,wed,fri: mon,wed,fri
  sun: sun
  mon-tue: mon,tue
  thu-thu: thu

Nothing of it was changed but what fitted:

  $ routerdbctl -o jsonl rule list static-binding

With --force it is taken nevertheless, but for what is no number:

  $ routerdbctl rule add --force static-binding mac=nobody ip=nowhere
  1
  $ routerdbctl rule add --force static-binding devtype=many
  routerdbctl: devtype: "many" is no number of 32 bits
  [2]
