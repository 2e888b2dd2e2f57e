#!/usr/bin/env python3
"""Prints all results as a document.

    write_report.py RESULTS
"""

import pathlib
import re
import sys

import readings

VARIANTS = ("exact", "modern", "bare", "SQLiteCpp", "SOCI", "program", "SQLite, kept", "SQLiteCpp, kept")
COMPARED = ("bare", "exact", "modern", "SQLiteCpp")  # in the curves

INTRODUCTION = """# Benchmark

**bare** is SQLite (or the socket) by hand, as the exact profile uses it; its rows are absolute, others ratios to them.
**exact** and **modern** are the library; SQLiteCpp, SOCI and the sqlite3 **program** get the same bytes as users would.
Below 1.00 is less than by hand. Instructions and system calls repeat from run to run; times depend on the machine.

`scripts/bench --write` made this page, after every outcome was found equal; `bench/README.md` says what is measured and
how. Peers use no lock file, and one fresh connection for each operation, but those that are **kept**: they are in the
hands of a daemon that has opened its databases and prepared its statements before. All is counted from the third call of
a process onward, where modern has kept what it keeps. Before a call *after a write* another process has written.
"""


CONTENTION = """
## Processes that write at the same time

The library's writers queue for the lock file; *busy timeout* is SQLite by hand with `sqlite3_busy_timeout`.

"""
SERVICE = """
## Requests to the service in a second

One client, written in Python, asks `routerdb-sqld` with as many workers as there are processors, and with a process for
each request (`--fork`): the best of three measurements of a second.

"""
TIMES = """
Time is processor time, but for `GetUrlFilterItemList`, where it is what passes: there the SQL service, in the profile of
the variant, works too. Instructions and system calls are those of the caller."""


def table(head: list[str], rows: list[list[str]]) -> str:
    lines = [head, ["---"] + ["--:"] * (len(head) - 1), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def _ratio(value: float | None, base: float | None) -> str:
    return f"{value / base:.2f}" if value is not None and base else ""


def _large(count: float) -> str:
    return f"{count / 1e6:.2f} million" if count >= 1e5 else f"{count:.0f}"


def operations(results: pathlib.Path) -> str:
    instructions = readings.instructions(results)
    system_calls = readings.system_calls(results / "system-calls")
    times = readings.times(results / "times.json")
    rows = []
    for operation in dict.fromkeys(key[0] for key in times):
        base = (operation, "bare")
        rows.append([f"**{operation}**", "bare", _large(instructions[base]),
                     f"{times[operation, 'exact']['bare_microseconds']:.0f} µs", f"{system_calls[base]:.0f}"])
        for variant in VARIANTS:
            key = (operation, variant)
            if key in times:
                rows.append(["", variant, _ratio(instructions[key], instructions[base]), f"{times[key]['ratio']:.2f}",
                             _ratio(system_calls[key], system_calls[base])])
    return table(["Operation", "Variant", "Instructions", "Time", "System calls"], rows)


def curves(results: pathlib.Path) -> str:
    counted = {key: value for key, value in readings.instructions(results).items() if " @ " in key[0]}
    titles = {title.split(" @ ")[0] for title, _ in counted}
    rows = []
    for operation in sorted(titles):
        sizes = sorted({int(title.split(" @ ")[1]) for title, _ in counted if title.startswith(f"{operation} @ ")})
        for size in sizes:
            title = f"{operation} @ {size}"
            counts = [f"{counted[title, variant] / 1e6:.2f}" for variant in COMPARED]
            rows.append([operation if size == sizes[0] else "", str(size), *counts])
    return table(["Operation", "Rows", *COMPARED], rows)


def contention(results: pathlib.Path) -> str:
    measured = [line.split() for line in (results / "contention").read_text().splitlines()]
    rows = []
    for processes in dict.fromkeys(line[1] for line in measured):
        cells = {line[0]: line[2:] for line in measured if line[1] == processes}
        rows.append([processes] + [cell for variant in ("exact", "modern", "busy_timeout") for cell in cells[variant]])
    return table(["Processes", "exact, updates/s", "longest wait, ms", "modern, updates/s", "longest wait, ms",
                  "busy timeout, updates/s", "longest wait, ms"], rows)


def service(results: pathlib.Path) -> str:
    rows = []
    for profile in ("exact", "modern"):
        for line in (results / f"service-{profile}").read_text().splitlines()[1:]:
            question, workers, forks, ratio, _ = re.split(r"  +", line)
            rows.append([question, profile, workers, forks, ratio])
    return table(["Question", "Profile", "Workers", "A process each", "Ratio"], rows)


def load(results: pathlib.Path) -> str:
    rows = []
    for line in (results / "load").read_text().splitlines():
        profile, needed, relocations, dirty, clean = line.split()
        rows.append([profile, needed.replace(",", ", "), relocations, f"{dirty} KB", f"{clean} KB"])
    head = ["Profile", "Libraries needed", "Relocations", "Private memory, written", "and mapped by nobody else"]
    return table(head, rows)


def machine(results: pathlib.Path) -> str:
    return "\n".join(f"- {line}" for line in (results / "machine").read_text().splitlines())


def main() -> None:
    results = pathlib.Path(sys.argv[1])
    print(INTRODUCTION)
    print(machine(results))
    print(f"\n## Operations\n\n{operations(results)}")
    print(TIMES)
    print(f"\n## Instructions by number of rows, in millions\n\n{curves(results)}")
    print(CONTENTION + contention(results))
    print(SERVICE + service(results))
    print(f"\n## Loading the library\n\n{load(results)}")


if __name__ == "__main__":
    main()
