On a terminal a table ends where the terminal does, and headings stand out:

  $ routerdbctl rule add user-url name='A name that is long' url='日本.example'
  1
  $ in_terminal 40 '' routerdbctl rule list user-url
  <ESC>[1mid  name                 url           m<ESC>[0m
   1  A name that is long  \xe6\x97\xa5\xe6\x9c\xac.example (esc)
  $ in_terminal 30 '' routerdbctl rule list user-url
  <ESC>[1mid  name                 url<ESC>[0m
   1  A name that is long  \xe6\x97\xa5\xe6\x9c\xac. (esc)
  $ in_terminal 29 '' routerdbctl rule list user-url
  <ESC>[1mid  name                 url<ESC>[0m
   1  A name that is long  \xe6\x97\xa5\xe6\x9c\xac (esc)
  $ in_terminal 5 '' routerdbctl rule list user-url
  <ESC>[1mid  n<ESC>[0m
   1  A
  $ WITHOUT_COLOR=1 in_terminal 40 '' routerdbctl rule list user-url
  id  name                 url           m
   1  A name that is long  \xe6\x97\xa5\xe6\x9c\xac.example (esc)
  $ in_terminal 40 '' routerdbctl --color never rule list user-url
  id  name                 url           m
   1  A name that is long  \xe6\x97\xa5\xe6\x9c\xac.example (esc)
  $ in_terminal 20 '' routerdbctl -o tsv rule list user-url
  id\tname\turl\tmark (esc)
  1\tA name that is long\t\xe6\x97\xa5\xe6\x9c\xac.example\t (esc)

What cannot be taken back is asked for:

  $ in_terminal 80 'n
  > ' routerdbctl rule rm user-url --all
  Remove all rows of user-url? [y/N] routerdbctl: nothing was changed
  [1]
  $ in_terminal 80 '
  > ' routerdbctl rule rm user-url --all
  Remove all rows of user-url? [y/N] routerdbctl: nothing was changed
  [1]
  $ routerdbctl rule get user-url 1.name
  A name that is long
  $ in_terminal 80 'y
  > ' routerdbctl rule rm user-url --all
  Remove all rows of user-url? [y/N]  (no-eol)
  $ routerdbctl rule list user-url
  id  name  url  mark
  $ routerdbctl rule add user-url name=again
  2
  $ routerdbctl db backup
  $ routerdbctl rule set user-url 2 name=changed
  $ in_terminal 80 'y
  > ' routerdbctl db restore
  <ESC>[33muser-url 2 name: 'changed' -> 'again'<ESC>[0m
  Put the backup in the database's place? [y/N]  (no-eol)
  $ in_terminal 80 'y
  > ' routerdbctl db exec "update user_urlinfo set name = 'typed';"
  Execute this? [y/N]  (no-eol)
  $ in_terminal 80 'y
  > ' routerdbctl db reset
  <ESC>[31m- user-url 2 name='typed'<ESC>[0m
  Put the factory in the database's place? [y/N]  (no-eol)
  $ in_terminal 80 'y
  > ' routerdbctl -y rule rm user-url --all
