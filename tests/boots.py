#!/usr/bin/env python3
"""Boots tzlinks on the boot tables' device states (docs/HACKING.md), inside tests/device-root:
boots.py --boots|--faults|--crashes PROGRAM PREFIX(an emulator, or empty) TABLE..."""

import collections
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
# Every path a boot may change: compared after every boot.
FIXED = [T + f for f in ("zoneinfo", "icutz", "localtime", "needs_cleanup", "TZVersionDiffRecord")]
FIXED += ["/var/db/icutz", "/var/db/icu"]
# NAME or NAME:VALUE[,FORMAT] in a row's changes stands for these changes.
MACROS = {
    "system": "zoneinfo>~zoneinfo.default -icutz",
    "use": "zoneinfo>@{v}/zoneinfo icutz>@{v}/icutz",
    "latest": "tz_latest>@{v}",
    "rec": "TZVersionDiffRecord={v}",
    "marker": "needs_cleanup=",
    "default": "localtime>$zoneinfo/America/Los_Angeles",
    "update": "@{v}/zoneinfo/+VERSION={v} @{v}/zoneinfo/UTC= @{v}/icutz/icutz{f}.dat=",
    "release": "~zoneinfo.default/+VERSION={v}",
    "format": "~icu/icutzformat.txt={v}",
}
SOUND = "release:9c ~zoneinfo.default/UTC= format:44l system localtime>$zoneinfo/UTC"
SOUND += " update:9a update:9b update:9d update:9e,46l update:9f update:9g,none"
# Words that stand for the program's longer messages.
WORDS = {
    "INCOMPAT": "Symlink points at data incompatible with installed system",
    "INVALID": "Invalid current symlinks; resetting to system partition",
    "LOCATE": "Unable to locate data; resetting to system partition",
    "LOCALTIME": "localtime link invalid; resetting to America/Los_Angeles",
    "NOTNEWER": "New update not compatible or older version:",
    "NOSCHEMA": "No ICU schema found for",
    "CORRECTING": "Correcting localtime link to",
    "NOICUTZ": "remove: could not remove $icutz: EISDIR | unlink of ICU softlink failed",
    "NOZONEINFO": "remove: could not remove $zoneinfo: EISDIR | Unlink of zoneinfo softlink failed"
    " | create_symlink: from $zoneinfo to ~zoneinfo.default: EEXIST",
}
# The calls that change the disk: a crash at each must heal.
DISK = r"^(unlink|symlink|write)|O_CREAT|O_TRUNC"
UNPARSED = r"Cannot parse version string \1, results.size() = 0 | Cannot parse version string \1"


def read_rows(tables):
    """The tables' rows as [name, changes, messages, effects, status], indented lines joined."""
    text = "\n".join(pathlib.Path(table).read_text(encoding="utf-8") for table in tables)
    lines = re.sub(r"\n[ \t]+", " ", re.sub(r"(?m)^#.*\n", "", text)).split("\n")
    return [(re.split(r"\s*\|\|\s*", line) + [""] * 4)[:5] for line in lines if line.strip()]


def expand(text):
    """A row's text with {TEXTxN} repeated, its words and path abbreviations spelt out."""
    text = re.sub(r"\{(.+?)x(\d+)\}", lambda m: m[1] * int(m[2]), text)
    text = re.sub(r"\b[A-Z]{5,}\b", lambda m: WORDS.get(m[0], m[0]), text)
    text = re.sub(r"UNPARSED ([^ |]*)", UNPARSED, text)
    return text.replace("@", T + "tz/").replace("$", T).replace("~", "/usr/share/")


def changes(text):
    """The changes a row's text lists, as (operation, absolute path, value), macros expanded."""
    parsed = []
    for word in shlex.split(text):
        name, _, value = word.partition(":")
        version, _, icu = value.partition(",")
        for part in MACROS[name].split() if name in MACROS else [word]:
            part = expand(part.format(v=version, f=icu or "44l") if name in MACROS else part)
            match = re.fullmatch(r"(-?)([^=>]*?)(/?)(?:([=>])(.*))?", part, re.S)
            path = match[2] if match[2].startswith("/") else T + match[2]
            content = (match[5] or "").encode().decode("unicode_escape")
            parsed.append((match[1] or match[4] or match[3], path, content))
    return parsed


def apply(wanted):
    """Makes the changes on the device, in order: a link, a file, a folder or nothing."""
    for operation, path, value in wanted:
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif os.path.lexists(path):
            os.unlink(path)
        if operation != "-":
            os.makedirs(path if operation == "/" else os.path.dirname(path), exist_ok=True)
        if operation == ">":
            os.symlink(value, path)
        if operation == "=":
            text, _, mode = value.partition("%")
            pathlib.Path(path).write_text(text, encoding="utf-8")
            os.chmod(path, int(mode or "644", 8))


def state(path):
    """What is at a path: >TARGET, =TEXT (then %MODE unless 644), / (a folder) or - (nothing)."""
    if os.path.islink(path):
        return ">" + os.readlink(path)
    if not os.path.isfile(path):
        return "/" if os.path.isdir(path) else "-"
    mode = os.stat(path).st_mode & 0o7777
    text = pathlib.Path(path).read_text(encoding="utf-8")
    return "=" + text + ("" if mode == 0o644 else f"%{mode:o}")


def arrange(row):
    """Makes the sound device with a row's changes; the state of every path the row names."""
    for top in ("/var", "/usr/share"):
        apply([("-", f"{top}/{entry}", "") for entry in os.listdir(top)])
    apply(changes(SOUND) + changes(row[1]))
    return {path: state(path) for path in FIXED + [c[1] for c in changes(row[1] + " " + row[3])]}


def messages(text):
    """The lines a row's messages stand for; each ends in its errno text, by default the last."""
    lines, error = [], "ENOENT"
    for message in filter(None, expand(text).split(" | ")):
        message, code = re.fullmatch(r"(.*?)(?:: (E[A-Z]+|0))?", message).groups()
        error = code or error
        lines.append(f"{message}: {os.strerror(getattr(errno, error, 0))}")
    return lines


def boot(command):
    """Runs one boot: its exit status and the lines it printed, without the program's name."""
    result = subprocess.run(command, stderr=subprocess.PIPE, text=True, check=False)
    said = [line.removeprefix("tzlinks: ") for line in result.stderr.splitlines()]
    return result.returncode, said


def check(command, row):
    """Boots a row's device once; what differs from what the row expects, if anything."""
    wanted = arrange(row) | {path: op + value for op, path, value in changes(row[3])}
    status, said = boot(command)
    wrong = {path: now for path in wanted if (now := state(path)) != wanted[path]}
    if (status, said, wrong) == (int(row[4] or 0), messages(row[2]), {}):
        return []
    return [f"{row[0]}: status {status}, said {said}\n  not {messages(row[2])}\n  left {wrong}"]


def traced(command, inject=()):
    """A boot under strace: its status and calls on the device as (call, nth of its name, line)."""
    with tempfile.NamedTemporaryFile("r") as trace:
        options = ["-qq", "-y", "-o", trace.name, "-E", "ASAN_OPTIONS=detect_leaks=0", *inject]
        status = boot(["strace", *options, *command])[0]
        lines = trace.readlines()
    calls, seen = [], collections.Counter()
    for line in lines:  # inject's when= counts every call of the name
        seen[line.split("(")[0]] += 1
        if re.search(r'["<](/var/|/usr/share/)', line):
            calls.append((line.split("(")[0], seen[line.split("(")[0]], line.strip()))
    return status, calls


def scenario(command, row, errors):
    """Each error at each call, or a crash at each disk change, then a boot that must heal it."""
    before = arrange(row)
    calls, refs = traced(command)[1], [{path: state(path) for path in FIXED}]
    boot(command)  # what one or two boots without a fault leave
    refs.append({path: state(path) for path in FIXED})
    points = [(call, f"error={error}") for call in calls for error in errors]
    points = points or [(call, "signal=KILL") for call in calls if re.search(DISK, call[2])]
    problems = []
    for (name, nth, line), what in points:
        arrange(row)
        status = traced(command, [f"-einject={name}:{what}:when={nth}"])[0]
        if status not in ((-9,) if "KILL" in what else (0, 1)) or boot(command)[0] != 0:
            problems.append(f"{row[0]}: {what} at {line}: status {status}, or the next boot failed")
        after = {path: state(path) for path in FIXED}
        wrong = [p for p in FIXED if after[p] not in (refs[0][p], refs[1][p])]
        if [path for path in wrong if not window(path, after, line, before)]:
            problems.append(f"{row[0]}: not healed after {what} at {line}: {after}")
    print(f"{row[0][1:]}: {len(points)} {'faults' if errors else 'crashes'}")
    return problems


def window(path, after, hit, before):
    """Whether a path's state is one that a fault or crash at this call may leave for good."""
    in_use = re.fullmatch(f">{T}tz/(.*)/zoneinfo", after[T + "zoneinfo"])
    if path == FIXED[4]:  # the record
        return after[path] in ("-", "=") or bool(in_use) and after[path].endswith("_" + in_use[1])
    if path == T + "localtime":
        reset = after[path] == f">{T}zoneinfo/America/Los_Angeles"
        return reset and re.search(f'["<]{T}(localtime|zoneinfo/)', hit) is not None
    left = after[path] in (before[path], before["/var/db/icutz"], "-")
    named = left and re.search(f'["<]({T}|/var/db/)icutz', hit) is not None
    return path == T + "icutz" and (not in_use and after[path] == "-" or named)


def main():
    """Checks every row of the tables, or the faults or crashes of the rows marked *."""
    if "TZLINKS_DEVICE_ROOT" not in os.environ:
        sys.exit("boots.py: run me inside tests/device-root: I empty /var and /usr/share")
    mode, program, prefix, *tables = sys.argv[1:]
    command = shlex.split(prefix) + [os.path.abspath(program), "ignored"]
    errors = ["EIO"] if "TZLINKS_RELIABILITY_QUICK" in os.environ else ["EIO", "ENOENT"]
    os.umask(0o022)
    rows, problems = read_rows(tables), []
    for row in rows:
        if mode == "--boots":
            problems += check(command, row)
        elif row[0].startswith("*"):
            problems += scenario(command, row, errors if mode == "--faults" else [])
    for problem in problems:
        print("FAIL", problem)
    print(f"{len(rows)} rows, {len(problems)} failures")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
