#!/usr/bin/env python3
"""Boots tzlinks on the device states of the tables (docs/HACKING.md), inside tests/device-root:
boots.py --boots|--faults|--crashes PROGRAM PREFIX(an emulator, or empty) TABLE..."""

import collections
import difflib
import errno
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

T = "/var/db/timezone/"
# The paths any boot may change: compared after every boot.
FIXED = [T + p for p in ("zoneinfo", "icutz", "localtime", "needs_cleanup", "TZVersionDiffRecord")]
FIXED += ["/var/db/icutz", "/var/db/icu"]
Row = collections.namedtuple("Row", "name changes messages effects status")


def lines(path):
    """A table's lines but comments, a line that starts with blanks going on with the one above."""
    text = re.sub(r"(?m)^#.*\n", "", pathlib.Path(path).read_text(encoding="utf-8"))
    return [line for line in re.sub(r"\n[ \t]+", " ", text).splitlines() if line.strip()]


HERE = pathlib.Path(__file__).parent
# The names that rows use, the sound device among them; what a fault or crash may leave.
NAMES = dict(line.split(" = ", 1) for line in lines(HERE / "names.t"))
WINDOWS = [line.split() for line in lines(HERE / "windows.t")]


def entries(text):
    """The (path, state) entries that a row's changes or effects list, names spelt out."""
    found = []
    for word in text.split():
        name, _, value = word.partition(":")
        if name in NAMES:
            found += entries(NAMES[name].replace("{}", value))
        else:
            gone, path, kind, rest = re.fullmatch(r"(-?)(.*?)(/$|[=>]|$)(.*)", word).groups()
            found.append((path if path[0] == "/" else T + path, "-" if gone else kind + rest))
    return found


def make(path, wanted):
    """Makes a link (>TARGET), a file (=TEXT or =TEXT%MODE), a folder (/) or nothing (-)."""
    if os.path.isdir(path) and not os.path.islink(path):
        shutil.rmtree(path)
    elif os.path.lexists(path):
        os.unlink(path)
    if wanted != "-":
        os.makedirs(path if wanted == "/" else os.path.dirname(path), exist_ok=True)
    if wanted[0] == ">":
        os.symlink(wanted[1:], path)
    if wanted[0] == "=":
        text, _, mode = wanted[1:].partition("%")
        pathlib.Path(path).write_text(text, encoding="utf-8")
        os.chmod(path, int(mode or "644", 8))


def state(path):
    """What is at a path, as make() takes it."""
    if os.path.islink(path):
        return ">" + os.readlink(path)
    if not os.path.isfile(path):
        return "/" if os.path.isdir(path) else "-"
    mode = os.stat(path).st_mode & 0o7777
    return "=" + pathlib.Path(path).read_text(encoding="utf-8") + f"%{mode:o}".replace("%644", "")


def arrange(row):
    """Makes the sound device with a row's changes; the state of every path to compare."""
    for top in ("/var", "/usr/share"):
        for entry in os.listdir(top):
            make(f"{top}/{entry}", "-")
    for path, wanted in entries(NAMES["sound"] + " " + row.changes):
        make(path, wanted)
    named = [path for path, _ in entries(row.changes + " " + row.effects)]
    return {path: state(path) for path in FIXED + named}


def boot(command):
    """Runs one boot: its exit status and the lines it printed, without the program's name."""
    result = subprocess.run(command, stderr=subprocess.PIPE, text=True, check=False)
    said = [line.removeprefix("tzlinks: ") for line in result.stderr.splitlines()]
    return result.returncode, said


def check(command, row):
    """Boots a row's device once: a diff of what the row expects against what the boot did."""
    before = arrange(row)
    wanted = [f"exit status {row.status or 0}"]
    for message in filter(None, row.messages.split(" | ")):
        text, code = re.fullmatch(r"(.*): (E[A-Z]+|0)", message).groups()
        word, _, rest = text.partition(" ")
        text = " ".join(filter(None, [NAMES[word], rest])) if word in NAMES else text
        wanted.append(f"{text}: {os.strerror(getattr(errno, code, 0))}")
    wanted += [f"{path} {now}" for path, now in (before | dict(entries(row.effects))).items()]
    status, said = boot(command)
    done = [f"exit status {status}", *said, *(f"{path} {state(path)}" for path in before)]
    return list(difflib.unified_diff(wanted, done, "expected", "booted", lineterm=""))


def traced(command, inject):
    """A boot under strace: its status, and its calls on the device as (name, nth, line)."""
    with tempfile.NamedTemporaryFile("r") as trace:
        options = ["-qq", "-y", "-o", trace.name, "-E", "ASAN_OPTIONS=detect_leaks=0", *inject]
        status = boot(["strace", *options, *command])[0]
        calls, seen = [], collections.Counter()
        for line in trace:  # inject's when= counts every call of the name
            seen[name := line.split("(")[0]] += 1
            if re.search(r'["<]/(var|usr/share)/', line):
                calls.append((name, seen[name], line.strip()))
    return status, calls


def scenario(command, row, what):
    """A fault or crash at each call in turn, each followed by a boot that must heal it."""
    before = arrange(row)
    calls, refs = traced(command, [])[1], [{p: state(p) for p in FIXED}]
    boot(command)  # what one or two boots without a fault leave
    refs.append({p: state(p) for p in FIXED})
    if what == "signal=KILL":  # crashes only where the disk changes
        calls = [c for c in calls if re.search(r"^(unlink|symlink|write)|O_CREAT|O_TRUNC", c[2])]
    problems = []
    for name, nth, line in calls:
        arrange(row)
        status = traced(command, [f"-einject={name}:{what}:when={nth}"])[0]
        then = boot(command)[0]
        after = {p: state(p) for p in FIXED}
        ended = status in ((-9,) if "KILL" in what else (0, 1)) and not then
        if not ended or not all(healed(path, after, before, line, refs) for path in FIXED):
            problems.append(f"{row.name}: {what} at {line}: status {status}, then {after}")
    print(f"{row.name[1:]}: {what} at {len(calls)} calls")
    return problems


def healed(path, after, before, line, refs):
    """Whether a path is as one or two boots without a fault leave it, or in a window."""
    if after[path] in (refs[0][path], refs[1][path]):
        return True
    use = re.fullmatch(f">{T}tz/(.*)/zoneinfo", after[T + "zoneinfo"])
    if not use and (path, after[path]) == (T + "icutz", "-"):
        return True  # no ICU link while the system partition is in use
    fills = {"{use}": re.escape(use[1]) if use else "-", "{before}": re.escape(before[path])}
    for place, left, call in WINDOWS:
        left = re.sub("{use}|{before}", lambda m: fills[m[0]], left)
        if T + place == path and re.search(call, line) and re.fullmatch(left, after[path]):
            return True
    return False


def main():
    """Checks every row of the tables, or the faults or crashes of the rows marked *."""
    if "TZLINKS_DEVICE_ROOT" not in os.environ:
        sys.exit("boots.py: run me inside tests/device-root: I empty /var and /usr/share")
    mode, program, prefix, *tables = sys.argv[1:]
    command = shlex.split(prefix) + [os.path.abspath(program), "ignored"]
    errors = ["EIO"] if "TZLINKS_RELIABILITY_QUICK" in os.environ else ["EIO", "ENOENT"]
    kinds = {"--faults": [f"error={e}" for e in errors], "--crashes": ["signal=KILL"]}
    os.umask(0o022)
    fields = [re.split(r"\s*\|\|\s*", line) + [""] * 4 for table in tables for line in lines(table)]
    rows = [Row(*row[:5]) for row in fields]
    failed = 0
    for row in rows:
        if mode == "--boots" and (diff := check(command, row)):
            print(f"FAIL {row.name}", *diff, sep="\n")
            failed += 1
        for what in kinds.get(mode, []) if row.name.startswith("*") else []:
            for problem in scenario(command, row, what):
                print(f"FAIL {problem}")
                failed += 1
    print(f"{len(rows)} rows, {failed} failures")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
