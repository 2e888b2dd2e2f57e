Tables are aligned by what a terminal shows, numbers at their right end:

  $ routerdbctl rule add user-url id=7 name='日本' url=a.example
  7
  $ routerdbctl rule add user-url id=11 name='e'$'\xcc\x81'' Äpfel' url='b.example'
  11
  $ routerdbctl rule list user-url
  id  name     url        mark
   7  \xe6\x97\xa5\xe6\x9c\xac     a.example (esc)
  11  e\xcc\x81 \xc3\x84pfel  b.example (esc)
  $ routerdbctl --no-header rule list user-url
   7  \xe6\x97\xa5\xe6\x9c\xac     a.example (esc)
  11  e\xcc\x81 \xc3\x84pfel  b.example (esc)

What a terminal should not get is shown as "?":

  $ sqlite3 /etc/config/systemconf/database/myrouter.db "INSERT INTO user_urlinfo(id, name, url, mark) VALUES(12, char(27) || '[31m', 'tab' || char(9) || 'line' || char(10), cast(x'c328' AS TEXT))"
  $ routerdbctl rule list user-url --where id=12
  id  name   url        mark
  12  ?[31m  tab?line?  ?(

Programs get it as it is:

  $ routerdbctl -o json rule list user-url
  [
    {"id":7,"name":"\xe6\x97\xa5\xe6\x9c\xac","url":"a.example","mark":""}, (esc)
    {"id":11,"name":"e\xcc\x81 \xc3\x84pfel","url":"b.example","mark":""}, (esc)
    {"id":12,"name":"\u001b[31m","url":"tab\u0009line\u000a","mark":{"text":"c328"}}
  ]
  $ routerdbctl -o json rule list user-url | /usr/bin/python3 -c 'import json, sys; print(json.load(sys.stdin)[2]["url"].encode())'
  b'tab\tline\n'
  $ routerdbctl -o jsonl rule list user-url
  {"id":7,"name":"\xe6\x97\xa5\xe6\x9c\xac","url":"a.example","mark":""} (esc)
  {"id":11,"name":"e\xcc\x81 \xc3\x84pfel","url":"b.example","mark":""} (esc)
  {"id":12,"name":"\u001b[31m","url":"tab\u0009line\u000a","mark":{"text":"c328"}}
  $ routerdbctl -o tsv rule list user-url --where id=12 | od -c | head -5
  0000000   i   d  \t   n   a   m   e  \t   u   r   l  \t   m   a   r   k
  0000020  \n   1   2  \t 033   [   3   1   m  \t   t   a   b   \   t   l
  0000040   i   n   e   \   n  \t 303   (  \n
  0000051
  $ routerdbctl -o set rule list user-url --where id=11
  routerdbctl rule add --force user-url id=11 name='e\xcc\x81 \xc3\x84pfel' url='b.example' mark='' (esc)
  $ routerdbctl -o sql rule list user-url
  routerdbctl: rules alone can be written so; see "routerdbctl help rule list"
  [2]
  $ routerdbctl -o js rule list user-url | head -1
  routerdbctl: which format is "js"? There are json, jsonl
  $ routerdbctl -o x rule list user-url
  routerdbctl: there is no format "x"; there are table, json, jsonl, tsv, set, sql
  [2]
  $ routerdbctl -o json rule list qos
  []

Colours are wanted, or not:

  $ routerdbctl --color always rule list qos | cat -v
  ^[[1mid  name  control_type  devmac  ipcontrol  ipgroup_id  devstartip  devendip  timecontrol  timegroup_id  days  start_time  end_time  bw_up  bw_down  bw_shared_mode  status  mark^[[0m
  $ routerdbctl --color never rule list qos
  id  name  control_type  devmac  ipcontrol  ipgroup_id  devstartip  devendip  timecontrol  timegroup_id  days  start_time  end_time  bw_up  bw_down  bw_shared_mode  status  mark
  $ routerdbctl --color sometimes rule list qos
  routerdbctl: there is no choice of colours "sometimes"; there are auto, never, always
  [2]
