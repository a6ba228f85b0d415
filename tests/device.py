"""The boot tables' rows, and the device state they describe (row format: docs/HACKING.md)."""

import collections
import errno
import os
import re
import shlex
import shutil
import subprocess

T = "/var/db/timezone/"
V = T + "tz/"
RECORD = T + "TZVersionDiffRecord"
# Every path a boot may change: compared after every boot.
FIXED = [T + "zoneinfo", T + "icutz", T + "localtime", T + "needs_cleanup", RECORD]
FIXED += ["/var/db/icutz", "/var/db/icu"]
# NAME or NAME:VERSION[,ICU FORMAT] in a row stands for these changes.
MACROS = {
    "system": "zoneinfo>/usr/share/zoneinfo.default -icutz",
    "use": "zoneinfo>@{v}/zoneinfo icutz>@{v}/icutz",
    "latest": "tz_latest>@{v}",
    "rec": "TZVersionDiffRecord={v}",
    "marker": "needs_cleanup=",
    "update": "@{v}/zoneinfo/+VERSION={y} @{v}/zoneinfo/UTC= @{v}/icutz/icutz{f}.dat=",
}
SOUND = (
    "/usr/share/zoneinfo.default/+VERSION=2016c /usr/share/zoneinfo.default/UTC="
    " /usr/share/icu/icutzformat.txt=44l system localtime>$zoneinfo/UTC update:2016a.1.0"
    " update:2016b.1.0 update:2016d.1.0 update:2016e.1.0,46l update:2016f.1.0"
)
WORDS = {
    "INCOMPAT": "Symlink points at data incompatible with installed system",
    "INVALID": "Invalid current symlinks; resetting to system partition",
    "LOCATE": "Unable to locate data; resetting to system partition",
    "LOCALTIME": "localtime link invalid; resetting to America/Los_Angeles",
    "NOTNEWER": "New update not compatible or older version:",
    "UNPARSED": "Cannot parse version string",
}
Row = collections.namedtuple("Row", "name changes said effects status")


def read_rows(tables):
    """The rows of the tables, in order; comments and blank lines left out."""
    rows = []
    for table in tables:
        with open(table, encoding="utf-8") as file:
            lines = [line.strip() for line in file if line.strip() and line[0] != "#"]
        rows += [Row(*(re.split(r"\s*\|\|\s*", line) + [""] * 4)[:5]) for line in lines]
    return rows


def expand(text):
    """A row's text with {ax9} written out, @ as the updates' folder and $ as /var/db/timezone/."""
    text = re.sub(r"\{(.)x(\d+)\}", lambda m: m[1] * int(m[2]), text)
    return text.replace("@", V).replace("$", T)


def tokens(text):
    """The changes a row's text lists, as (operation, absolute path, value), macros expanded."""
    changes = []
    for word in shlex.split(expand(text)):
        name, _, value = word.partition(":")
        if name not in MACROS:
            changes.append(change(word))
            continue
        version, _, icu = value.partition(",")
        for part in expand(MACROS[name]).split():
            changes.append(change(part.format(v=version, y=version[:5], f=icu or "44l")))
    return changes


def change(word):
    """One change: PATH>TARGET, PATH=TEXT[%MODE], PATH/, -PATH or PATH* (two ICU files)."""
    match = re.fullmatch(r"(-?)([^=>*]*?)(/?)(?:([=>*])(.*))?", word, re.S)
    path = match[2] if match[2].startswith("/") else T + match[2]
    value = (match[5] or "").encode().decode("unicode_escape")
    return match[1] or match[4] or match[3], path, value


def apply(changes):
    """Makes the changes on the device, in order."""
    for operation, path, value in changes:
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif os.path.lexists(path):
            os.unlink(path)
        if operation != "-":
            os.makedirs(path if operation in "/*" else os.path.dirname(path), exist_ok=True)
        if operation == ">":
            os.symlink(value, path)
        if operation == "=":
            text, _, mode = value.partition("%")
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
            os.chmod(path, int(mode or "644", 8))
        if operation == "*":
            two_icu_files(path)


def two_icu_files(folder):
    """Puts two matching ICU files in a folder, the one of format 44l listed first."""
    for number in range(45, 99):
        other = f"icutz{number}l.dat"
        for names in (["icutz44l.dat", other], [other, "icutz44l.dat"]):
            apply([("=", f"{folder}/{name}", "") for name in names])
            if [name for name in os.listdir(folder) if name in names][0] == "icutz44l.dat":
                return
            apply([("-", f"{folder}/{name}", "") for name in names])
    raise RuntimeError(f"no two ICU files in {folder} are listed with 44l first")


def state(path):
    """What is at a path: >TARGET, =TEXT (then %MODE unless 644), / (a folder) or - (nothing)."""
    if os.path.islink(path):
        return ">" + os.readlink(path)
    if os.path.isdir(path):
        return "/"
    if not os.path.exists(path):
        return "-"
    with open(path, encoding="utf-8") as file:
        text = file.read()
    mode = os.stat(path).st_mode & 0o7777
    return "=" + text + ("" if mode == 0o644 else f"%{mode:o}")


def arrange(row):
    """Makes the sound device with a row's changes; the state of every path the row names."""
    for top in ("/var", "/usr/share"):
        apply([("-", f"{top}/{entry}", "") for entry in os.listdir(top)])
    changes = tokens(row.changes)
    apply(tokens(SOUND) + changes)
    named = [path for _, path, _ in changes + tokens(row.effects)]
    return {path: state(path) for path in FIXED + named}


def message(text):
    """The line a row's message stands for: its abbreviation spelt out, its errno text added."""
    text, error = re.fullmatch(r"(.*?)(?:: (E[A-Z]+|0))?", expand(text)).groups()
    text = re.sub(r"^[A-Z]+\b", lambda m: WORDS.get(m[0], m[0]), text)
    return f"{text}: {os.strerror(getattr(errno, error or 'ENOENT', 0))}"


def boot(command):
    """Runs one boot: its exit status and the lines it printed, without the program's name."""
    result = subprocess.run(command, stderr=subprocess.PIPE, text=True, check=False)
    lines = result.stderr.splitlines()
    return result.returncode, [line.removeprefix("tzlinks: ") for line in lines]
