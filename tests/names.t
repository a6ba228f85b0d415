# NAME:VALUE stands for NAME's entries or messages, {} filled in; rows change `sound` (HACKING.md).
sound = release:9c /usr/share/zoneinfo.default/UTC= format:44l system
    localtime>/var/db/timezone/zoneinfo/UTC update:9a update:9b update:9d update:9f
    tz/9e/zoneinfo/UTC= tz/9e/icutz/icutz46l.dat= tz/9g/zoneinfo/UTC= in9g:icutznone.dat=
release = /usr/share/zoneinfo.default/+VERSION={}
format = /usr/share/icu/icutzformat.txt={}
update = tz/{}/zoneinfo/UTC= tz/{}/icutz/icutz44l.dat=
new = update:{} latest:{}
in9g = tz/9g/icutz/{}
system = zoneinfo>/usr/share/zoneinfo.default -icutz
use = zoneinfo>/var/db/timezone/tz/{}/zoneinfo icutz>/var/db/timezone/tz/{}/icutz
latest = tz_latest>/var/db/timezone/tz/{}
marker = needs_cleanup=%666
rec = TZVersionDiffRecord={}%666
default = localtime>/var/db/timezone/zoneinfo/America/Los_Angeles
BAD = Bad zoneinfo link {}
BADPATH = vell_dataset::create_components: bad path {}
CORRECTING = Correcting localtime link to /var/db/timezone/zoneinfo{}
INCOMPAT = Symlink points at data incompatible with installed system
INVALID = Invalid current symlinks; resetting to system partition
LOCALTIME = localtime link invalid; resetting to America/Los_Angeles
LOCATE = Unable to locate data; resetting to system partition
NOSCHEMA = No ICU schema found for /var/db/timezone/tz/{}
NOTNEWER = New update not compatible or older version: {}
UNPARSED = Cannot parse version string {}, results.size() = 0 | Cannot parse version string {}
MIGRATE = Could not migrate /var/db/icutz to /var/db/timezone/icutz
NOTOUCH = Cannot touch file /var/db/timezone/needs_cleanup: {}
ICUDIR = remove: could not remove /var/db/timezone/icutz: EISDIR | unlink of ICU softlink failed
ZONEDIR = remove: could not remove /var/db/timezone/zoneinfo: EISDIR
    | Unlink of zoneinfo softlink failed | ZONELINK:EEXIST
ZONELINK = create_symlink: from /var/db/timezone/zoneinfo to /usr/share/zoneinfo.default: {}
