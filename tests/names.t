# The names rows use: in changes or effects, NAME:VALUE stands for its entries with {} filled in;
# at the start of a message, for its text. Every row makes its changes to the device `sound`.
sound = release:9c /usr/share/zoneinfo.default/UTC= format:44l system
    localtime>/var/db/timezone/zoneinfo/UTC update:9a update:9b update:9d update:9f
    tz/9e/zoneinfo/UTC= tz/9e/icutz/icutz46l.dat= tz/9g/zoneinfo/UTC= tz/9g/icutz/icutznone.dat=
release = /usr/share/zoneinfo.default/+VERSION={}
format = /usr/share/icu/icutzformat.txt={}
update = tz/{}/zoneinfo/UTC= tz/{}/icutz/icutz44l.dat=
system = zoneinfo>/usr/share/zoneinfo.default -icutz
use = zoneinfo>/var/db/timezone/tz/{}/zoneinfo icutz>/var/db/timezone/tz/{}/icutz
latest = tz_latest>/var/db/timezone/tz/{}
marker = needs_cleanup=
rec = TZVersionDiffRecord={}
default = localtime>/var/db/timezone/zoneinfo/America/Los_Angeles
INCOMPAT = Symlink points at data incompatible with installed system
INVALID = Invalid current symlinks; resetting to system partition
LOCATE = Unable to locate data; resetting to system partition
LOCALTIME = localtime link invalid; resetting to America/Los_Angeles
NOTNEWER = New update not compatible or older version:
NOSCHEMA = No ICU schema found for
CORRECTING = Correcting localtime link to
PARSE = Cannot parse version string
deep = zoneinfo>/var/db/timezone/tz/9d/xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx/zoneinfo
