# The start-up sequence: its shapes of run, link resolution and exit status
*heals: a first boot, no links || -zoneinfo -localtime || Bad zoneinfo link : ENOENT
    | INVALID: ENOENT | LOCALTIME: ENOENT || system default
a stale marker goes || marker || || -needs_cleanup
an empty update name || zoneinfo>/var/db/timezone/tz//zoneinfo
    || Bad zoneinfo link /var/db/timezone/tz//zoneinfo: ENOENT | INVALID: ENOENT || system
a one-letter update || zoneinfo>/var/db/timezone/tz/x/ || PARSE x, results.size() = 0: ENOENT
    | PARSE x: ENOENT | NOSCHEMA /var/db/timezone/tz/x: 0 | INCOMPAT: 0 || system marker
tz_latest is tz/ || tz_latest>/var/db/timezone/tz/
    || vell_dataset::create_components: bad path /var/db/timezone/tz/: ENOENT | LOCATE: ENOENT
tz_latest beside tz/ || tz_latest>/var/db/timezone/tzdata/9d
    || vell_dataset::create_components: bad path /var/db/timezone/tzdata/9d: ENOENT | LOCATE: ENOENT
zoneinfo a folder: no reset can succeed
    || icutz>/var/db/timezone/tz/9d/icutz -zoneinfo zoneinfo/UTC=
    || read_symlink: /var/db/timezone/zoneinfo: EINVAL | INVALID: EINVAL
    | remove: could not remove /var/db/timezone/zoneinfo: EISDIR
    | Unlink of zoneinfo softlink failed: EISDIR
    | create_symlink: from /var/db/timezone/zoneinfo to /usr/share/zoneinfo.default: EEXIST
    | LOCATE: EEXIST | remove: could not remove /var/db/timezone/zoneinfo: EISDIR
    | Unlink of zoneinfo softlink failed: EISDIR
    | create_symlink: from /var/db/timezone/zoneinfo to /usr/share/zoneinfo.default: EEXIST
    | reset_to_system_partition failed: EEXIST || || 1
system version too large: no fallback, localtime still made
    || use:9d release:99999999999a -localtime || LOCATE: ENOENT
    | reset_to_system_partition failed: ENOENT | LOCALTIME: ENOENT || default || 1
legacy /var/db/icu folder goes when empty || /var/db/icu/ || || -/var/db/icu
