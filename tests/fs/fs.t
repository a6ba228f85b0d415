*heals: legacy ICU link migrated || /var/db/icutz>timezone/tz || || icutz>timezone/tz -/var/db/icutz
removed, the present one kept || /var/db/icutz>/var/db icutz>/usr || || -/var/db/icutz
a dangling one left alone || /var/db/icutz>/none ||
a dangling present one: migration fails || /var/db/icutz>/var/db icutz>/none
    || create_symlink: from /var/db/timezone/icutz to /var/db: EEXIST | MIGRATE || -/var/db/icutz
a folder, reported before the decision || /var/db/icutz/ use:9d latest:9d -icutz
    || read_symlink: /var/db/icutz | MIGRATE | remove: could not remove /var/db/icutz: EISDIR
    | Could not remove /var/db/icutz | NOTNEWER:9d vs. 9d
*heals: the public path, after the first boot's reset || -zoneinfo localtime>/usr/share/zoneinfo/UTC
    || BAD: | INVALID | CORRECTING:/UTC || system localtime>/var/db/timezone/zoneinfo/UTC
the system's folder is not the public one || localtime>/usr/share/zoneinfo.default/UTC
    || CORRECTING:.default/UTC | LOCALTIME || default
kept, whatever follows || localtime>/var/db/timezone/zoneinfoX/Mars ||
a relative link || localtime>zoneinfo/UTC || LOCALTIME || default
an empty folder || localtime/ || read_symlink: /var/db/timezone/localtime | LOCALTIME || default
full one || -localtime localtime/x= || read_symlink: /var/db/timezone/localtime | LOCALTIME: EINVAL
    | create_symlink: from /var/db/timezone/localtime to
    /var/db/timezone/zoneinfo/America/Los_Angeles | correct_localtime_link failed || || 1
# A link is read up to 1,024 bytes: this target's 1,024th byte is the '/' its data set ends at
a 1,024-byte read || format: zoneinfo>/var/db/timezone/tz/9d{1002}//zoneinfo || NOSCHEMA:9d{1002}
