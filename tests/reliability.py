"""Faults and crashes at every file-system call of a scenario row's boot, and the boot after."""

import collections
import re
import tempfile

from device import FIXED, RECORD, T, V, arrange, boot, state

# How the paths opened to be changed, and the directories protected, must be opened.
OPENS = {T + "needs_cleanup": "O_RDWR|O_CREAT, 0666", RECORD: "O_WRONLY|O_CREAT|O_TRUNC, 0666"}
OPENS.update({T: "O_RDONLY|O_CLOEXEC)", V: "O_RDONLY|O_CLOEXEC)"})
# The paths a boot of the sound device names first, in order, those under /var/db/timezone/
# relative to it: the order of the start-up steps.
ORDER = (
    " tz/ /var/db/icutz needs_cleanup /var/db/icu /usr/share/zoneinfo.default/+VERSION"
    " /usr/share/icu/icutzformat.txt tz_latest zoneinfo localtime"
)
# The disk changes of a boot that resets, leaves the marker, activates and records, in order.
CHANGES = (
    "unlink needs_cleanup unlink /var/db/icu unlink zoneinfo symlink zoneinfo unlink icutz"
    " unlink /var/db/icutz openat needs_cleanup unlink zoneinfo symlink zoneinfo unlink icutz"
    " unlink /var/db/icutz symlink icutz openat TZVersionDiffRecord write TZVersionDiffRecord"
)
KILL = "signal=KILL"
Call = collections.namedtuple("Call", "name nth line")


def traced(command, faults=()):
    """A boot under strace with (call, error=E or signal=KILL) faults; its calls on the device."""
    inject = [f"-einject={call.name}:{what}:when={call.nth}" for call, what in faults]
    with tempfile.NamedTemporaryFile("r") as trace:
        options = ["-qq", "-y", "-o", trace.name, "-E", "ASAN_OPTIONS=detect_leaks=0"]
        status, said = boot(["strace", *options, *inject, *command])
        lines = trace.readlines()
    seen = collections.Counter()  # inject's when= counts every call of the name
    calls = []
    for line in lines:
        name = line.split("(")[0]
        seen[name] += 1
        if re.search(r'["<](/var/|/usr/share/)', line):
            calls.append(Call(name, seen[name], line.strip()))
    return status, said, calls


def changed(call):
    """The path a call changes, or None."""
    if call.name in ("write", "ftruncate"):
        return re.search(r"<([^>]*)>", call.line)[1]
    creates = call.name.startswith("open") and re.search("O_CREAT|O_TRUNC", call.line)
    if creates or re.fullmatch(r"(unlink|symlink|rmdir|rename|mkdir|link)(at2?)?", call.name):
        paths = re.findall(r'"([^"]*)"', call.line)
        return paths[-1] if call.name.startswith("symlink") else paths[0]
    return None


def named(call):
    """The first path a call names, relative to /var/db/timezone/ if under it."""
    match = re.match(r'\w+\((?:AT_FDCWD<[^>]*>, )?"([^"]*)"', call.line)
    return match[1].removeprefix(T) if match else None


def names(hits, *paths):
    """Whether any of the calls names any of the paths, quoted or as a descriptor's."""
    return any(f'"{p}' in hit or f"<{p}" in hit for hit in hits for p in paths)


def snapshot():
    """The state of every path a boot may change."""
    return {path: state(path) for path in FIXED}


class Scenario:
    """A scenario row: two fault-free boots, and the faults or crashes judged against them."""

    def __init__(self, command, row):
        """Boots the row's device twice without faults, checking what the boots change and how."""
        self.command = command
        self.row = row
        self.problems = []
        self.before = arrange(row)
        self.calls = traced(command)[2]
        self.refs = [snapshot()]
        again = traced(command)[2]
        self.refs.append(snapshot())
        for call in self.calls + again:
            opened = call.line.split('"')[1] if call.name == "openat" else None
            if changed(call) not in FIXED + [None] or OPENS.get(opened, "") not in call.line:
                self.fail(f"changes a path not its own, or opens its own otherwise: {call.line}")
        changes = [f"{c.name} {changed(c).removeprefix(T)}" for c in self.calls if changed(c)]
        if row.name == "*fails, newer latest" and " ".join(changes) != CHANGES:
            self.fail(f"changes in order {changes}")
        first = dict.fromkeys(named(c) for c in self.calls if named(c) is not None)
        if row.name == "*sound device" and " ".join(first) != ORDER:
            self.fail(f"start-up order {list(first)}")

    def fail(self, problem):
        """Records a problem of this scenario."""
        self.problems.append(f"{self.row.name}: {problem}")

    def run(self, crashes, quick):
        """Judges every fault at every call, or every crash at every disk change; the problems."""
        if crashes:
            points = self.crashes(twice=not quick)
        else:
            points = self.faults(["EIO"] if quick else ["EIO", "ENOENT"])
        print(f"{self.row.name[1:]}: {points} {'crashes' if crashes else 'faults'}")
        return self.problems

    def faults(self, errors):
        """Each error at each call of the boot; how many faults were judged."""
        for call in self.calls:
            for error in errors:
                self.judge([(call, f"error={error}")])
        return len(self.calls) * len(errors)

    def crashes(self, twice):
        """A kill at each disk change, and if twice another at each of the next boot's."""
        points = 0
        for call in [call for call in self.calls if changed(call)]:
            healing = self.judge([(call, KILL)])
            again = [other for other in healing if twice and changed(other)]
            for other in again:
                self.judge([(call, KILL), (other, KILL)])
            points += 1 + len(again)
        return points

    def judge(self, faults):
        """Boots the device once per fault, then once more to heal; that boot's calls."""
        arrange(self.row)
        for fault in faults:
            status, said, _ = traced(self.command, [fault])
            escaped = any(re.fullmatch(r"\w+ failed: .*", line) for line in said)
            if status != (-9 if fault[1] == KILL else int(escaped)):
                self.fail(f"{fault}: status {status}, said {said}")
        status, said, calls = traced(self.command)
        after = snapshot()
        hits = [call.line for call, _ in faults]
        wrong = [p for p in FIXED if after[p] not in (self.refs[0][p], self.refs[1][p])]
        wrong = [p for p in wrong if not self.in_window(p, after, hits)]
        if wrong or status:
            self.fail(f"not healed after {hits}: {wrong} {after}")
        return calls

    def in_window(self, path, after, hits):
        """Whether a path's state is one that a fault at these calls may leave for good."""
        in_use = re.fullmatch(f">{V}(.*)/zoneinfo", after[T + "zoneinfo"])
        if path == RECORD and bool(in_use):
            return after[path] in ("-", "=") or after[path].endswith("_" + in_use[1])
        if path == RECORD:
            return after[path] in ("-", "=")
        if path == T + "localtime":
            reset = after[path] == f">{T}zoneinfo/America/Los_Angeles"
            return reset and names(hits, path, T + "zoneinfo/")
        if path == T + "icutz" and not in_use and after[path] == "-":
            return True
        if path == T + "icutz":
            left = (self.before[path], self.before["/var/db/icutz"], "-")
            return after[path] in left and names(hits, path, "/var/db/icutz")
        return False
