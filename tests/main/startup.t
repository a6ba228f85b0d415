*heals: a first boot || -zoneinfo -localtime || BAD: | INVALID | LOCALTIME || system default
no links, an update: one boot || -zoneinfo latest:9d || BAD: | INVALID || use:9d rec:9c.1.0_9d
stale entries go || marker /var/db/icu/ || || -needs_cleanup -/var/db/icu
/var/db/icu goes first, an ICU folder through it || /var/db/icu>timezone/tz/9d/icutz latest:9g
    tz/9g/icutz>/var/db/icu || NOSCHEMA:9g | NOTNEWER:9g vs. 9c.1.0 || -/var/db/icu
/var/db/icu stays when a full folder || /var/db/icu/x= ||
no tz/: none made || -tz ||
no /var/db/timezone: no folder made, no link || -/var/db/timezone || BAD: | INVALID
    | ZONELINK:ENOENT | LOCATE | ZONELINK:ENOENT | reset_to_system_partition failed | LOCALTIME
    | create_symlink: from /var/db/timezone/localtime to
    /var/db/timezone/zoneinfo/America/Los_Angeles | correct_localtime_link failed || || 1
an empty update name || zoneinfo>/var/db/timezone/tz//zoneinfo
    || BAD:/var/db/timezone/tz//zoneinfo | INVALID || system
any last name, even none, after one letter || zoneinfo>/var/db/timezone/tz/x/
    || UNPARSED:x | NOSCHEMA:x | INCOMPAT || system marker
deeper than one folder || zoneinfo>/var/db/timezone/tz/9d/x/zoneinfo
    || UNPARSED:9d/x | NOSCHEMA:9d/x | INCOMPAT || system marker
the system's folder with a slash || zoneinfo>/usr/share/zoneinfo.default/
    || BAD:/usr/share/zoneinfo.default/ | INVALID || system
tz_latest is tz/ || tz_latest>/var/db/timezone/tz/ || BADPATH:/var/db/timezone/tz/ | LOCATE
tz_latest relative: not resolved || tz_latest>tz/9d || BADPATH:tz/9d | LOCATE
tz_latest beside tz/: the update in use left || use:9d tz_latest>/var/db/timezone/tzdata/9d
    || BADPATH:/var/db/timezone/tzdata/9d | LOCATE || system
tz_latest a FIFO: no link read after it || zoneinfo>/var/db/timezone/tz/9d tz_latest|
    || read_symlink: /var/db/timezone/tz_latest: EINVAL | LOCATE || system
zoneinfo a folder: no reset can succeed || icutz>/var/db/timezone/tz/9d/icutz -zoneinfo zoneinfo/x=
    || read_symlink: /var/db/timezone/zoneinfo: EINVAL | INVALID | ZONEDIR | LOCATE | ZONEDIR
    | reset_to_system_partition failed || || 1
system version too large: no fallback, localtime still made || use:9d release:99999999999a
    -localtime || LOCATE | reset_to_system_partition failed | LOCALTIME || default || 1
