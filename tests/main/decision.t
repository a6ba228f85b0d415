*heals: a first boot after an update is installed || latest:9d || || use:9d rec:9c.1.0_9d
*heals: a later boot with that update in use || use:9d latest:9d || NOTNEWER:9d vs. 9d
*heals: an update left for the next || use:9d latest:9f rec:9c.1.0_9d || || use:9f marker rec:9d_9f
*heals: an older update left || use:9b latest:9d || INCOMPAT || use:9d marker rec:9c.1.0_9d
as new as the system: kept, then left || update:9c.1.0 use:9c.1.0 latest:9d /var/db/icutz>/none
    || || use:9d marker rec:9c.1.0_9d -/var/db/icutz
older than the system, then a latest of no format || use:9b latest:9g
    || INCOMPAT | NOSCHEMA:9g | NOTNEWER:9g vs. 9b || system marker
the latest against the current || use:9a latest:9b || INCOMPAT || use:9b marker rec:9c.1.0_9b
the current's ICU format checked || use:9e latest:9f || INCOMPAT || use:9f marker rec:9c.1.0_9f
one marker || use:9b latest:9d needs_cleanup/x/ || INCOMPAT | NOTOUCH:EISDIR || use:9d rec:9c.1.0_9d
marker after the reset || use:9b -icutz icutz/x/ needs_cleanup/x/ || INCOMPAT | ICUDIR
    | NOTOUCH:EISDIR || zoneinfo>/usr/share/zoneinfo.default
ICU link a folder: no activation, each reset tries both || latest:9d icutz/x/ /var/db/icutz>/none
    || ICUDIR | create_symlink: from /var/db/timezone/icutz to /var/db/timezone/tz/9d/icutz: EEXIST
    | LOCATE | ICUDIR
a record that cannot be written || latest:9d TZVersionDiffRecord/ || || use:9d
