# The update decision on the sound device: the system 9c.1.0 and updates 9a, 9b, 9d and 9f in ICU
# format 44l, 9e in 46l; 9g names none
*heals: a first boot after an update is installed || latest:9d || || use:9d rec:9c.1.0_9d
*heals: a later boot with that update in use || use:9d latest:9d || NOTNEWER 9d vs. 9d: ENOENT
*heals: an update left for a newer one || use:9d latest:9f || || use:9f marker rec:9d_9f
*heals: an old update left for a newer one || use:9b latest:9d || INCOMPAT: ENOENT
    || use:9d marker rec:9c.1.0_9d
older than the system, and the latest || use:9b latest:9b || INCOMPAT: ENOENT
    | NOTNEWER 9b vs. 9b: ENOENT || system marker
the latest against the current, not the system || use:9a latest:9b || INCOMPAT: ENOENT
    || use:9b marker rec:9c.1.0_9b
the latest's format against the system's || use:9e latest:9f || INCOMPAT: ENOENT
    || use:9f marker rec:9c.1.0_9f
marker made once || use:9b latest:9d needs_cleanup/x/ || INCOMPAT: ENOENT
    | Cannot touch file /var/db/timezone/needs_cleanup: EISDIR || use:9d rec:9c.1.0_9d
marker after the reset || use:9b -icutz icutz/x/ needs_cleanup/x/ || INCOMPAT: ENOENT
    | remove: could not remove /var/db/timezone/icutz: EISDIR
    | unlink of ICU softlink failed: EISDIR
    | Cannot touch file /var/db/timezone/needs_cleanup: EISDIR
    || zoneinfo>/usr/share/zoneinfo.default
legacy ICU link removed by an activation || latest:9d /var/db/icutz>/none ||
    || use:9d rec:9c.1.0_9d -/var/db/icutz
ICU link a folder: each reset tries both || latest:9d icutz/x/ /var/db/icutz>/none
    || remove: could not remove /var/db/timezone/icutz: EISDIR
    | unlink of ICU softlink failed: EISDIR
    | create_symlink: from /var/db/timezone/icutz to /var/db/timezone/tz/9d/icutz: EEXIST
    | LOCATE: EEXIST | remove: could not remove /var/db/timezone/icutz: EISDIR
    | unlink of ICU softlink failed: EISDIR
