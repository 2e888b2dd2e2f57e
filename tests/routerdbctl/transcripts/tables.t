Which tables there are, with their rows:

  $ routerdbctl rule add url-filter name=Games url=games.example
  1
  $ routerdbctl table list
  name            sql                   record            rows  capacity
  static-binding  dhcpserverstaticbind  DhcpStaticItem       0       128
  url-filter      filter_url            UrlFilterItem        1       128
  mac-filter      filter_mac            MacFilterItem        0       128
  ip-filter       filter_ipport         IpFilterItem         0       128
  time-group      user_timegroup        TimeGroupItem        0       128
  ip-group        user_ipgroup          IpGroupItem          0       128
  smart-qos       smartqos_whitelist    SmartQosItem         0       128
  user-url        user_urlinfo          UserUrlItem          0       128
  family-member   famliymember          FamliyMemberItem     0       128
  port-forward    forword_ipport        PortFwItem           0       128
  qos             qos_rule              QosItem              0       128
  behavior        behavior_rule         BehaviorItem         0       128
  wifi0-acl       wifi0acl              AclItem              0       128
  wifi1-acl       wifi1acl              AclItem              0       128
  wifi2-acl       wifi2acl              AclItem              0       128
  domain-ip       domain_ip             DomainIpItem         0       128
  $ routerdbctl -o json table list
  [
    {"name":"static-binding","sql":"dhcpserverstaticbind","record":"DhcpStaticItem","rows":0,"capacity":128},
    {"name":"url-filter","sql":"filter_url","record":"UrlFilterItem","rows":1,"capacity":128},
    {"name":"mac-filter","sql":"filter_mac","record":"MacFilterItem","rows":0,"capacity":128},
    {"name":"ip-filter","sql":"filter_ipport","record":"IpFilterItem","rows":0,"capacity":128},
    {"name":"time-group","sql":"user_timegroup","record":"TimeGroupItem","rows":0,"capacity":128},
    {"name":"ip-group","sql":"user_ipgroup","record":"IpGroupItem","rows":0,"capacity":128},
    {"name":"smart-qos","sql":"smartqos_whitelist","record":"SmartQosItem","rows":0,"capacity":128},
    {"name":"user-url","sql":"user_urlinfo","record":"UserUrlItem","rows":0,"capacity":128},
    {"name":"family-member","sql":"famliymember","record":"FamliyMemberItem","rows":0,"capacity":128},
    {"name":"port-forward","sql":"forword_ipport","record":"PortFwItem","rows":0,"capacity":128},
    {"name":"qos","sql":"qos_rule","record":"QosItem","rows":0,"capacity":128},
    {"name":"behavior","sql":"behavior_rule","record":"BehaviorItem","rows":0,"capacity":128},
    {"name":"wifi0-acl","sql":"wifi0acl","record":"AclItem","rows":0,"capacity":128},
    {"name":"wifi1-acl","sql":"wifi1acl","record":"AclItem","rows":0,"capacity":128},
    {"name":"wifi2-acl","sql":"wifi2acl","record":"AclItem","rows":0,"capacity":128},
    {"name":"domain-ip","sql":"domain_ip","record":"DomainIpItem","rows":0,"capacity":128}
  ]
  $ routerdbctl -o jsonl table list | head -2
  {"name":"static-binding","sql":"dhcpserverstaticbind","record":"DhcpStaticItem","rows":0,"capacity":128}
  {"name":"url-filter","sql":"filter_url","record":"UrlFilterItem","rows":1,"capacity":128}
  $ routerdbctl -o tsv --no-header table list | tail -1
  domain-ip\tdomain_ip\tDomainIpItem\t0\t128 (esc)

A table answers to its name for people, in SQL, and of its record, and to the first letters of each:

  $ routerdbctl -o tsv table show family-member
  field\tkind\twidth\tvalues (esc)
  id\tnumber\t4\tfrom 1 on; given by the database (esc)
  name\ttext\t150\ta text (esc)
  mac\ttext\t20\ta MAC address (esc)
  devtype\tnumber\t4\ta number (esc)
  mark\ttext\t156\ta text (esc)
  $ routerdbctl table show famliymember | head -2
  field    kind    width  values
  id       number      4  from 1 on; given by the database
  $ routerdbctl table show FamliyMemberItem | head -2
  field    kind    width  values
  id       number      4  from 1 on; given by the database
  $ routerdbctl table show fam | head -2
  field    kind    width  values
  id       number      4  from 1 on; given by the database
  $ routerdbctl table show filter_u | head -2
  field         kind    width  values
  id            number      4  from 1 on; given by the database
  $ routerdbctl table show wifi
  routerdbctl: which table is "wifi"? There are wifi0-acl, wifi1-acl, wifi2-acl
  [2]
  $ routerdbctl table show wifi1 | head -1
  field   kind    width  values
  $ routerdbctl table show u
  routerdbctl: which table is "u"? There are url-filter, user-url
  [2]
  $ routerdbctl table show nothing
  routerdbctl: there is no table "nothing"; there are static-binding, url-filter, mac-filter, ip-filter, time-group, ip-group, smart-qos, user-url, family-member, port-forward, qos, behavior, wifi0-acl, wifi1-acl, wifi2-acl, domain-ip
  [2]

The record of the three access lists means the first:

  $ routerdbctl rule add AclItem mac=02:00:5e:10:00:01
  1
  $ routerdbctl rule list wifi0-acl
  id  name  mac                status  mark
   1        02:00:5e:10:00:01       1

What groups and controls are said to be:

  $ routerdbctl table show ip-filter
  field         kind    width  values
  id            number      4  from 1 on; given by the database
  name          text      300  a text
  ipcontrol     number      4  1 its own, 2 the group's
  ipgroup_id    number      4  ip-group
  timecontrol   number      4  1 its own, 2 the group's
  timegroup_id  number      4  time-group
  devstartip    text       20  an IPv4 address
  devendip      text       20  an IPv4 address
  devfromport   number      4  a number
  devtoport     number      4  a number
  protocol      number      4  a number
  weekday1      number      4  0 or 1
  weekday2      number      4  0 or 1
  weekday3      number      4  0 or 1
  weekday4      number      4  0 or 1
  weekday5      number      4  0 or 1
  weekday6      number      4  0 or 1
  weekday7      number      4  0 or 1
  start_time    text       20  HH:MM
  end_time      text       20  HH:MM
  status        number      4  0 or 1
  mark          text      152  a text

Tables are no rules:

  $ routerdbctl -o set table list
  routerdbctl: rules alone can be written so; see "routerdbctl help rule list"
  [2]
