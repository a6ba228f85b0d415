# Data sets: ICU formats (icutzformat.txt, data file names)
no formats || format: use:9g latest:9g || NOSCHEMA /var/db/timezone/tz/9g: 0
    | NOSCHEMA /var/db/timezone/tz/9g: 0 | NOTNEWER 9g vs. 9g: 0
ICU format e || tz/9h/icutz/icutz44e.dat= latest:9h || NOTNEWER 9h vs. 9c.1.0: ENOENT
ICU folder a link, followed || -tz/9g/icutz tz/9g/icutz>/var/db/timezone/tz/9d/icutz latest:9g ||
    || use:9g rec:9c.1.0_9g
# Entries that name no format, in an update in use with a system that names none: they fit
ICU names not of the pattern
    || format: use:9g tz/9g/icutz/xicutz44l.dat= tz/9g/icutz/icutz44L.dat= tz/9g/icutz/icutzl.dat=
    tz/9g/icutz/icutz44x.dat= tz/9g/icutz/icutz44l_dat= || NOSCHEMA /var/db/timezone/tz/9g: 0
ICU entries not readable files of the folder
    || format: use:9g tz/9g/icutz/icutz1l.dat=%640 tz/9g/icutz/icutz2l.dat/
    tz/9g/icutz/icutz3l.dat>../zoneinfo/UTC tz/9g/icutz/sub/icutz4l.dat=
    || NOSCHEMA /var/db/timezone/tz/9g: 0
