#!/usr/bin/env python3
"""boots.py --boots|--faults|--crashes PROGRAM PREFIX(an emulator, or empty) TABLE...: tzlinks
booted on the device states of the tables, inside tests/device-root (docs/HACKING.md)."""

import difflib
import errno
import os
import pathlib
import re
import subprocess
import sys

T = "/var/db/timezone/"
# The paths any boot may change: compared after every boot.
FIXED = [T + p for p in ("zoneinfo", "icutz", "localtime", "needs_cleanup", "TZVersionDiffRecord")]
FIXED += ["/var/db/icutz", "/var/db/icu"]
# The line the manual promises when one of these calls fails, made from the call's own text.
PROMISED = {
    r'^unlink\("(/var/db/(timezone/)?(zoneinfo|icutz))"': r"remove: could not remove \1",
    r'^readlink\("([^"]*)"': r"read_symlink: \1",
    r'^symlink\("([^"]*)", "([^"]*)"': r"create_symlink: from \2 to \1",
    r"^(openat|newfstatat|close)\(.*/needs_cleanup\b": f"Cannot touch file {T}needs_cleanup",
}
DISK = r"^(unlink|symlink|write)|O_CREAT|O_TRUNC"  # the calls that change the disk


def lines(path):
    """A table's lines but comments, joined to those that go on with blanks; X{N} is N times X."""
    text = re.sub(r"(?m)^#.*\n", "", pathlib.Path(path).read_text(encoding="utf-8"))
    text = re.sub(r"(.)\{(\d+)\}", lambda m: m[1] * int(m[2]), re.sub(r"\n[ \t]+", " ", text))
    return [line for line in text.splitlines() if line.strip()]


NAMES = dict(line.split(" = ", 1) for line in lines(pathlib.Path(__file__).with_name("names.t")))
WINDOWS = [line.split(None, 2) for line in lines(pathlib.Path(__file__).with_name("windows.t"))]


def spelt(text, separator):
    """The items of a row's field, NAME:VALUE spelt out as NAME's items with {} filled in."""
    found = []
    for item in filter(None, text.split(separator)):
        name, _, value = item.partition(":")
        named = NAMES.get(name, "")  # without {}, a value stays after it: "LOCATE: EEXIST"
        named = named.replace("{}", value) if "{}" in named or not value else f"{named}:{value}"
        found += spelt(named, separator) if name in NAMES else [item]
    return found


def entries(text):
    """The (path, state) entries of a row's changes or effects; a file's text takes \\ escapes."""
    found = []
    for word in spelt(text, " "):
        gone, path, kind, rest = re.fullmatch(r"(-?)(.*?)([/|]$|[=>]|$)(.*)", word).groups()
        rest = rest.encode().decode("unicode_escape")
        found.append((path if path[0] == "/" else T + path, "-" if gone else kind + rest))
    return found


def make(path, wanted):
    """Makes a link (>TARGET), a file (=TEXT or =TEXT%MODE), a folder (/), a FIFO (|) or nothing."""
    if os.path.lexists(path):
        subprocess.run(["rm", "-rf", path], check=True)
    if wanted != "-":
        os.makedirs(path if wanted == "/" else os.path.dirname(path), exist_ok=True)
    if wanted[0] == ">":
        os.symlink(wanted[1:], path)
    if wanted == "|":
        os.mkfifo(path)
    if wanted[0] == "=":
        text, _, mode = wanted[1:].partition("%")
        pathlib.Path(path).write_text(text, encoding="utf-8")
        os.chmod(path, int(mode or "644", 8))


def state(path):
    """What is at a path, as make() takes it."""
    if os.path.islink(path):
        return ">" + os.readlink(path)
    if not os.path.isfile(path):
        return "/" if os.path.isdir(path) else "|" if os.path.exists(path) else "-"
    mode = os.stat(path).st_mode & 0o7777
    return "=" + pathlib.Path(path).read_text(encoding="utf-8") + f"%{mode:o}".replace("%644", "")


def arrange(row):
    """Makes the sound device with a row's changes; the state of every path to compare."""
    for top in ("/var", "/usr/share"):
        for entry in os.listdir(top):
            make(f"{top}/{entry}", "-")
    for path, wanted in entries(NAMES["sound"] + " " + row[1]):
        make(path, wanted)
    return {path: state(path) for path in FIXED + [p for p, _ in entries(row[1] + " " + row[3])]}


def boot(command):
    """One boot: its exit status and its lines, without the program's name."""
    result = subprocess.run(command, stderr=subprocess.PIPE, text=True, check=False, timeout=60)
    return result.returncode, result.stderr.replace("tzlinks: ", "").splitlines()


def check(command, row):
    """A diff of a row's expectations against a boot; a message naming an errno pins its text."""
    before = arrange(row)
    wanted = [f"exit status {row[4] or 0}"]
    for message in spelt(row[2], " | "):
        text, code = re.fullmatch(r"(.*?)(?:: (E[A-Z]+))?", message).groups()
        wanted.append(text + (f": {os.strerror(getattr(errno, code))}" if code else ""))
    wanted += [f"{path} {now}" for path, now in (before | dict(entries(row[3]))).items()]
    status, said = boot(command)
    said = [line if line in wanted else line.rpartition(": ")[0] for line in said]
    done = [f"exit status {status}", *said, *(f"{path} {state(path)}" for path in before)]
    return list(difflib.unified_diff(wanted, done, "expected", "booted", lineterm=""))


def traced(command, inject=()):
    """A boot under strace: its status, its lines, and its calls on the device (name, nth, line)."""
    trace = pathlib.Path(os.environ["TZLINKS_DEVICE_ROOT"], "trace")
    trace.write_text("", encoding="utf-8")  # what a tracer that records nothing leaves
    options = ["-qq", "-y", "-o", str(trace), "-E", "ASAN_OPTIONS=detect_leaks=0", *inject]
    status, said = boot(["strace", *options, *command])
    calls, seen = [], {}
    for line in trace.read_text(encoding="utf-8").splitlines():
        seen[name] = seen.get(name := line.split("(")[0], 0) + 1  # as inject's when= counts
        if re.search(r'["<]/(var|usr/share)/', line):
            calls.append((name, seen[name], line))
    return status, said, calls


def scenario(command, row, what):
    """A fault or crash at each call, then a boot that must heal it; a fault prints its promise."""
    before = arrange(row)
    calls = [c for c in traced(command)[2] if what != "signal=KILL" or re.search(DISK, c[2])]
    refs = [{p: state(p) for p in FIXED}]
    boot(command)  # what one or two boots without a fault leave
    refs.append({p: state(p) for p in FIXED})
    problems = [] if calls else [f"{row[0]}: {what}: no call traced"]
    for name, nth, line in calls:
        arrange(row)
        status, said = traced(command, [f"-einject={name}:{what}:when={nth}"])[:2]
        for promise in (m.expand(p) for r, p in PROMISED.items() if (m := re.search(r, line))):
            if what == "error=EIO" and f"{promise}: {os.strerror(errno.EIO)}" not in said:
                problems.append(f"{row[0]}: {what} at {line}: no line '{promise}'")
        then, after = boot(command)[0], {p: state(p) for p in FIXED}
        ended = status == -9 if what == "signal=KILL" else status in (0, 1)
        whole = all(healed(p, after, f"{what} {line}", before, refs) for p in FIXED)
        if not ended or then or not whole:
            problems.append(f"{row[0]}: {what} at {line}: status {status}, then {after}")
    print(f"{row[0][1:]}: {what} at {len(calls)} calls")
    return problems


def healed(path, after, fault, before, refs):
    """Whether a path is as one or two boots without a fault leave it, or in a window."""
    use = re.fullmatch(f">{T}tz/(.*)/zoneinfo", after[T + "zoneinfo"])
    if after[path] in (refs[0][path], refs[1][path]):
        return True
    for _, left, _ in (w for w in WINDOWS if T + w[0] == path and re.search(w[2], fault)):
        left = left.replace("{use}", re.escape(use[1]) if use else "-")
        if re.fullmatch(left.replace("{before}", re.escape(before[path])), after[path]):
            return True
    return False


def main():
    """Checks every row of the tables, or the faults or crashes of the rows marked *."""
    if "TZLINKS_DEVICE_ROOT" not in os.environ:
        sys.exit("boots.py: run me inside tests/device-root: I empty /var and /usr/share")
    mode, program, prefix, *tables = sys.argv[1:]
    command = prefix.split() + [os.path.abspath(program), "ignored"]
    kinds = {"--faults": ["error=EIO", "error=ENOENT"], "--crashes": ["signal=KILL"]}
    os.umask(0)  # files get the very modes that the program asks for
    rows = [re.split(r"\s*\|\|\s*", line) + [""] * 4 for table in tables for line in lines(table)]
    problems = []
    for row in rows:
        if mode == "--boots" and (diff := check(command, row)):
            problems.append("\n".join([row[0], *diff]))
        for what in kinds.get(mode, []) if row[0].startswith("*") else []:
            problems += scenario(command, row, what)
    print(*(f"FAIL {problem}" for problem in problems), f"{len(rows)} rows", sep="\n")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
