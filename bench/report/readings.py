"""What the measurements left in the results directory, by operation and variant."""

import collections
import json
import pathlib
import re

Key = tuple[str, str]  # operation, variant


def _key(name: str) -> Key:
    operation, variant = name.rsplit("|", 1)
    return operation, variant


def instructions(directory: pathlib.Path) -> dict[Key, float]:
    """Instructions of a run on average, those of the processes that it started included."""
    totals: dict[Key, int] = collections.defaultdict(int)
    runs: dict[Key, int] = collections.defaultdict(int)
    for file in directory.glob("callgrind.*"):
        text = file.read_text(errors="replace")
        summary = re.search(r"^(?:summary|totals): (\d+)", text, re.M)
        trigger = re.search(r"^desc: Trigger: Client Request: (\S.*)$", text, re.M)
        label = file.name.split(".")[1]
        if trigger:
            key = _key(trigger.group(1))
            runs[key] += 1
        elif label.startswith("child,"):
            key = _key(label.removeprefix("child,"))
        else:
            continue
        totals[key] += int(summary.group(1))
    return {key: totals[key] / count for key, count in runs.items()}


def system_calls(trace: pathlib.Path) -> dict[Key, float]:
    """System calls of a run on average, those of the processes that it started included and the allocator's left out."""
    totals: dict[Key, int] = collections.defaultdict(int)
    runs: dict[Key, int] = collections.defaultdict(int)
    current = None
    for line in trace.read_text(errors="replace").splitlines():
        mark = re.search(r'access\("(begin|end):([^"]*)"', line)
        if mark:
            current = _key(mark.group(2)) if mark.group(1) == "begin" else None
            runs[_key(mark.group(2))] += mark.group(1) == "begin"
        elif current and re.match(r"\d+ +(?!brk)\w+\(", line):
            totals[current] += 1
    return {key: totals[key] / count for key, count in runs.items()}


def times(file: pathlib.Path) -> dict[Key, dict]:
    """The paired timings: medians of "ratio" to the bare variant, "microseconds" and "bare_microseconds"."""
    return {
        _key(run["name"].split("/iterations:")[0]): run
        for run in json.loads(file.read_text())["benchmarks"]
    }
