# The start-up sequence: its shapes of run and their order, link resolution, exit status
*links never made || -zoneinfo -localtime || Bad zoneinfo link : ENOENT | INVALID | LOCALTIME
    || system default
no zoneinfo || -zoneinfo latest:9d || Bad zoneinfo link : ENOENT | INVALID || use:9d rec:9c.1.0_9d
zoneinfo names an update folder itself || zoneinfo>@9d || Bad zoneinfo link @9d | INVALID || system
zoneinfo names a file deeper in an update || zoneinfo>@9d/zoneinfo/UTC || UNPARSED 9d/zoneinfo
    | NOSCHEMA @9d/zoneinfo: 0 | INCOMPAT || system marker
one-letter update || zoneinfo>@x/ || UNPARSED x | NOSCHEMA @x: 0 | INCOMPAT || system marker
empty update name || zoneinfo>@/zoneinfo || Bad zoneinfo link @/zoneinfo | INVALID || system
zoneinfo names the system data with a slash || zoneinfo>~zoneinfo.default/
    || Bad zoneinfo link ~zoneinfo.default/ | INVALID || system
zoneinfo a plain file || zoneinfo=x || read_symlink: $zoneinfo: EINVAL | INVALID || system
*tz_latest first || -zoneinfo tz_latest=x || read_symlink: $tz_latest: EINVAL | LOCATE || system
tz_latest outside tz/ || tz_latest>9d || vell_dataset::create_components: bad path 9d | LOCATE ||
tz_latest is tz/ || tz_latest>$tz/ || vell_dataset::create_components: bad path $tz/ | LOCATE ||
tz_latest with a trailing slash || latest:9d/ || UNPARSED 9d/ | NOTNEWER 9d/ vs. 9c.1.0 ||
current version too large to convert || zoneinfo>@9a.2147483648/zoneinfo || LOCATE || system
latest too large: the update in use is left || use:9d latest:9f.4294967296 || LOCATE || system
zoneinfo a folder: no reset can succeed || icutz>@9d/icutz -zoneinfo zoneinfo/UTC=
    || read_symlink: $zoneinfo: EINVAL | INVALID | NOZONEINFO | LOCATE | NOZONEINFO
    | reset_to_system_partition failed || || 1
system version too large: no fallback, localtime still made || use:9d release:99999999999a
    -localtime || LOCATE | reset_to_system_partition failed | LOCALTIME || default || 1
*the preparation speaks before the decision || /var/db/icutz=x -zoneinfo
    || read_symlink: /var/db/icutz: EINVAL | Could not migrate /var/db/icutz to $icutz
    | Bad zoneinfo link : ENOENT | INVALID || -/var/db/icutz system
no tz folder: nothing to protect there, nothing said || -tz || ||
legacy /var/db/icu folder goes when empty || /var/db/icu/ || || -/var/db/icu
legacy /var/db/icu link goes, not its target || /var/db/icu>~icu || || -/var/db/icu format:44l
