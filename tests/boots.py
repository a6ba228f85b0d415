#!/usr/bin/env python3
"""Boots the program on the device states of the boot tables (docs/HACKING.md), inside
scripts/device-root: boots.py --boots|--faults|--crashes TZLINKS PREFIX TABLE...
PREFIX is the command that runs TZLINKS (an emulator), or empty."""

import os
import shlex
import sys

from device import arrange, boot, message, read_rows, state, tokens
from reliability import Scenario


def check(command, row):
    """Boots a row's device once; what differs from what the row expects, if anything."""
    wanted = arrange(row) | {path: op + value for op, path, value in tokens(row.effects)}
    lines = [message(text) for text in row.said.split(" | ") if text]
    status, said = boot(command)
    wrong = {path: state(path) for path in wanted if state(path) != wanted[path]}
    if (status, said, wrong) == (int(row.status or 0), lines, {}):
        return []
    return [f"{row.name}: status {status}, printed {said}\n  wanted {lines}\n  left {wrong}"]


def main():
    """Checks every row of the tables, or the faults or crashes of the scenario rows."""
    if "TZLINKS_DEVICE_ROOT" not in os.environ:
        sys.exit("boots.py: run me inside scripts/device-root: I empty /var and /usr/share")
    mode, program, prefix, *tables = sys.argv[1:]
    command = shlex.split(prefix) + [os.path.abspath(program), "ignored"]
    quick = "TZLINKS_RELIABILITY_QUICK" in os.environ
    os.umask(0o022)
    rows = read_rows(tables)
    problems = []
    for row in rows:
        if mode == "--boots":
            problems += check(command, row)
        elif row.name.startswith("*"):
            problems += Scenario(command, row).run(mode == "--crashes", quick)
    for problem in problems:
        print("FAIL", problem)
    print(f"{len(rows)} rows, {len(problems)} failures")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
