#!/usr/bin/env python3
"""Compares the instructions of both profiles, as ratios to the bare variant, with the recorded limits.

    check_limits.py RESULTS LIMITS

Fails when a limit is exceeded, when an operation has no limit, and when a limit has no operation.
"""

import pathlib
import sys

import readings


def read_limits(file: pathlib.Path) -> dict[readings.Key, float]:
    limits = {}
    for line in file.read_text().splitlines():
        if line and not line.startswith("#"):
            operation, exact, modern = (part.strip() for part in line.rsplit(maxsplit=2))
            limits[operation, "exact"] = float(exact)
            limits[operation, "modern"] = float(modern)
    return limits


def main() -> int:
    counted = readings.instructions(pathlib.Path(sys.argv[1]))
    limits = read_limits(pathlib.Path(sys.argv[2]))
    measured = {key for key in counted if key[1] in ("exact", "modern")}
    complaints = [f"{operation}, {variant}: no limit is recorded" for operation, variant in measured - limits.keys()]
    complaints += [f"{operation}, {variant}: was not measured" for operation, variant in limits.keys() - measured]
    for operation, variant in sorted(measured & limits.keys()):
        ratio = counted[operation, variant] / counted[operation, "bare"]
        limit = limits[operation, variant]
        print(f"{operation:32} {variant:6}  {ratio:6.3f}  at most {limit:.3f}")
        if ratio > limit:
            complaints.append(f"{operation}, {variant}: {ratio:.3f} times the instructions of bare, limit {limit:.3f}")
    for complaint in complaints:
        print(f"bench: {complaint}", file=sys.stderr)
    return 1 if complaints or not measured else 0


if __name__ == "__main__":
    sys.exit(main())
