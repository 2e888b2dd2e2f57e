  $ routerdbctl
  usage: routerdbctl [OPTION]... COMMAND; "routerdbctl help" lists them
  [2]
  $ routerdbctl help
  usage: routerdbctl [OPTION]... COMMAND
  Reads and changes the configuration databases of the router.
  
    table list                            the tables: name, name in SQL, record, rows that there are and that fit
    table show TABLE                      the fields of a table: name, kind, width in bytes, values
    rule list TABLE                       the rows of a table
    rule get TABLE ID[.FIELD]             one row, or the bare value of one field
    rule add TABLE FIELD=VALUE...         adds a row and prints its id
    rule set TABLE ID FIELD=VALUE...      changes a row; with --if only while it still is as expected
    rule rm TABLE ID...|--all             removes rows, but no group that rules still use
    rule enable TABLE ID...               lets rows apply
    rule disable TABLE ID...              lets rows not apply
    export [TABLE...]                     all rows of all tables, or of some: -o json, set or sql
    import FILE|-                         checks what was exported as JSON, then writes all of it or nothing
    diff [FILE|backup|factory] [TABLE...] what has changed since then, a line per field
    ap list                               the access points
    ap show SN|IP|MAC|NAME                all that is known of one
    ap set AP FIELD=VALUE...              changes fields of one, such as Name=Attic
    ap status AP online|offline           marks one
    ap group AP GROUP                     puts one into a WLAN group, by name or #ID; #0 for none
    db backup                             copies the database to its backup
    db restore                            puts the backup in the database's place, after showing what changes
    db reset                              puts the factory's database in its place, after showing what changes
    db upgrade                            brings the rows into the factory copies' schema, after showing what changes
    db exec SQL                           executes statements
    db query SQL                          prints the rows of a query
    db count SQL                          prints the number that a query has
    lock                                  who holds the lock file; exit status 1 while it is held
    doctor                                looks at everything: files, tables, service, rules
    completion bash                       prints what makes bash complete commands and tables
    help [COMMAND]                        says how commands are used
    version                               this program's version, and profile and version of the library
  
  Commands and tables may be shortened as long as they are clear. "table list" has the tables,
  "table show TABLE" the fields of one. Beside its fields a rule takes days=mon-fri, hours=20:30-23:59,
  group="School nights" and group=#3.
  
    -o, --output FORMAT       table, json, jsonl, tsv, set (lines that make the rules again), sql
    -q, --quiet               no remarks on standard error, errors only
        --no-header           no line with the names of columns
        --color WHEN          auto, never or always
        --timeout SECONDS     how long to wait for others; 10 by default
        --dry-run             print what would be done, and do nothing
    -y, --yes                 do not ask
    -h, --help                how a command is used
    -V, --version             versions of this program and of the library
  
  The exit status is 0 when it was done, 1 when it was refused, differs or is held, 2 for a wrong use,
  3 when it is not there, 4 when service or database cannot be reached, 5 when nobody can tell.
  $ routerdbctl --help | head -1
  usage: routerdbctl [OPTION]... COMMAND
  $ routerdbctl help db
  usage: routerdbctl db backup
    copies the database to its backup
  
  usage: routerdbctl db restore
    puts the backup in the database's place, after showing what changes
  
  usage: routerdbctl db reset
    puts the factory's database in its place, after showing what changes
  
  usage: routerdbctl db upgrade [OPTION]...
    brings the rows into the factory copies' schema, after showing what changes
  
  usage: routerdbctl db exec SQL
    executes statements
  
  usage: routerdbctl db query SQL
    prints the rows of a query
  
  usage: routerdbctl db count SQL
    prints the number that a query has
  $ routerdbctl help rule set
  usage: routerdbctl rule set TABLE ID FIELD=VALUE... [OPTION]...
    changes a row; with --if only while it still is as expected
        --if FIELD=OLD        only while the field still has this value
        --force               though a check speaks against it
  $ routerdbctl rule set --help
  usage: routerdbctl rule set TABLE ID FIELD=VALUE... [OPTION]...
    changes a row; with --if only while it still is as expected
        --if FIELD=OLD        only while the field still has this value
        --force               though a check speaks against it
  $ routerdbctl help nothing
  routerdbctl: there is no command "nothing"; there are table, rule, export, import, diff, ap, db, lock, doctor, completion, help, version
  [2]
  $ routerdbctl help rule nothing
  routerdbctl: there is no rule command "nothing"; there are list, get, add, set, rm, enable, disable
  [2]
  $ routerdbctl rule
  routerdbctl: usage: routerdbctl rule COMMAND; "routerdbctl help rule" lists them
  [2]
  $ routerdbctl rul l
  routerdbctl: usage: routerdbctl rule list TABLE
  [2]
  $ routerdbctl d
  routerdbctl: which command is "d"? There are diff, db, doctor
  [2]
  $ routerdbctl nothing
  routerdbctl: there is no command "nothing"; there are table, rule, export, import, diff, ap, db, lock, doctor, completion, help, version
  [2]
  $ routerdbctl rule nothing
  routerdbctl: there is no rule command "nothing"; there are list, get, add, set, rm, enable, disable
  [2]
  $ routerdbctl rule list
  routerdbctl: usage: routerdbctl rule list TABLE
  [2]
  $ routerdbctl rule list qos more
  routerdbctl: usage: routerdbctl rule list TABLE
  [2]
  $ routerdbctl --nothing rule list qos
  routerdbctl: --nothing is no option, or not so; "routerdbctl help" lists the options
  [2]
  $ routerdbctl -x rule list qos
  routerdbctl: -x is no option, or not so; "routerdbctl help" lists the options
  [2]
  $ routerdbctl --timeout
  routerdbctl: --timeout takes a value; "routerdbctl help" lists the options
  [2]
  $ routerdbctl --timeout never rule list qos
  routerdbctl: --timeout takes a number from 1 to 86400, not "never"
  [2]
  $ routerdbctl rule list qos --force
  routerdbctl: rule list takes no --force
  [2]
  $ routerdbctl --version | sed 's/[0-9.]*$/VERSION/; s/exact\|modern/PROFILE/'
  routerdbctl VERSION
  librouterdb PROFILE VERSION

Bash completes commands and tables:

  $ routerdbctl completion bash > completion
  $ complete_line() {
  >     . ./completion
  >     COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMPREPLY=(); _routerdbctl; echo "${COMPREPLY[@]}"
  > }
  $ complete_line routerdbctl r
  rule
  $ complete_line routerdbctl rule e
  enable
  $ complete_line routerdbctl rule list url
  url-filter
  $ complete_line routerdbctl db re
  restore reset
  $ routerdbctl completion fish
  routerdbctl: there is completion for bash alone
  [2]
