Two bindings do not share a device or an address:

  $ routerdbctl rule add static-binding mac=02:00:5e:10:00:01 ip=192.168.1.7
  1
  $ routerdbctl rule add static-binding mac=02:00:5e:10:00:02 ip=192.168.1.8
  2
  $ routerdbctl rule add static-binding mac=02:00:5E:10:00:01 ip=192.168.1.9
  routerdbctl: row 1 of static-binding has mac 02:00:5E:10:00:01 already
  [1]
  $ routerdbctl rule add static-binding mac=02:00:5e:10:00:03 ip=192.168.1.8
  routerdbctl: row 2 of static-binding has ip 192.168.1.8 already
  [1]
  $ routerdbctl rule set static-binding 1 ip=192.168.1.8
  routerdbctl: row 2 of static-binding has ip 192.168.1.8 already
  [1]
  $ routerdbctl rule set static-binding 1 ip=192.168.1.7
  $ routerdbctl rule set static-binding 1 --force ip=192.168.1.8
  $ routerdbctl -o tsv rule list static-binding
  id\tdevtype\tmac\tip\tmark (esc)
  1\t0\t02:00:5e:10:00:01\t192.168.1.8\t (esc)
  2\t0\t02:00:5e:10:00:02\t192.168.1.8\t (esc)

Other tables do not mind:

  $ routerdbctl rule add family-member name=a mac=02:00:5e:10:00:01
  1
  $ routerdbctl rule add family-member name=b mac=02:00:5e:10:00:01
  2
