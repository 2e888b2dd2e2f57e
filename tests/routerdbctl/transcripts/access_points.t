  $ database=/etc/config/systemconf/database/myrouter.db
  $ sqlite3 $database "INSERT INTO WlanGroupInfo(WlanGroup_Id, WlanGroup_Name) VALUES(3, 'Upstairs');
  >     INSERT INTO DevInfo(Dev_Sn, Dev_Name, Dev_Ipaddress, Dev_IPSUM, Dev_MAC, Dev_Status, Dev_Wlan_GroupId, Dev_Model_Name, Dev_SwVer, Dev_Wlan_Sta_Num, Dev_Wlan_Sta_Num_sec)
  >     VALUES(335653056, 'Attic', '192.168.1.20', 20, '02:00:5e:10:00:20', '1', '3', 'AP-2', '1.4', '5', '2'),
  >           (352430272, 'Hall', '192.168.1.21', 21, '02:00:5e:10:00:21', '0', '0', 'AP-2', '1.4', '0', NULL),
  >           (369207488, 'Hall', '192.168.1.22', 22, '', '1', '0', '', '', '', '')"

Access points, in the order of their addresses:

  $ routerdbctl ap list
         sn  name   ip            mac                status   group     model  version  stations
  335653056  Attic  192.168.1.20  02:00:5e:10:00:20  online   Upstairs  AP-2   1.4             7
  352430272  Hall   192.168.1.21  02:00:5e:10:00:21  offline            AP-2   1.4             0
  369207488  Hall   192.168.1.22                     online                                    0
  $ routerdbctl -o json ap list
  [
    {"sn":335653056,"name":"Attic","ip":"192.168.1.20","mac":"02:00:5e:10:00:20","status":"online","group":"Upstairs","model":"AP-2","version":"1.4","stations":7},
    {"sn":352430272,"name":"Hall","ip":"192.168.1.21","mac":"02:00:5e:10:00:21","status":"offline","group":"","model":"AP-2","version":"1.4","stations":0},
    {"sn":369207488,"name":"Hall","ip":"192.168.1.22","mac":"","status":"online","group":"","model":"","version":"","stations":0}
  ]
  $ routerdbctl ap list --where status=online --sort -sn --limit 1
         sn  name  ip            mac  status  group  model  version  stations
  369207488  Hall  192.168.1.22       online                                0
  $ routerdbctl ap list --where nothing=1
  routerdbctl: --where takes FIELD=VALUE with a column of the list, not "nothing=1"
  [2]
  $ routerdbctl ap list --sort nothing
  routerdbctl: --sort takes a column of the list, not "nothing"
  [2]

One is named by its serial number, its address, its MAC address, or its name:

  $ routerdbctl ap show 335653056
  field                 value
  Dev_Sn                335653056
  Dev_Name              Attic
  Dev_Ipaddress         192.168.1.20
  Dev_MAC               02:00:5e:10:00:20
  Dev_SwVer             1.4
  Dev_Model_Name        AP-2
  Dev_Wlan_GroupId      3
  Dev_Wlan_Sta_Num      5
  Dev_Wlan_Sta_Num_sec  2
  Dev_Status            1
  Dev_IPSUM             20
  $ routerdbctl ap show 192.168.1.20 | head -2
  field                 value
  Dev_Sn                335653056
  $ routerdbctl ap show 02:00:5E:10:00:20 | head -2
  field                 value
  Dev_Sn                335653056
  $ routerdbctl ap show Attic | head -2
  field                 value
  Dev_Sn                335653056
  $ routerdbctl ap show Hall
  routerdbctl: several access points are called "Hall"; say which, such as 352430272
  [1]
  $ routerdbctl ap show Cellar
  routerdbctl: no access point has the serial number, address or name "Cellar"
  [3]
  $ routerdbctl -o json ap show Attic | /usr/bin/python3 -c 'import json, sys; print(len(json.load(sys.stdin)[0]))'
  160

Fields are set, with their widths:

  $ routerdbctl ap set Attic Name="Attic's" Dev_Wlan1_Ssid=guests Wlan_Channel_sec=36
  $ sqlite3 $database "SELECT Dev_Name, Dev_Wlan1_Ssid, Dev_Wlan_Channel_sec FROM DevInfo WHERE Dev_Sn = 335653056"
  Attic's|guests|36
  $ routerdbctl ap set 335653056 nothing=1
  routerdbctl: an access point has no field "nothing"; "routerdbctl -o json ap show" lists them
  [2]
  $ routerdbctl ap set 335653056 Name
  routerdbctl: "Name" is not of the form FIELD=VALUE
  [2]
  $ routerdbctl ap set 335653056 Wlan_Channel_sec=123456789012345
  routerdbctl: Dev_Wlan_Channel_sec: "123456789012345" has 15 bytes, of which 4 fit
  [2]
  $ routerdbctl ap set 335653056 Wlan3_Ssid=$(printf 'a%.0s' $(seq 300)) 2>&1 | tail -c 40
  aaaaaaa" has 300 bytes, of which 99 fit
  $ routerdbctl ap set 335653056 Ipaddress=192.168.1.99
  routerdbctl: Dev_Ipaddress is what an access point is known by; --force changes it nevertheless
  [1]
  $ routerdbctl --dry-run ap set 335653056 Name=Roof
  UPDATE DevInfo SET "Dev_Name" = 'Roof' WHERE Dev_Sn = 335653056;
  $ routerdbctl ap set Cellar Name=Roof
  routerdbctl: no access point has the serial number, address or name "Cellar"
  [3]

Status and group:

  $ routerdbctl ap status Attic\'s offline
  $ sqlite3 $database "SELECT Dev_Status, Dev_Wlan_Sta_Num FROM DevInfo WHERE Dev_Sn = 335653056"
  0|0
  $ routerdbctl ap status 192.168.1.22 offline
  $ routerdbctl ap status 192.168.1.22 online
  $ sqlite3 $database "SELECT Dev_Status FROM DevInfo WHERE Dev_Sn = 369207488"
  1
  $ routerdbctl --dry-run ap status 192.168.1.22 offline
  access point 369207488: status offline
  $ routerdbctl ap status 192.168.1.22 away
  routerdbctl: an access point is online or offline, not "away"
  [2]
  $ routerdbctl ap status Cellar online
  routerdbctl: no access point has the serial number, address or name "Cellar"
  [3]
  $ routerdbctl ap group 192.168.1.21 Upstairs
  $ routerdbctl ap list --where group=Upstairs
         sn  name     ip            mac                status   group     model  version  stations
  335653056  Attic's  192.168.1.20  02:00:5e:10:00:20  offline  Upstairs  AP-2   1.4             0
  352430272  Hall     192.168.1.21  02:00:5e:10:00:21  offline  Upstairs  AP-2   1.4             0
  $ routerdbctl ap group 192.168.1.21 '#0'
  $ routerdbctl ap group 192.168.1.21 '#3'
  $ routerdbctl ap group 192.168.1.21 '#4'
  routerdbctl: there is no WLAN group #4
  [1]
  $ routerdbctl ap group 192.168.1.21 Downstairs
  routerdbctl: there is no WLAN group Downstairs
  [1]
