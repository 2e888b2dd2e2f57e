Each table: a row is added, listed, changed and removed.

  $ for table in $(routerdbctl -o tsv --no-header table list | cut -f 1); do
  >     id=$(routerdbctl rule add $table mark=first) || echo "cannot add to $table"
  >     routerdbctl rule set $table $id mark=second || echo "cannot set in $table"
  >     echo "$table $(routerdbctl rule get $table $id.mark) $(routerdbctl -o jsonl rule list $table | wc -l)"
  >     routerdbctl rule rm $table $id || echo "cannot remove from $table"
  >     routerdbctl -o jsonl rule list $table
  > done
  static-binding second 1
  url-filter second 1
  mac-filter second 1
  ip-filter second 1
  time-group second 1
  ip-group second 1
  smart-qos second 1
  user-url second 1
  family-member second 1
  port-forward second 1
  qos second 1
  behavior second 1
  wifi0-acl second 1
  wifi1-acl second 1
  wifi2-acl second 1
  domain-ip second 1

What a new row has that nothing was said of:

  $ for table in $(routerdbctl -o tsv --no-header table list | cut -f 1); do
  >     routerdbctl rule add $table mark=x > /dev/null
  >     echo "$table $(routerdbctl -o jsonl rule list $table)"
  > done
  static-binding {"id":2,"devtype":0,"mac":"","ip":"","mark":"x"}
  url-filter {"id":2,"name":"","url":"","timecontrol":1,"timegroup_id":0,"weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"00:00","end_time":"23:59","status":1,"mark":"x"}
  mac-filter {"id":2,"name":"","devmac":"","timecontrol":1,"timegroup_id":0,"weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"00:00","end_time":"23:59","status":1,"mark":"x"}
  ip-filter {"id":2,"name":"","ipcontrol":1,"ipgroup_id":0,"timecontrol":1,"timegroup_id":0,"devstartip":"","devendip":"","devfromport":0,"devtoport":0,"protocol":0,"weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"00:00","end_time":"23:59","status":1,"mark":"x"}
  time-group {"id":2,"name":"","weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"00:00","end_time":"23:59","mark":"x"}
  ip-group {"id":2,"name":"","startip":"","endip":"","mark":"x"}
  smart-qos {"id":2,"devmac":"","mark":"x"}
  user-url {"id":2,"name":"","url":"","mark":"x"}
  family-member {"id":2,"name":"","mac":"","devtype":0,"mark":"x"}
  port-forward {"id":2,"name":"","devip":"","protocol":0,"devinnerfromport":0,"devinnertoport":0,"devexternfromport":0,"devexterntoport":0,"wanid":0,"status":1,"mark":"x"}
  qos {"id":2,"name":"","control_type":0,"devmac":"","ipcontrol":1,"ipgroup_id":0,"devstartip":"","devendip":"","timecontrol":1,"timegroup_id":0,"weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"00:00","end_time":"23:59","bw_up":0,"bw_down":0,"bw_shared_mode":0,"status":1,"mark":"x"}
  behavior {"id":2,"control_type":0,"ipcontrol":1,"ipgroup_id":0,"timecontrol":1,"timegroup_id":0,"devmac":"","devstartip":"","devendip":"","behavior_info":"","weekday1":1,"weekday2":1,"weekday3":1,"weekday4":1,"weekday5":1,"weekday6":1,"weekday7":1,"start_time":"00:00","end_time":"23:59","status":1,"mark":"x"}
  wifi0-acl {"id":2,"name":"","mac":"","status":1,"mark":"x"}
  wifi1-acl {"id":2,"name":"","mac":"","status":1,"mark":"x"}
  wifi2-acl {"id":2,"name":"","mac":"","status":1,"mark":"x"}
  domain-ip {"id":2,"name":"","domain":"","ip":"","status":1,"mark":"x"}
