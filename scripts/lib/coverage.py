"""Adds up what an lcov file says of the folders, and fails below the limits: coverage.py FILE LINES BRANCHES [--gaps]"""

import collections
import os
import sys


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
    return files


def share(counts):
    return 100 * sum(times > 0 for times in counts) / len(counts) if counts else 100


def main():
    path, least_lines, least_branches = sys.argv[1], float(sys.argv[2]), float(sys.argv[3])
    files = read(path)
    folders = collections.defaultdict(lambda: ([], []))
    for name, (lines, branches) in files.items():
        for folder in (os.path.dirname(name), "all"):
            folders[folder][0].extend(lines.values())
            folders[folder][1].extend(branches.values())
    print("| Folder | Lines | % | Branches | % |\n| --- | --: | --: | --: | --: |")
    for folder, (lines, branches) in sorted(folders.items()):
        print(f"| {folder} | {len(lines)} | {share(lines):.1f} | {len(branches)} | {share(branches):.1f} |")
    if "--gaps" in sys.argv:
        for name, (lines, branches) in sorted(files.items()):
            for line in sorted(line for line, times in lines.items() if times == 0):
                print(f"{name}:{line}: no test runs this line")
            for line in sorted({place[0] for place, times in branches.items() if times == 0} - {l for l, t in lines.items() if t == 0}):
                print(f"{name}:{line}: no test takes one of the branches")
    lines, branches = folders["all"]
    return 0 if share(lines) >= least_lines and share(branches) >= least_branches else 1


if __name__ == "__main__":
    sys.exit(main())
