# The local-time repair and the legacy ICU link migration
localtime missing || -localtime || LOCALTIME || localtime>$zoneinfo/America/Los_Angeles
localtime a plain file || localtime=x || read_symlink: $localtime: EINVAL | LOCALTIME: EINVAL || localtime>$zoneinfo/America/Los_Angeles
localtime an empty folder || localtime/ || read_symlink: $localtime: EINVAL | LOCALTIME: EINVAL || localtime>$zoneinfo/America/Los_Angeles
localtime through zoneinfo, zone missing || localtime>$zoneinfo/No/Zone || ||
localtime on the prefix without a slash || localtime>$zoneinfoX || ||
*localtime in the public path, zone present || localtime>/usr/share/zoneinfo/UTC || Correcting localtime link to $zoneinfo/UTC || localtime>$zoneinfo/UTC
localtime the public path itself || localtime>/usr/share/zoneinfo || Correcting localtime link to $zoneinfo || localtime>$zoneinfo
localtime in the public path, zone missing || localtime>/usr/share/zoneinfo/Mars || Correcting localtime link to $zoneinfo/Mars | LOCALTIME || localtime>$zoneinfo/America/Los_Angeles
localtime relative, though it resolves || localtime>zoneinfo/UTC || LOCALTIME || localtime>$zoneinfo/America/Los_Angeles
localtime target longer than 1024 bytes is read cut || localtime>/usr/share/zoneinfo/{ax1100} || Correcting localtime link to $zoneinfo/{ax1004} | LOCALTIME: ENAMETOOLONG || localtime>$zoneinfo/America/Los_Angeles
localtime default cannot be made || -localtime localtime/keep= || read_symlink: $localtime: EINVAL | LOCALTIME: EINVAL | create_symlink: from $localtime to $zoneinfo/America/Los_Angeles: EEXIST | correct_localtime_link failed: EEXIST || || 1
*legacy ICU link migrated, relative target unchanged || /var/db/icutz>timezone/tz || || icutz>timezone/tz -/var/db/icutz
legacy ICU link removed, present one kept || /var/db/icutz>/var/db icutz>/usr || || -/var/db/icutz
legacy ICU entry a plain file || /var/db/icutz=x || read_symlink: /var/db/icutz: EINVAL | Could not migrate /var/db/icutz to $icutz: EINVAL || -/var/db/icutz
legacy ICU entry a folder || /var/db/icutz/ || read_symlink: /var/db/icutz: EINVAL | Could not migrate /var/db/icutz to $icutz: EINVAL | remove: could not remove /var/db/icutz: EISDIR | Could not remove /var/db/icutz: EISDIR ||
present ICU link dangling || /var/db/icutz>/var/db icutz>/no || create_symlink: from $icutz to /var/db: EEXIST | Could not migrate /var/db/icutz to $icutz: EEXIST || -/var/db/icutz
legacy ICU link dangling || /var/db/icutz>/none || ||
