"""Five firmwares that never were, and one before them whose readers expected other places.

What the router's readers count on stays where they look for it from generation 1 on: columns change their places in
tables that are read by name, and in those of the vendor's own.
"""

import pathlib
import random
import sqlite3
import subprocess

live = pathlib.Path("/etc/config/systemconf/database/myrouter.db")
factory = pathlib.Path("/rom/etc/config/systemconf/database/myrouter.db")
upstream = pathlib.Path("/tmp/upstream.db")  # the factory's database as it was before the first generation
newest = 5

user_ipgroup = "CREATE TABLE user_ipgroup (id INTEGER PRIMARY KEY AUTOINCREMENT, {});"

# What each generation makes of the one before.
schemas = {
    # Of another vendor: the places of filter_mac are not those of the readers.
    0: """
        DROP TABLE filter_mac;
        CREATE TABLE filter_mac (
            id INTEGER PRIMARY KEY AUTOINCREMENT, mark TEXT, name TEXT, devmac TEXT, timecontrol INTEGER,
            timegroup_id INTEGER, weekday1 INTEGER, weekday2 INTEGER, weekday3 INTEGER, weekday4 INTEGER,
            weekday5 INTEGER, weekday6 INTEGER, weekday7 INTEGER, start_time TEXT, end_time TEXT, status INTEGER);
        """,
    1: """
        CREATE TABLE portal (id INTEGER PRIMARY KEY AUTOINCREMENT, title TEXT, password TEXT, mode INTEGER, note TEXT);
        CREATE TABLE journal (text TEXT, at INTEGER);
        """,
    # A column in the middle and one at the end, a new table with rows of the factory's.
    2: """
        DROP TABLE user_ipgroup;
        """ + user_ipgroup.format("name TEXT, zone TEXT DEFAULT 'lan', startip TEXT, endip TEXT, mark TEXT") + """
        ALTER TABLE user_timegroup ADD COLUMN colour TEXT DEFAULT 'red';
        CREATE TABLE speeds (id INTEGER PRIMARY KEY, name TEXT UNIQUE, rate INTEGER NOT NULL);
        INSERT INTO speeds VALUES(1, 'slow', 10), (2, 'fast', 1000);
        """,
    # Another order, a column of another name, values of another meaning.
    3: """
        DROP TABLE portal;
        CREATE TABLE portal (id INTEGER PRIMARY KEY AUTOINCREMENT, mode INTEGER, secret TEXT, title TEXT, note TEXT);
        DROP TABLE user_ipgroup;
        """ + user_ipgroup.format("mark TEXT, endip TEXT, startip TEXT, zone TEXT DEFAULT 'lan', name TEXT") + """
        CREATE INDEX portal_titles ON portal(title);
        """,
    # A table is gone, and a column whose name comes back for something else.
    4: """
        DROP TABLE journal;
        DROP INDEX portal_titles;
        DROP TABLE portal;
        CREATE TABLE portal (id INTEGER PRIMARY KEY AUTOINCREMENT, mode INTEGER, secret TEXT, title TEXT,
                             note INTEGER DEFAULT 7);
        """,
    # Less room.
    5: """
        DROP TABLE portal;
        CREATE TABLE portal (id INTEGER PRIMARY KEY AUTOINCREMENT, mode INTEGER, secret TEXT(8), heading TEXT(12),
                             note INTEGER DEFAULT 7);
        CREATE TABLE languages (code TEXT PRIMARY KEY, name TEXT) WITHOUT ROWID;
        INSERT INTO languages VALUES('de', 'Deutsch'), ('en', 'English');
        """,
}

rules = {
    3: "version 3\nrename portal.password portal.secret\n# the other way round\nmap portal.mode 0 1\nmap portal.mode 1 0\n",
    4: "version 4\ndrop portal.note\n",
    5: "version 5\nrename portal.title portal.heading\nmap portal.mode 1 'on'  # as text\n",
}


def run(*arguments, **keywords):
    return subprocess.run(["routerdbctl", *arguments], capture_output=True, text=True, **keywords)


def make(generation, path):
    """Makes the factory's database of a generation, and the rules beside it."""
    path = pathlib.Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(upstream.read_bytes())
    database = sqlite3.connect(path)
    for number in [0] if generation == 0 else range(1, generation + 1):
        database.executescript(schemas[number])
    database.execute(f"PRAGMA user_version = {generation}")
    database.close()
    text = "".join(rules.get(number, "") for number in range(1, generation + 1))
    path.with_name("upgrade.rules").write_text(text)


def install(generation):
    """Has the router run the firmware of a generation."""
    make(generation, factory)


def content(path):
    """All rows by table, each with its columns' names."""
    database = sqlite3.connect(path)
    database.text_factory = bytes
    assert database.execute("PRAGMA integrity_check").fetchone() == (b"ok",), path
    found = {}
    names = [row[0].decode() for row in database.execute("SELECT name FROM sqlite_master WHERE type = 'table'")]
    for name in names:
        columns = [row[1].decode() for row in database.execute(f"PRAGMA table_info({name})")]
        quoted = ", ".join(f'"{column}"' for column in columns)
        rows = [dict(zip(columns, row)) for row in database.execute(f"SELECT {quoted} FROM {name}")]
        found[name] = rows if name != "sqlite_sequence" else sorted(rows, key=lambda row: row["name"])
    database.close()
    return found


pieces = ["'", '"', "\\", "\n", "\t", "%s", "ä", "日", "a", "7", " ", "--", ";", "\x1b", "0", "1"]


def random_value(is_number):
    kind = random.randrange(10)
    if kind == 0:
        return None
    if is_number or kind == 1:
        return random.choice([0, 1, 2, -1, 2**31 - 1, -(2**63), random.randrange(10**9)])
    if kind == 2:
        return random.randbytes(random.randrange(12))
    return "".join(random.choice(pieces) for _ in range(random.randrange(40)))


def fill(path):
    """Puts random rows into every table."""
    database = sqlite3.connect(path)
    names = [row[0] for row in database.execute(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'")]
    for name in names:
        database.execute(f"DELETE FROM {name}")
        info = list(database.execute(f"PRAGMA table_info({name})"))
        for number in random.sample(range(1, 1000), random.randrange(1, 20)):
            row = [number if column[5] and column[2] == "INTEGER" else random_value(column[2] == "INTEGER")
                   for column in info]
            for place, column in enumerate(info):
                if column[3] or (column[5] and row[place] is None) or column[1] in ("timegroup_id", "ipgroup_id"):
                    row[place] = number
                if column[1] in ("timecontrol", "ipcontrol"):
                    row[place] = random.choice([0, 1])
            places = ", ".join("?" for _ in info)
            database.execute(f"INSERT OR IGNORE INTO {name} VALUES({places})", row)
    database.commit()
    database.close()
