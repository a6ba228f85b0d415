# What a fault or crash cannot heal: PATH, STATES the boot after may leave, FAULTS (docs/HACKING.md)
localtime >/var/db/timezone/zoneinfo/America/Los_Angeles "/var/db/timezone/(localtime|zoneinfo/)
icutz -|{before} KILL (unlink|symlink)\(.*"/var/db/(timezone/)?icutz"
icutz - error.*(/var/db/(icutz|timezone/(icutz|tz_latest|zoneinfo))"|/usr/share/(icu|zoneinfo\.d))
TZVersionDiffRecord -|{before} KILL.*(icutz"|needs_cleanup|TZVersionDiffRecord)|openat.*DiffRecord
TZVersionDiffRecord =%666 write\(.*TZVersionDiffRecord
TZVersionDiffRecord =9c\.1\.0_{use}%666 zoneinfo"|tz_latest|icutz
TZVersionDiffRecord =[^_]*_{use}%666 \+VERSION
