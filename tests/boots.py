#!/usr/bin/env python3
"""Boots the built tzlinks against device states read from tables and checks, exactly, what
it prints, its exit status and the links and files it leaves. With --faults or --crashes,
every row is also a scenario for a fault at each file-system call, or a crash at each
disk change (and again in the healing boot), after which one clean boot must heal.

A row: name || device changes || messages, "|" between them || changes the boot makes
[|| exit status]. Changes are tokens on a sound device: PATH>TARGET a link, PATH=TEXT a
file (mode 644 unless PATH%MODE follows), PATH/ a folder, -PATH nothing; macros use:V,
latest:V, rec:TEXT, marker, update:V[,FORMAT]. A relative PATH is under $ (/var/db/timezone/),
@ is $tz/. A message may end in an errno name (or 0 for none), ENOENT when it does not.""" 
import collections, errno, os, re, shlex, shutil, subprocess, sys, tempfile

T, V = "/var/db/timezone/", "/var/db/timezone/tz/"
FIXED = "zoneinfo icutz localtime needs_cleanup TZVersionDiffRecord /var/db/icutz /var/db/icu".split()
MACROS = {"use": lambda v: f"zoneinfo>@{v}/zoneinfo icutz>@{v}/icutz" if v else
          "zoneinfo>/usr/share/zoneinfo.default -icutz", "latest": lambda v: f"tz_latest>@{v}",
          "rec": lambda v: f"TZVersionDiffRecord={v}", "marker": lambda v: "needs_cleanup=",
          "update": lambda v: (lambda d, f="44l": f"@{d}/zoneinfo/+VERSION={d.split('.')[0]} "
                               f"@{d}/zoneinfo/UTC=TZif @{d}/icutz/icutz{f}.dat=")(*v.split(","))}
SOUND = ("/usr/share/zoneinfo.default/+VERSION=2016c /usr/share/zoneinfo.default/UTC=TZif "
         "/usr/share/icu/icutzformat.txt=44l use: localtime>$zoneinfo/UTC update:2016a.1.0 "
         "update:2016b.1.0 update:2016d.1.0 update:2016e.1.0,46l update:2016f.1.0")
WORDS = {"INCOMPAT": "Symlink points at data incompatible with installed system",
         "INVALID": "Invalid current symlinks; resetting to system partition",
         "LOCATE": "Unable to locate data; resetting to system partition",
         "LOCALTIME": "localtime link invalid; resetting to America/Los_Angeles",
         "NOTNEWER": "New update not compatible or older version:", "UNPARSED": "Cannot parse version string"}
DISK = {"unlink", "unlinkat", "symlink", "symlinkat", "rmdir", "write", "rename", "renameat",
        "renameat2", "mkdir", "mkdirat", "truncate", "ftruncate", "link", "linkat"}
# The opens that may change the disk, and the directories opened to protect them.
OPENS = {T + "needs_cleanup": "O_RDWR|O_CREAT, 0666", T + "TZVersionDiffRecord": "O_WRONLY|O_CREAT|O_TRUNC, 0666",
         T: "O_RDONLY|O_CLOEXEC)", V: "O_RDONLY|O_CLOEXEC)"}
# Order in which a boot of the sound device first touches its paths: the start-up steps.
ORDER = [T, V, "/var/db/icutz", T + "needs_cleanup", "/var/db/icu", "/usr/share/zoneinfo.default/+VERSION",
         "/usr/share/icu/icutzformat.txt", T + "tz_latest", T + "zoneinfo", T + "localtime"]
failures = 0


def fail(what):
    global failures
    failures += 1
    print("FAIL " + what)


def expand(text):
    text = re.sub(r"\{(.)x(\d+)\}", lambda m: m[1] * int(m[2]), text)
    return text.replace("@", V).replace("$", T)


def tokens(text):
    out = []
    for tok in shlex.split(expand(text)):
        name, _, value = tok.partition(":")
        if name == "twoicu":
            out.append(("2", V + value + "/icutz", ""))
            continue
        if name in MACROS:
            out += tokens(MACROS[name](value))
            continue
        m = re.fullmatch(r"(-?)([^=>%]*?)(/?)(?:([=>%])(.*))?", tok, re.S)
        path = m[2] if m[2].startswith("/") else T + m[2]
        out.append((m[1] or m[4] or m[3], path, (m[5] or "").encode().decode("unicode_escape")))
    return out


def apply(changes):
    for op, path, arg in changes:
        if op == "%":
            os.chmod(path, int(arg, 8))
            continue
        if op == "2":  # two matching ICU files, the folder listing the one of format 44l first
            for pair in (["icutz44l.dat", f"icutz{k}l.dat"][::step] for k in range(45, 99) for step in (1, -1)):
                apply([("=", f"{path}/{name}", "") for name in pair])
                if [n for n in os.listdir(path) if n in pair][0] == "icutz44l.dat":
                    break
                apply([("-", f"{path}/{name}", "") for name in pair])
            continue
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif os.path.lexists(path):
            os.unlink(path)
        if op != "-":
            os.makedirs(path if op == "/" else os.path.dirname(path), exist_ok=True)
        if op == ">":
            os.symlink(arg, path)
        elif op == "=":
            with open(path, "w") as f:
                f.write(arg)
            os.chmod(path, 0o644)


def state(path):
    if os.path.islink(path):
        return ">" + os.readlink(path)
    if os.path.isdir(path):
        return "/"
    if not os.path.exists(path):
        return "-"
    mode = os.stat(path).st_mode & 0o7777
    return "=" + open(path).read() + ("" if mode == 0o644 else "%%%o" % mode)


def arrange(row):
    for top in ("/var", "/usr/share"):
        for entry in os.listdir(top):
            apply([("-", os.path.join(top, entry), "")])
    apply(tokens(SOUND) + tokens(row[1]))
    paths = [p if p.startswith("/") else T + p for p in FIXED]
    return {p: state(p) for p in paths + [p for _, p, _ in tokens(row[1]) + tokens(row[3])]}


def boot(extra=()):
    r = subprocess.run(list(extra) + PREFIX + [TZLINKS, "ignored argument"], stderr=subprocess.PIPE, text=True)
    return r.returncode, [line.removeprefix("tzlinks: ") for line in r.stderr.splitlines()]


def message(text):
    text = re.sub(r"^[A-Z]+", lambda m: WORDS.get(m[0], m[0]), expand(text))
    text = re.sub(r"^(New update.*?:) (\S+) (\S+)", r"\1 \2 vs. \3", text)
    name = re.search(r": (E[A-Z]+|0)$", text)
    return (text[:name.start()] if name else text) + ": " + os.strerror(getattr(errno, name[1], 0) if name else 2)


def check(row):
    expected = arrange(row)
    for op, path, arg in tokens(row[3]):
        expected[path] = expected[path] + "%" + arg if op == "%" else {"-": "-", "/": "/"}.get(op, op + arg)
    status, said = boot()
    want = [message(m.strip()) for m in row[2].split(" | ") if m.strip()]
    after = {p: state(p) for p in expected}
    wrong = {p: (expected[p], after[p]) for p in expected if after[p] != expected[p]}
    if said != want or wrong or status != int(row[4] or 0):
        fail(f"{row[0]}: status {status}\n  printed {said}\n  wanted  {want}\n  (wanted, got): {wrong}")


def traced(extra=()):
    status, said = boot(["strace", "-qq", "-y", "-o", TRACE] + list(extra))
    seen, calls = collections.Counter(), []
    for line in open(TRACE):
        name = line.split("(")[0]
        seen[name] += 1
        if re.search(r'["<](/var/|/usr/share/)', line):
            calls.append((name, seen[name], line))
    return status, said, calls


def changed(call):
    name, _, line = call
    if name in ("write", "ftruncate"):
        return re.search(r"<([^>]*)>", line)[1]
    quoted = re.findall(r'"([^"]*)"', line)
    if name in DISK or name.startswith("open") and re.search("O_CREAT|O_TRUNC", line):
        return quoted[-1] if name.startswith("symlink") else quoted[0]


def names(line, path):
    return f'"{path}"' in line or f"<{path}>" in line


def healed(row, refs, before, hits):
    status, said = boot()
    after, ok = arrange_free_snapshot(), status == 0
    for path, value in after.items():
        if value in (refs[0][path], refs[1][path]):
            continue
        short = path.removeprefix(T)
        hit = lambda test: any(test(calls[i][2]) for calls, i in hits if i < len(calls))
        ok &= (short == "localtime" and value == ">" + T + "zoneinfo/America/Los_Angeles" and
               hit(lambda l: names(l, path) or '"' + T + "zoneinfo/" in l)) or \
              (short == "icutz" and value in ("-", before[path], before["/var/db/icutz"]) and
               hit(lambda l: names(l, path) or names(l, "/var/db/icutz"))) or \
              (short == "TZVersionDiffRecord" and value in ("-", "=") and
               any(names(c[2], path) or re.match(r'symlink\("' + V + r'.*"' + T + 'zoneinfo"', c[2])
                   for calls, i in hits for c in calls[:i + 1]))
    if not ok:
        fail(f"{row[0]}: not healed after {[c[i][2].strip() for c, i in hits if i < len(c)]}:\n"
             f"  {after}\n  wanted {refs[1]}\n  said {said}")
    return ok


def arrange_free_snapshot():
    return {p: state(p) for p in (p if p.startswith("/") else T + p for p in FIXED)}


def reliability(row, crashes, quick):
    arrange(row)
    _, _, calls = traced()
    refs = []
    for _ in range(2):  # two fault-free boots, traced on every path: what they change
        status, said, every = traced()
        refs.append(arrange_free_snapshot())
        for name, _, line in every:
            path, opened = changed((name, 0, line)), name == "openat" and line.split('"')[1]
            if path and path.removeprefix(T) not in FIXED or opened in OPENS and OPENS[opened] not in line:
                fail(f"{row[0]}: changes what is not its own, or opens it so: {line.strip()}")
    if row is ROWS[0]:
        touched = [m[1] for _, _, line in calls if (m := re.match(r'\w+\((?:AT_FDCWD<[^>]*>, )?"([^"]*)', line))]
        if list(dict.fromkeys(touched))[:len(ORDER)] != ORDER:
            fail(f"start-up order: {list(dict.fromkeys(touched))}")
    points = escapes = 0
    for i, (name, nth, line) in enumerate(calls):
        if crashes and not changed(calls[i]):
            continue
        for what in ["signal=KILL"] if crashes else ["error=EIO"] + ([] if quick else ["error=ENOENT"]):
            before = arrange(row)
            status, said, again = traced(["-e", f"inject={name}:{what}:when={nth}"])
            points += 1
            escaped = any(re.fullmatch(r"\w+ failed", s.rsplit(": ", 1)[0]) for s in said)
            if status != (-9 if crashes else int(escaped)):
                fail(f"{row[0]}: {what} at {line.strip()}: status {status}, said {said}")
            if not crashes or quick:
                healed(row, refs, before, [(calls, i)])
                continue
            _, _, healing = traced()  # a second crash, at each disk change of the healing boot
            for j in [j for j, c in enumerate(healing) if changed(c)]:
                arrange(row)
                traced(["-e", f"inject={name}:{what}:when={nth}"])
                traced(["-e", f"inject={healing[j][0]}:signal=KILL:when={healing[j][1]}"])
                healed(row, refs, before, [(calls, i), (healing, j)])
                points += 1
    return points


def main():
    global TZLINKS, PREFIX, TRACE, ROWS
    args = sys.argv[1:]
    mode = args.pop(0) if args[0] in ("--faults", "--crashes") else None
    TZLINKS, PREFIX = os.path.abspath(args.pop(0)), shlex.split(args.pop(0))
    if os.environ.get("TZLINKS_DEVICE_ROOT") is None:  # enter a private device root first
        root = tempfile.mkdtemp(prefix="tzlinks-boots-")
        for sub in ("var", "share"):
            os.mkdir(os.path.join(root, sub))
        env = dict(os.environ, TZLINKS_DEVICE_ROOT=root)
        device_root = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../scripts/device-root")
        code = subprocess.run([device_root, root, sys.executable] + sys.argv, env=env).returncode
        shutil.rmtree(root, ignore_errors=True)
        sys.exit(code)
    os.umask(0o022)
    TRACE = os.environ["TZLINKS_DEVICE_ROOT"] + "/trace"
    ROWS = [(re.split(r"\s*\|\|\s*", line.strip()) + ["", "", ""])[:5] for table in args
            for line in open(table) if line.strip() and not line.startswith("#")]
    for row in ROWS:
        if mode:
            n = reliability(row, mode == "--crashes", "TZLINKS_RELIABILITY_QUICK" in os.environ)
            print(f"[reliability] {row[0]}: {n} {mode[2:]}")
        else:
            check(row)
    print(f"{len(ROWS) - failures if not mode else len(ROWS)} rows, {failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
