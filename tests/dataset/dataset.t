first words || release:\n\n\x20\x209c\x20x format:\n44l\x20x latest:9d || || use:9d rec:9c.1.0_9d
no +VERSION: .1.0 || -/usr/share/zoneinfo.default/+VERSION || UNPARSED:.1.0 | UNPARSED:.1.0
no format on either side: they fit || format: use:9g || NOSCHEMA:9g
ICU format e || tz/9h/icutz/icutz44e.dat= latest:9h || NOTNEWER:9h vs. 9c.1.0
ICU folder a link, followed || tz/9g/icutz>../9d/icutz latest:9g || || use:9g rec:9c.1.0_9g
ICU names not of the pattern || format: use:9g in9g:xicutz44l.dat= in9g:icutz44L.dat=
    in9g:icutzl.dat= in9g:icutz44x.dat= in9g:icutz44l_dat= in9g:icutz44le.dat= || NOSCHEMA:9g
ICU entries not readable files of the folder || format: use:9g in9g:icutz1l.dat=%640
    in9g:icutz2l.dat/ in9g:icutz3l.dat>../zoneinfo/UTC in9g:sub/icutz4l.dat= || NOSCHEMA:9g
