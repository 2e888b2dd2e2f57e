"""Adds up what an lcov file says of the folders: coverage.py FILE LINES BRANCHES EXPLAINED

Prints the table of the folders and, below it, each line that no test runs, or of which no test takes one of the branches,
unless EXPLAINED has it. Fails when there is one, and below the limits.
"""

import collections
import os
import re
import sys

MEASURED = ("src/", "tools/routerdb-sqld/", "tools/shared/")


def read(path):
    """Lines and branches of each source file, with how often each ran."""
    files = collections.defaultdict(lambda: (collections.Counter(), collections.Counter()))
    name = None
    with open(path, encoding="utf-8") as records:
        for record in records:
            kind, _, rest = record.rstrip("\n").partition(":")
            if kind == "SF":
                name = os.path.relpath(rest)
            elif kind == "DA":
                line, times = rest.split(",")[:2]
                files[name][0][int(line)] += int(times)
            elif kind == "BRDA":
                line, block, branch, times = rest.split(",")
                files[name][1][int(line), int(block), int(branch)] += 0 if times == "-" else int(times)
    return {name: counts for name, counts in files.items() if name.startswith(MEASURED)}


def read_source(name):
    with open(name, encoding="utf-8") as source:
        return source.read().split("\n")


def constexpr_functions(source):
    """First and last line of each."""
    for first, line in enumerate(source):
        if not re.search(r"\bconstexpr\b[^=;]*\(", line):
            continue
        depth = 0
        for last in range(first, len(source)):
            depth += source[last].count("{") - source[last].count("}")
            if depth == 0 and ("}" in source[last] or source[last].endswith(";")):
                break
        yield first + 1, last + 1


def leave_to_compiler(source, lines, branches):
    """Takes out the functions that the compiler alone runs."""
    for first, last in constexpr_functions(source):
        of_function = [line for line in lines if first <= line <= last]
        if not any(lines[line] for line in of_function):
            for line in of_function:
                del lines[line]
            for place in [place for place in branches if first <= place[0] <= last]:
                del branches[place]


def share(counts):
    return 100 * sum(times > 0 for times in counts) / len(counts) if counts else 100


def print_table(files):
    """@return the shares of lines and branches of all"""
    folders = collections.defaultdict(lambda: ([], []))
    for name, (lines, branches) in files.items():
        for folder in (os.path.dirname(name), "all"):
            folders[folder][0].extend(lines.values())
            folders[folder][1].extend(branches.values())
    print("| Folder | Lines | % | Branches | % |\n| --- | --: | --: | --: | --: |")
    for folder, (lines, branches) in sorted(folders.items()):
        print(f"| {folder} | {len(lines)} | {share(lines):.1f} | {len(branches)} | {share(branches):.1f} |")
    return share(folders["all"][0]), share(folders["all"][1])


def gaps(files):
    """File, number, text and what is missing, of each line with a gap."""
    for name, (lines, branches) in sorted(files.items()):
        source = read_source(name)
        not_run = {line for line, times in lines.items() if times == 0}
        not_taken = {place[0] for place, times in branches.items() if times == 0} - not_run
        for line in sorted(not_run | not_taken):
            text = source[line - 1].strip()
            if text.strip("}; ") != "":
                yield name, line, text, "is not run" if line in not_run else "has a branch that is not taken"


def read_explained(path):
    with open(path, encoding="utf-8") as file:
        return {line.strip() for line in file if line.strip() and not line.startswith("#")}


def main():
    path, least_lines, least_branches = sys.argv[1], float(sys.argv[2]), float(sys.argv[3])
    files = read(path)
    for name, (lines, branches) in files.items():
        leave_to_compiler(read_source(name), lines, branches)
    lines, branches = print_table(files)
    explained = read_explained(sys.argv[4])
    unexplained = [gap for gap in gaps(files) if f"{gap[0]}: {gap[2]}" not in explained]
    for name, line, text, missing in unexplained:
        print(f"{name}:{line}: {missing}: {text}")
    return 0 if lines >= least_lines and branches >= least_branches and not unexplained else 1


if __name__ == "__main__":
    sys.exit(main())
