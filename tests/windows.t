# The README's "What a fault or crash cannot heal": PATH, a state it may be left in, and a call
# whose fault or crash may leave it so, as regular expressions. {use}: the update that zoneinfo
# names; {before}: the path's state before the boot.
localtime >/var/db/timezone/zoneinfo/America/Los_Angeles /var/db/timezone/(localtime|zoneinfo/)
icutz -|{before} /var/db/(timezone/)?icutz
TZVersionDiffRecord -|=|=.*_{use} .
