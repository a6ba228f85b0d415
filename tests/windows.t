# What a fault or crash may leave for good, the README's table "What a fault or crash cannot
# heal" as data: PATH, a state it may be left in and a call whose fault or crash may leave it
# there, both regular expressions. {use}: the update that the zoneinfo link names; {before}: the
# path's state before the boot.
localtime >/var/db/timezone/zoneinfo/America/Los_Angeles /var/db/timezone/(localtime|zoneinfo/)
icutz -|{before} /var/db/(timezone/)?icutz
TZVersionDiffRecord -|=|=.*_{use} .
