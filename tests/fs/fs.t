# The local-time link
missing || -localtime || LOCALTIME || default
a plain file || localtime=x || read_symlink: $localtime: EINVAL | LOCALTIME || default
an empty folder || localtime/ || read_symlink: $localtime: EINVAL | LOCALTIME || default
through zoneinfo, zone missing || localtime>$zoneinfo/No/Zone || ||
on the prefix without a slash || localtime>$zoneinfoX || ||
*public path || localtime>~zoneinfo/UTC || CORRECTING $zoneinfo/UTC || localtime>$zoneinfo/UTC
the public path itself || localtime>~zoneinfo || CORRECTING $zoneinfo || localtime>$zoneinfo
public, no zone || localtime>~zoneinfo/Mars || CORRECTING $zoneinfo/Mars | LOCALTIME || default
relative, though it resolves || localtime>zoneinfo/UTC || LOCALTIME || default
1024 bytes || localtime>~zoneinfo/{a/x550} || CORRECTING $zoneinfo/{a/x502} | LOCALTIME || default
default cannot be made || -localtime localtime/keep= || read_symlink: $localtime: EINVAL | LOCALTIME
    | create_symlink: from $localtime to $zoneinfo/America/Los_Angeles: EEXIST
    | correct_localtime_link failed || || 1
# The legacy ICU link
*migrated, target unchanged || /var/db/icutz>timezone/tz || || icutz>timezone/tz -/var/db/icutz
removed, present one kept || /var/db/icutz>/var/db icutz>/usr || || -/var/db/icutz
a plain file || /var/db/icutz=x || read_symlink: /var/db/icutz: EINVAL
    | Could not migrate /var/db/icutz to $icutz || -/var/db/icutz
a folder || /var/db/icutz/ || read_symlink: /var/db/icutz: EINVAL
    | Could not migrate /var/db/icutz to $icutz | remove: could not remove /var/db/icutz: EISDIR
    | Could not remove /var/db/icutz ||
present one dangling || /var/db/icutz>/var/db icutz>/no
    || create_symlink: from $icutz to /var/db: EEXIST | Could not migrate /var/db/icutz to $icutz
    || -/var/db/icutz
dangling || /var/db/icutz>/none || ||
