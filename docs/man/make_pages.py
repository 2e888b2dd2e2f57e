#!/usr/bin/env python3
"""Makes manual pages of section 3 from Doxygen's XML of the public header:

    make_pages.py XML_DIRECTORY PAGE_DIRECTORY VERSION DATE

one for each function, data symbol and record, and routerdb.3 with what holds for all of them.
"""

import pathlib
import re
import sys
import textwrap

from header import Header
from roff import ended, escape, filled, section, see_also, sentence, tagged

SYNOPSIS = [".SH SYNOPSIS", ".nf", ".B #include <routerdb.h>", ".PP"]
LINE = 72  # of a prototype, which is indented by seven
EXAMPLES = pathlib.Path(__file__).parent / "examples"
LONGEST_NAME = 60
UNBROKEN = "\0"
FONTS = re.compile(r"\\f[BIP]")
ERRORS_HOLD = (
    "This holds for libraries that were built in the modern profile; for those of the exact one too where it says so. "
    "What the names stand for is said in \\fBrouterdb\\fP(3)."
)
LIBRARY = [".SH LIBRARY", "Access to the configuration databases", ".RI ( librouterdb , \\ \\-lrouterdb )"]


def heading(name, brief):
    """NAME says in one short line what the page is about, without the full stop of a sentence."""
    brief = FONTS.sub("", brief).rstrip(".")
    if len(brief) > LONGEST_NAME:
        brief = re.split(r"[,:] | \(", brief)[0]
    if not brief[1:2].isupper():
        brief = brief[:1].lower() + brief[1:]
    return [".SH NAME"] + filled(f"{name} \\- {brief}")


def spaced(type_text):
    return type_text if type_text.endswith("*") else type_text + " "


def prototype(function):
    """A declaration on as many lines as it takes, its arguments in italics."""
    start = f"{spaced(function.type)}{function.name}("
    # The blanks inside an argument do not end a line.
    arguments = [f"{spaced(type_text)}{name}".replace(" ", UNBROKEN) for type_text, name in function.parameters]
    text = start + ", ".join(arguments or ["void"]) + ");"
    for indent in (len(start), 8):
        lines = textwrap.wrap(text, LINE, subsequent_indent=" " * indent, break_long_words=False, break_on_hyphens=False)
        if all(len(line) <= LINE for line in lines):
            break
    names = [name for _, name in function.parameters]
    return [prototype_line(line.replace(UNBROKEN, " "), names) for line in lines]


def prototype_line(line, names):
    for name in names:
        for end in (",", ")"):
            line = line.replace(f" {name}{end}", f" \\fI{name}\\fB{end}").replace(f"*{name}{end}", f"*\\fI{name}\\fB{end}")
    return f"\\fB{line}\\fP"


def function_page(function, group, header):
    lines = heading(function.name, function.brief) + LIBRARY
    lines += SYNOPSIS + prototype(function) + [".fi"]
    lines += section("DESCRIPTION", function.paragraphs)
    for name, direction, text in function.arguments:
        tag = f'.IR {name} " ({direction})"' if direction else f".I {name}"
        lines += tagged(tag, sentence(text))
    lines += section("RETURN VALUE", [sentence(text) for text in function.result])
    lines += section("ERRORS", [ERRORS_HOLD] + [ended(text) for text in function.errors])
    lines += section("DIAGNOSTICS", [sentence(text) for text in function.messages])
    lines += example(function.name)
    lines += section("NOTES", function.notes)
    if group.text.paragraphs != [""]:
        lines += [] if function.notes else [".SH NOTES"]
        lines += [f'.SS "{escape(group.title)}"'] + section("", group.text.paragraphs)[1:]
    return lines + see_also(["routerdb"] + header.neighbours(function, group))


def example(name):
    """The program of docs/man/examples that shows a function, line by line."""
    path = EXAMPLES / f"{name}.c"
    if not path.exists():
        return []
    lines = [escape(line) for line in path.read_text(encoding="ascii").splitlines()]
    return [".SH EXAMPLES", ".EX"] + ["\\&" + line if line.startswith(".") else line for line in lines] + [".EE"]


def data_page(symbol, group, header):
    declaration = f"\\fBextern {spaced(symbol.type)}{symbol.name}{symbol.suffix};\\fP"
    lines = heading(symbol.name, symbol.brief) + LIBRARY + SYNOPSIS + [declaration, ".fi"]
    return lines + section("DESCRIPTION", symbol.paragraphs) + see_also(["routerdb"] + header.neighbours(symbol, group))


def record_page(record, group, header):
    lines = heading(record.name, record.brief) + LIBRARY + SYNOPSIS
    lines += [f"\\fBtypedef struct {record.name} {{"]
    lines += [f"    {spaced(member.type)}\\fI{member.name}\\fB{member.suffix};" for member in record.members]
    lines += [f"}} {record.name};\\fP", ".fi"]
    lines += section("DESCRIPTION", record.paragraphs)
    for member in record.members:
        lines += tagged(f".I {member.name}", sentence(" ".join(member.paragraphs)))
    return lines + see_also(["routerdb"] + header.neighbours(record, group))


def overview(header):
    lines = heading("routerdb", header.text.brief.removeprefix("routerdb: ")) + LIBRARY + SYNOPSIS[:3]
    lines += [".PP", "\\fBcc\\fP \\fIfile\\fP ... \\fB\\-lrouterdb\\fP", ".fi", ".SH DESCRIPTION"]
    for index, paragraph in enumerate(header.text.details):
        lines += [".PP"] * (index > 0) + filled(paragraph)
    for index, rule in enumerate(header.text.numbered):
        lines += [f".IP {index + 1}. 4"] + filled(rule)
    for group in header.groups:
        lines += [f'.SH "{escape(group.title).upper()}"'] + section("", group.text.paragraphs)[1:]
        for constant in group.constants:
            lines += tagged(f'.BR {constant.name} " ({escape(constant.value)})"', sentence(" ".join(constant.paragraphs)))
        for symbol in group.data + group.functions + group.records:
            lines += tagged(f".BR {symbol.name} (3)", symbol.brief)
    return lines


def write_pages(header, directory, version, date):
    def write(name, lines):
        title = f'.TH {name} 3 {date} "routerdb {version}" routerdb'
        # Nothing is hyphenated: readers copy names and messages.
        lines = ['.\\" Made from include/routerdb.h.', title, ".nh", ".ad l"] + lines
        (directory / f"{name}.3").write_text("\n".join(lines) + "\n", encoding="ascii")

    write("routerdb", overview(header))
    for group in header.groups:
        for make_page, symbols in ((function_page, group.functions), (data_page, group.data), (record_page, group.records)):
            for symbol in symbols:
                write(symbol.name, make_page(symbol, group, header))


def main():
    xml, pages, version, date = sys.argv[1:]
    directory = pathlib.Path(pages)
    directory.mkdir(parents=True, exist_ok=True)
    for stale in directory.glob("*.3"):
        stale.unlink()
    write_pages(Header(pathlib.Path(xml)), directory, version, date)


main()
