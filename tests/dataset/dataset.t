# Data sets: the system's release (+VERSION); ICU formats (icutzformat.txt, data file names)
+VERSION: its first word || "release:\n\n 9f x\n" latest:9d || NOTNEWER 9d vs. 9f.1.0
icutzformat.txt: its first word || "format:\n 44l x\n" latest:9d || || use:9d rec:9c.1.0_9d
no formats || format: use:9g latest:9g || NOSCHEMA @9g: 0 | NOSCHEMA @9g | NOTNEWER 9g vs. 9g
no format named: a formatted update does not fit || format: latest:9d || NOTNEWER 9d vs. 9c.1.0
ICU format: more digits, and b || format:123b update:9h,123b latest:9h || || use:9h rec:9c.1.0_9h
ICU format e || update:9h,44e latest:9h || NOTNEWER 9h vs. 9c.1.0
ICU folder a link, followed || -@9g/icutz @9g/icutz>@9d/icutz latest:9g || || use:9g rec:9c.1.0_9g
# Entries that name no format, in an update in use with a system that names none: they fit
ICU names not of the pattern || format: use:9g @9g/icutz/xicutz44l.dat= @9g/icutz/icutz44L.dat=
    @9g/icutz/icutzl.dat= @9g/icutz/icutz44x.dat= || NOSCHEMA @9g: 0
ICU entries not readable files of the folder || format: use:9g @9g/icutz/icutz1l.dat=%640
    @9g/icutz/icutz2l.dat/ @9g/icutz/icutz3l.dat>../zoneinfo/UTC @9g/icutz/sub/icutz4l.dat=
    || NOSCHEMA @9g: 0
