#!/usr/bin/env python3
"""Boots the built tzlinks behind PREFIX (an emulator, or nothing) against the device states
of the tables, and checks exactly what it prints, its exit status and what it leaves.
Usage: boots.py [--faults|--crashes] TZLINKS PREFIX TABLE...

A row: name || changes to a sound device || messages, "|" between them || changes the boot
makes [|| exit status]. Changes: PATH>TARGET a link, PATH=TEXT a file (mode 644), PATH%MODE,
PATH/ a folder, -PATH nothing; macros use:V (the links name update V, or the system),
latest:V, rec:TEXT, marker, update:V[,FORMAT], twoicu:V. A relative PATH is under $, that
is /var/db/timezone/, and @ is $tz/; {ax9} is aaaaaaaaa. A message ends in ": ERRNO" (ENOENT
if none). Rows named *... are also scenarios: with --faults, a boot with EIO (and ENOENT)
at each file-system call; with --crashes, a boot killed at each disk change and then again
in its healing boot. One clean boot later all must be as fault-free boots leave it, or as
a window of the README allows."""
import collections, errno, os, re, shlex, shutil, subprocess, sys, tempfile

T, V = "/var/db/timezone/", "/var/db/timezone/tz/"
FIXED = [T + p for p in "zoneinfo icutz localtime needs_cleanup TZVersionDiffRecord".split()] + ["/var/db/icutz", "/var/db/icu"]
MACROS = {"use": lambda v: f"zoneinfo>@{v}/zoneinfo icutz>@{v}/icutz" if v else "zoneinfo>/usr/share/zoneinfo.default -icutz",
          "latest": lambda v: f"tz_latest>@{v}", "rec": lambda v: f"TZVersionDiffRecord={v}", "marker": lambda v: "needs_cleanup=",
          "update": lambda v: (lambda d, f="44l": f"@{d}/zoneinfo/+VERSION={d[:5]} @{d}/zoneinfo/UTC=TZif @{d}/icutz/icutz{f}.dat=")(*v.split(","))}
SOUND = ("/usr/share/zoneinfo.default/+VERSION=2016c /usr/share/zoneinfo.default/UTC=TZif /usr/share/icu/icutzformat.txt=44l use: "
         "localtime>$zoneinfo/UTC update:2016a.1.0 update:2016b.1.0 update:2016d.1.0 update:2016e.1.0,46l update:2016f.1.0")
WORDS = {"INCOMPAT": "Symlink points at data incompatible with installed system", "LOCATE": "Unable to locate data; resetting to "
         "system partition", "INVALID": "Invalid current symlinks; resetting to system partition", "LOCALTIME": "localtime link "
         "invalid; resetting to America/Los_Angeles", "UNPARSED": "Cannot parse version string", "NOTNEWER": "New update not "
         "compatible or older version:"}
# The only opens that may change the disk, and the directories opened to be protected.
OPENS = {T + "needs_cleanup": "O_RDWR|O_CREAT, 0666", T + "TZVersionDiffRecord": "O_WRONLY|O_CREAT|O_TRUNC, 0666",
         T: "O_RDONLY|O_CLOEXEC)", V: "O_RDONLY|O_CLOEXEC)"}
# The start-up steps, in the order a boot of a sound device first touches their paths.
ORDER = [T, V, "/var/db/icutz", T + "needs_cleanup", "/var/db/icu", "/usr/share/zoneinfo.default/+VERSION",
         "/usr/share/icu/icutzformat.txt", T + "tz_latest", T + "zoneinfo", T + "localtime"]
failures = []


def expand(text):
    return re.sub(r"\{(.)x(\d+)\}", lambda m: m[1] * int(m[2]), text).replace("@", V).replace("$", T)


def tokens(text):
    out = []
    for tok in shlex.split(expand(text)):
        name, _, value = tok.partition(":")
        if name in MACROS or name == "twoicu":
            out += tokens(MACROS[name](value)) if name in MACROS else [("2", V + value + "/icutz", "")]
            continue
        m = re.fullmatch(r"(-?)([^=>%]*?)(/?)(?:([=>%])(.*))?", tok, re.S)
        out.append((m[1] or m[4] or m[3], m[2] if m[2].startswith("/") else T + m[2], (m[5] or "").encode().decode("unicode_escape")))
    return out


def apply(changes):
    for op, path, arg in changes:
        if op == "%":
            os.chmod(path, int(arg, 8))
        elif op == "2":  # two matching ICU files, the folder listing the one of format 44l first
            for pair in (["icutz44l.dat", f"icutz{k}l.dat"][::step] for k in range(45, 99) for step in (1, -1)):
                apply([("=", f"{path}/{name}", "") for name in pair])
                if [n for n in os.listdir(path) if n in pair][0] == "icutz44l.dat":
                    break
                apply([("-", f"{path}/{name}", "") for name in pair])
        else:
            shutil.rmtree(path) if os.path.isdir(path) and not os.path.islink(path) else os.path.lexists(path) and os.unlink(path)
            if op != "-":
                os.makedirs(path if op == "/" else os.path.dirname(path), exist_ok=True)
            if op == ">":
                os.symlink(arg, path)
            elif op == "=":
                with open(path, "w") as f:
                    f.write(arg)
                os.chmod(path, 0o644)


def state(path):
    if os.path.islink(path) or not os.path.isfile(path):
        return ">" + os.readlink(path) if os.path.islink(path) else "/" if os.path.isdir(path) else "-"
    mode = os.stat(path).st_mode & 0o7777
    return "=" + open(path).read() + ("" if mode == 0o644 else "%%%o" % mode)


def snapshot(paths=FIXED):
    return {p: state(p) for p in paths}


def arrange(row):
    apply([("-", f"{top}/{entry}", "") for top in ("/var", "/usr/share") for entry in os.listdir(top)])
    apply(tokens(SOUND) + tokens(row[1]))
    return snapshot(FIXED + [p for _, p, _ in tokens(row[1]) + tokens(row[3])])


def boot(extra=()):
    r = subprocess.run(list(extra) + PREFIX + [TZLINKS, "ignored"], stderr=subprocess.PIPE, text=True)
    return r.returncode, [line.removeprefix("tzlinks: ") for line in r.stderr.splitlines()]


def message(text):
    text = re.sub(r"^NOTNEWER (\S+) (\S+)", r"NOTNEWER \1 vs. \2", expand(text))
    text, name = re.fullmatch(r"(.*?)(?:: (E[A-Z]+|0))?", re.sub(r"^[A-Z]+", lambda m: WORDS.get(m[0], m[0]), text)).groups()
    return text + ": " + os.strerror(getattr(errno, name or "ENOENT", 0))


def check(row):
    expected = arrange(row)
    for op, path, arg in tokens(row[3]):
        expected[path] = expected[path] + "%" + arg if op == "%" else {"-": "-", "/": "/"}.get(op, op + arg)
    status, said = boot()
    want, after = [message(m) for m in row[2].split(" | ") if m], snapshot(expected)
    if (said, after, status) != (want, expected, int(row[4] or 0)):
        failures.append(f"{row[0]}: status {status}\n  printed {said}\n  wanted  {want}\n  left    {after}\n  wanted  {expected}")


def traced(extra=()):
    status, said = boot(["strace", "-qq", "-y", "-o", TRACE] + list(extra))
    seen, calls = collections.Counter(), []
    for line in open(TRACE):
        seen[line.split("(")[0]] += 1
        if re.search(r'["<](/var/|/usr/share/)', line):
            calls.append((line.split("(")[0], seen[line.split("(")[0]], line.strip()))
    return status, said, calls


def changed(name, line):  # the path a call changes, if it changes one
    if name in ("write", "ftruncate") or name.startswith("open") and re.search("O_CREAT|O_TRUNC", line) or \
            re.fullmatch("unlink|symlink|rmdir|rename|mkdir|link|truncate", name.removesuffix("at").removesuffix("at2")):
        return re.search(r"<([^>]*)>", line)[1] if "write" in name else re.findall(r'"([^"]*)"', line)[-1 if "sym" in name else 0]


def healed(row, refs, before, hits):
    status, said = boot()
    after, named = snapshot(), lambda *paths: any(f'"{p}' in l or f"<{p}" in l for l in hits for p in paths)
    in_use = re.match(">" + V + r"(.*)/zoneinfo$", after[T + "zoneinfo"])
    windows = {T + "localtime": after[T + "localtime"] == f">{T}zoneinfo/America/Los_Angeles" and named(T + "localtime", T + "zoneinfo/"),
               T + "icutz": after[T + "icutz"] in ("-", before[T + "icutz"], before["/var/db/icutz"]) and named(T + "icutz", "/var/db/icutz")
               or after[T + "icutz"] == "-" and not in_use,
               T + "TZVersionDiffRecord": after[T + "TZVersionDiffRecord"] in ("-", "=") or in_use and
               after[T + "TZVersionDiffRecord"].endswith("_" + in_use[1])}
    wrong = [p for p in after if after[p] not in (refs[0][p], refs[1][p]) and not windows.get(p)]
    if wrong or status:
        failures.append(f"{row[0]}: not healed at {hits}: {wrong}\n  {after}\n  wanted {refs[1]}\n  said {said}")


def reliability(row, crashes, quick):
    arrange(row)
    calls, refs, _ = traced()[2], [], arrange(row)
    for _ in range(2):  # two fault-free boots, traced on every path: what they change, and how
        for name, _, line in traced()[2]:
            path, opened = changed(name, line), name == "openat" and line.split('"')[1]
            if path and path not in FIXED or opened in OPENS and OPENS[opened] not in line:
                failures.append(f"{row[0]}: changes what is not its own, or opens it so: {line}")
        refs.append(snapshot())
    touched = [m[1] for _, _, line in calls if (m := re.match(r'\w+\((?:AT_FDCWD<[^>]*>, )?"([^"]*)', line))]
    if row[0] == "*sound device" and list(dict.fromkeys(touched))[:len(ORDER)] != ORDER:
        failures.append(f"start-up order: {list(dict.fromkeys(touched))}")
    points = 0
    for i, (name, nth, line) in enumerate(calls):
        for what in (["signal=KILL"] if changed(name, line) else []) if crashes else ["error=EIO"] + ["error=ENOENT"] * (not quick):
            before, points = arrange(row), points + 1
            status, said, _ = traced(["-e", f"inject={name}:{what}:when={nth}"])
            escaped = any(re.fullmatch(r"\w+ failed", s.rpartition(": ")[0]) for s in said)
            if status != (-9 if crashes else int(escaped)):
                failures.append(f"{row[0]}: {what} at {line}: status {status}, said {said}")
            if not crashes or quick:
                healed(row, refs, before, [line])
                continue
            healing = traced()[2]  # a second crash, at each disk change of the healing boot
            for j in [j for j, (n, _, l) in enumerate(healing) if changed(n, l)]:
                arrange(row), traced(["-e", f"inject={name}:{what}:when={nth}"])
                traced(["-e", f"inject={healing[j][0]}:signal=KILL:when={healing[j][1]}"])
                healed(row, refs, before, [line, healing[j][2]])
                points += 1
    return points


if __name__ == "__main__":
    mode = sys.argv.pop(1)[2:] if sys.argv[1] in ("--faults", "--crashes") else None
    TZLINKS, PREFIX, TABLES = os.path.abspath(sys.argv[1]), shlex.split(sys.argv[2]), sys.argv[3:]
    if "TZLINKS_DEVICE_ROOT" not in os.environ:  # into a device root of our own first, or exit 77
        root = tempfile.mkdtemp(prefix="tzlinks-boots-")
        os.mkdir(root + "/var"), os.mkdir(root + "/share")
        code = subprocess.run([os.path.dirname(os.path.abspath(__file__)) + "/../scripts/device-root", root, sys.executable,
                               __file__] + ([f"--{mode}"] if mode else []) + sys.argv[1:], env=dict(os.environ, TZLINKS_DEVICE_ROOT=root)).returncode
        shutil.rmtree(root, ignore_errors=True)
        sys.exit(code)
    os.umask(0o022)
    TRACE = os.environ["TZLINKS_DEVICE_ROOT"] + "/trace"
    rows = [(re.split(r"\s*\|\|\s*", line.strip()) + [""] * 3)[:5] for table in TABLES for line in open(table)
            if line.strip() and not line.startswith("#")]
    for row in rows:
        if not mode:
            check(row)
        elif row[0].startswith("*"):
            print(f"[reliability] {row[0][1:]}: {reliability(row, mode == 'crashes', 'TZLINKS_RELIABILITY_QUICK' in os.environ)} {mode}")
    print("FAIL " + "\nFAIL ".join(failures) if failures else "", f"\n{len(rows)} rows, {len(failures)} failures")
    sys.exit(1 if failures else 0)
