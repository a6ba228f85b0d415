# The local-time link
*heals: a link into the public path, rewritten || localtime>/usr/share/zoneinfo/UTC
    || CORRECTING /var/db/timezone/zoneinfo/UTC: ENOENT || localtime>/var/db/timezone/zoneinfo/UTC
the public path, no such zone || localtime>/usr/share/zoneinfo/Mars
    || CORRECTING /var/db/timezone/zoneinfo/Mars: ENOENT | LOCALTIME: ENOENT || default
default cannot be made || -localtime localtime/keep=
    || read_symlink: /var/db/timezone/localtime: EINVAL | LOCALTIME: EINVAL
    | create_symlink: from /var/db/timezone/localtime to
    /var/db/timezone/zoneinfo/America/Los_Angeles: EEXIST | correct_localtime_link failed: EEXIST ||
    || 1
# A link is read up to 1,024 bytes: the '/' of this zoneinfo link stands at the 1,025th
pins the 1,024-byte bound || deep
# The legacy ICU link
*heals: migrated, target unchanged || /var/db/icutz>timezone/tz ||
    || icutz>timezone/tz -/var/db/icutz
removed, present one kept || /var/db/icutz>/var/db icutz>/usr || || -/var/db/icutz
a folder || /var/db/icutz/ || read_symlink: /var/db/icutz: EINVAL
    | Could not migrate /var/db/icutz to /var/db/timezone/icutz: EINVAL
    | remove: could not remove /var/db/icutz: EISDIR | Could not remove /var/db/icutz: EISDIR
