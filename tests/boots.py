#!/usr/bin/env python3
"""boots.py --boots|--faults|--crashes TZLINKS PREFIX TABLE...: boots TZLINKS, behind PREFIX (an
emulator, or nothing), on the device states of the tables (row format: the README's Tests).
Rows named *... are also the scenarios of --faults (EIO, and ENOENT, at each file-system call)
and --crashes (a kill at each disk change, then at each of the healing boot's): a clean boot
later, all must be as after one or two fault-free boots, or as a window of the README allows."""
import collections, errno, os, re, shlex, shutil, subprocess, sys, tempfile

T, V = "/var/db/timezone/", "/var/db/timezone/tz/"
FIXED = [T + p for p in "zoneinfo icutz localtime needs_cleanup TZVersionDiffRecord".split()] + ["/var/db/icutz", "/var/db/icu"]
MACROS = {"use": lambda v: f"zoneinfo>@{v}/zoneinfo icutz>@{v}/icutz" if v else "zoneinfo>/usr/share/zoneinfo.default -icutz",
          "latest": lambda v: f"tz_latest>@{v}", "rec": lambda v: f"TZVersionDiffRecord={v}", "marker": lambda v: "needs_cleanup=",
          "update": lambda v: (lambda d, f="44l": f"@{d}/zoneinfo/+VERSION={d[:5]} @{d}/zoneinfo/UTC= @{d}/icutz/icutz{f}.dat=")(*v.split(","))}
SOUND = ("/usr/share/zoneinfo.default/+VERSION=2016c /usr/share/zoneinfo.default/UTC= /usr/share/icu/icutzformat.txt=44l use: "
         "localtime>$zoneinfo/UTC update:2016a.1.0 update:2016b.1.0 update:2016d.1.0 update:2016e.1.0,46l update:2016f.1.0")
WORDS = dict(INCOMPAT="Symlink points at data incompatible with installed system", UNPARSED="Cannot parse version string",
             LOCATE="Unable to locate data; resetting to system partition", NOTNEWER="New update not compatible or older version:",
             INVALID="Invalid current symlinks; resetting to system partition", LOCALTIME="localtime link invalid; resetting to America/Los_Angeles")
# How the only paths opened to change them, and the directories protected, are opened.
OPENS = {T + "needs_cleanup": "O_RDWR|O_CREAT, 0666", T + "TZVersionDiffRecord": "O_WRONLY|O_CREAT|O_TRUNC, 0666", T: "O_RDONLY|O_CLOEXEC)", V: "O_RDONLY|O_CLOEXEC)"}
# The start-up steps, in the order a boot of the sound device first touches their paths.
ORDER = [T, V, "/var/db/icutz", T + "needs_cleanup", "/var/db/icu", "/usr/share/zoneinfo.default/+VERSION",
         "/usr/share/icu/icutzformat.txt", T + "tz_latest", T + "zoneinfo", T + "localtime"]
# The disk changes of a boot that resets, leaves the marker, activates and records, in order.
CHANGES = {"*fails, newer latest": "unlink needs_cleanup unlink /var/db/icu unlink zoneinfo symlink zoneinfo unlink icutz unlink "
           "/var/db/icutz openat needs_cleanup unlink zoneinfo symlink zoneinfo unlink icutz unlink /var/db/icutz symlink icutz "
           "openat TZVersionDiffRecord write TZVersionDiffRecord"}
failures = []


def expand(text):
    return re.sub(r"\{(.)x(\d+)\}", lambda m: m[1] * int(m[2]), text).replace("@", V).replace("$", T)


def tokens(text):
    out = []
    for tok in shlex.split(expand(text)):
        name, _, value = tok.partition(":")
        if name in MACROS or name == "twoicu":
            out += tokens(MACROS[name](value)) if name in MACROS else [("2", V + value + "/icutz", "")]
        else:
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
            op != "-" and os.makedirs(path if op == "/" else os.path.dirname(path), exist_ok=True)
            op == ">" and os.symlink(arg, path)
            if op == "=":
                open(path, "w").write(arg), os.chmod(path, 0o644)


def state(path, mode=lambda p: os.stat(p).st_mode & 0o7777):
    if os.path.islink(path) or not os.path.isfile(path):
        return ">" + os.readlink(path) if os.path.islink(path) else "/" if os.path.isdir(path) else "-"
    return "=" + open(path).read() + ("" if mode(path) == 0o644 else "%%%o" % mode(path))


def arrange(row):
    apply([("-", f"{top}/{entry}", "") for top in ("/var", "/usr/share") for entry in os.listdir(top)] + tokens(SOUND) + tokens(row[1]))
    return {p: state(p) for p in FIXED + [p for _, p, _ in tokens(row[1]) + tokens(row[3])]}


def boot(extra=()):
    r = subprocess.run(list(extra) + PREFIX + [TZLINKS, "ignored"], stderr=subprocess.PIPE, text=True)
    return r.returncode, [line.removeprefix("tzlinks: ") for line in r.stderr.splitlines()]


def check(row):
    expected = arrange(row)
    for op, path, arg in tokens(row[3]):
        expected[path] = expected[path] + "%" + arg if op == "%" else {"-": "-", "/": "/"}.get(op, op + arg)
    want = []
    for text in filter(None, row[2].split(" | ")):
        text = re.sub(r"^[A-Z]+", lambda m: WORDS.get(m[0], m[0]), re.sub(r"^NOTNEWER (\S+) (\S+)", r"NOTNEWER \1 vs. \2", expand(text)))
        text, name = re.fullmatch(r"(.*?)(?:: (E[A-Z]+|0))?", text).groups()
        want.append(text + ": " + os.strerror(getattr(errno, name or "ENOENT", 0)))
    status, said = boot()
    if (said, {p: state(p) for p in expected}, status) != (want, expected, int(row[4] or 0)):
        failures.append(f"{row[0]}: status {status}\n  printed {said}\n  wanted  {want}\n  left {[state(p) for p in expected]}\n  wanted {expected}")


def traced(extra=()):  # a boot under strace (no leak check then): its calls on the device's paths, numbered by name
    seen, calls, result = collections.Counter(), [], boot(["strace", "-qq", "-y", "-o", TRACE, "-E", "ASAN_OPTIONS=detect_leaks=0"] + list(extra))
    for line in open(TRACE):
        seen[name := line.split("(")[0]] += 1
        re.search(r'["<](/var/|/usr/share/)', line) and calls.append((name, seen[name], line.strip()))
    return result[0], result[1], calls


def changed(name, line):  # the path a call changes, if it changes one
    if name in ("write", "ftruncate") or name.startswith("open") and re.search("O_CREAT|O_TRUNC", line) or \
            re.fullmatch("unlink|symlink|rmdir|rename|mkdir|link|truncate", re.sub("at2?$", "", name)):
        return re.search(r"<([^>]*)>", line)[1] if "write" in name else re.findall(r'"([^"]*)"', line)[-1 if "sym" in name else 0]


def healed(row, refs, before, hits):
    status, said = boot()
    after, named = {p: state(p) for p in FIXED}, lambda *paths: any(f'"{p}' in h or f"<{p}" in h for h in hits for p in paths)
    in_use, icutz, record = re.match(">" + V + r"(.*)/zoneinfo$", after[T + "zoneinfo"]), after[T + "icutz"], after[FIXED[4]]
    windows = {T + "localtime": after[T + "localtime"] == f">{T}zoneinfo/America/Los_Angeles" and named(T + "localtime", T + "zoneinfo/"),
               T + "icutz": icutz in ("-", before[T + "icutz"], before["/var/db/icutz"]) and named(T + "icutz", "/var/db/icutz")
               or icutz == "-" and not in_use, FIXED[4]: record in ("-", "=") or in_use and record.endswith("_" + in_use[1])}
    wrong = [p for p in after if after[p] not in (refs[0][p], refs[1][p]) and not windows.get(p)]
    if wrong or status:
        failures.append(f"{row[0]}: not healed at {hits}: {wrong}\n  {after}\n  wanted {refs[1]}\n  said {said}")


def reliability(row, crashes, quick):
    calls, refs, _ = (arrange(row), traced()[2])[1], [], arrange(row)
    for k in range(2):  # two fault-free boots, traced on every path: what they change, and how
        every = traced()[2]
        seq = " ".join(f"{n} {changed(n, l).removeprefix(T)}" for n, _, l in every if changed(n, l))
        k == 0 and row[0] in CHANGES and seq != CHANGES[row[0]] and failures.append(f"{row[0]}: changes in order {seq}")
        for name, _, line in every:
            opened = name == "openat" and line.split('"')[1]
            (changed(name, line) not in FIXED + [None] or opened in OPENS and OPENS[opened] not in line) and failures.append(f"{row[0]}: changes what is not its own, or opens it so: {line}")
        refs.append({p: state(p) for p in FIXED})
    touched, points = list(dict.fromkeys(m[1] for *_, line in calls if (m := re.match(r'\w+\((?:AT_FDCWD<[^>]*>, )?"([^"]*)', line)))), 0
    row[0] == "*sound device" and touched[:len(ORDER)] != ORDER and failures.append(f"start-up order: {touched}")
    for name, nth, line in calls:
        for what in (["signal=KILL"] if changed(name, line) else []) if crashes else ["error=EIO"] + ["error=ENOENT"] * (not quick):
            before, points = arrange(row), points + 1
            status, said, _ = traced(["-e", f"inject={name}:{what}:when={nth}"])
            if status != (-9 if crashes else int(any(re.fullmatch(r"\w+ failed: .*", s) for s in said))):
                failures.append(f"{row[0]}: {what} at {line}: status {status}, said {said}")
            if not crashes or quick:
                healed(row, refs, before, [line])
                continue
            healing = traced()[2]  # a second crash, at each disk change of the healing boot
            for again, at, line2 in [c for c in healing if changed(c[0], c[2])]:
                arrange(row), traced(["-e", f"inject={name}:{what}:when={nth}"]), traced(["-e", f"inject={again}:signal=KILL:when={at}"])
                healed(row, refs, before, [line, line2])
                points += 1
    return points


if __name__ == "__main__":
    mode = {"--faults": "faults", "--crashes": "crashes"}.get(sys.argv.pop(1))
    TZLINKS, PREFIX, TABLES = os.path.abspath(sys.argv[1]), shlex.split(sys.argv[2]), sys.argv[3:]
    if "TZLINKS_DEVICE_ROOT" not in os.environ:  # into a device root of our own first, or exit 77
        os.mkdir((root := tempfile.mkdtemp(prefix="tzlinks-boots-")) + "/var"), os.mkdir(root + "/share")
        code = subprocess.run([os.path.dirname(os.path.abspath(__file__)) + "/../scripts/device-root", root, sys.executable, __file__]
                              + [f"--{mode or 'boots'}"] + sys.argv[1:], env=dict(os.environ, TZLINKS_DEVICE_ROOT=root)).returncode
        sys.exit(shutil.rmtree(root, ignore_errors=True) or code)
    TRACE, _ = os.environ["TZLINKS_DEVICE_ROOT"] + "/trace", os.umask(0o022)
    rows = [(re.split(r"\s*\|\|\s*", line.strip()) + [""] * 3)[:5] for table in TABLES for line in open(table) if line[0] not in "#\n"]
    for row in rows:
        check(row) if not mode else row[0].startswith("*") and print(f"[reliability] {row[0][1:]}: {reliability(row, mode == 'crashes', 'TZLINKS_RELIABILITY_QUICK' in os.environ)} {mode}")
    print("".join(f"FAIL {f}\n" for f in failures) + f"{len(rows)} rows, {len(failures)} failures")
    sys.exit(1 if failures else 0)
