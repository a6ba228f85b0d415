# The start-up sequence: its shapes of run and their order, link resolution, exit status
*links never made || -zoneinfo -localtime || Bad zoneinfo link : ENOENT | INVALID | LOCALTIME || system localtime>$zoneinfo/America/Los_Angeles
zoneinfo link missing, newer update activated || -zoneinfo latest:2016d.1.0 || Bad zoneinfo link : ENOENT | INVALID || use:2016d.1.0 rec:2016c.1.0_2016d.1.0
zoneinfo names an update directory itself || zoneinfo>@2016d.1.0 || Bad zoneinfo link @2016d.1.0 | INVALID || system
zoneinfo names an update with a trailing slash || zoneinfo>@2016d.1.0/ || ||
zoneinfo names a file deeper in an update || zoneinfo>@2016d.1.0/zoneinfo/UTC || UNPARSED 2016d.1.0/zoneinfo, results.size() = 0 | UNPARSED 2016d.1.0/zoneinfo | No ICU schema found for @2016d.1.0/zoneinfo: 0 | INCOMPAT: 0 || system marker
zoneinfo names a one-letter update || zoneinfo>@x/ || UNPARSED x, results.size() = 0 | UNPARSED x | No ICU schema found for @x: 0 | INCOMPAT: 0 || system marker
zoneinfo has an empty directory name || zoneinfo>@/zoneinfo || Bad zoneinfo link @/zoneinfo | INVALID || system
zoneinfo names the system data with a slash || zoneinfo>/usr/share/zoneinfo.default/ || Bad zoneinfo link /usr/share/zoneinfo.default/ | INVALID || system
zoneinfo is a plain file || zoneinfo=x || read_symlink: $zoneinfo: EINVAL | INVALID: EINVAL || system
*tz_latest is read before the zoneinfo link || -zoneinfo tz_latest=x || read_symlink: $tz_latest: EINVAL | LOCATE: EINVAL || system
tz_latest outside the tz folder || tz_latest>2016d.1.0 || vell_dataset::create_components: bad path 2016d.1.0 | LOCATE ||
tz_latest names the tz folder || tz_latest>$tz/ || vell_dataset::create_components: bad path $tz/ | LOCATE ||
tz_latest names the system data || tz_latest>/usr/share/zoneinfo.default || vell_dataset::create_components: bad path /usr/share/zoneinfo.default | LOCATE ||
tz_latest with a trailing slash does not parse || latest:2016d.1.0/ || UNPARSED 2016d.1.0/, results.size() = 0 | UNPARSED 2016d.1.0/ | NOTNEWER 2016d.1.0/ vs. 2016c.1.0 ||
current version too large to convert || zoneinfo>@2016a.2147483648/zoneinfo || LOCATE || system
latest version too large: the current update is left || use:2016d.1.0 latest:2016f.4294967296 || LOCATE || system
zoneinfo is a folder: no reset can succeed || icutz>@2016d.1.0/icutz -zoneinfo zoneinfo/UTC= || read_symlink: $zoneinfo: EINVAL | INVALID: EINVAL | remove: could not remove $zoneinfo: EISDIR | Unlink of zoneinfo softlink failed: EISDIR | create_symlink: from $zoneinfo to /usr/share/zoneinfo.default: EEXIST | LOCATE: EEXIST | remove: could not remove $zoneinfo: EISDIR | Unlink of zoneinfo softlink failed: EISDIR | create_symlink: from $zoneinfo to /usr/share/zoneinfo.default: EEXIST | reset_to_system_partition failed: EEXIST || || 1
system version too large: no fallback, localtime still repaired || use:2016d.1.0 /usr/share/zoneinfo.default/+VERSION=99999999999a -localtime || LOCATE | reset_to_system_partition failed | LOCALTIME || localtime>$zoneinfo/America/Los_Angeles || 1
*the preparation speaks before the decision || /var/db/icutz=x -zoneinfo || read_symlink: /var/db/icutz: EINVAL | Could not migrate /var/db/icutz to $icutz: EINVAL | Bad zoneinfo link : ENOENT | INVALID || -/var/db/icutz system
no tz folder: nothing to protect there, nothing said || -tz || ||
the legacy /var/db/icu folder goes when empty || /var/db/icu/ || || -/var/db/icu
the legacy /var/db/icu link goes, not what it names || /var/db/icu>/usr/share/icu || || -/var/db/icu /usr/share/icu/icutzformat.txt=44l
