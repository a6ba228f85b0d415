# Data sets: the system version from +VERSION, ICU formats from icutzformat.txt and data file names
+VERSION: first word after blank lines || "/usr/share/zoneinfo.default/+VERSION=\n\n  2016f extra\n" latest:2016d.1.0 || NOTNEWER 2016d.1.0 vs. 2016f.1.0 ||
icutzformat.txt: first word only || "/usr/share/icu/icutzformat.txt=\n 44l extra\n" latest:2016d.1.0 || || use:2016d.1.0 rec:2016c.1.0_2016d.1.0
icutzformat.txt missing: an update without a format fits, and is built again as the latest || -/usr/share/icu/icutzformat.txt update:2016g.1.0,none use:2016g.1.0 latest:2016g.1.0 || No ICU schema found for @2016g.1.0: 0 | No ICU schema found for @2016g.1.0: 0 | NOTNEWER 2016g.1.0 vs. 2016g.1.0: 0 ||
icutzformat.txt missing: a formatted update does not fit || -/usr/share/icu/icutzformat.txt latest:2016d.1.0 || NOTNEWER 2016d.1.0 vs. 2016c.1.0 ||
ICU format with more digits and b || /usr/share/icu/icutzformat.txt=123b update:2016g.1.0,123b latest:2016g.1.0 || || use:2016g.1.0 rec:2016c.1.0_2016g.1.0
ICU format e || update:2016g.1.0,44e latest:2016g.1.0 || NOTNEWER 2016g.1.0 vs. 2016c.1.0 ||
ICU names that match only in part || update:2016g.1.0,44L @2016g.1.0/icutz/icutz44x.dat= @2016g.1.0/icutz/icutzl.dat= @2016g.1.0/icutz/icutz44le.dat= @2016g.1.0/icutz/xicutz44l.dat= @2016g.1.0/icutz/icutz44l.dat.bak= latest:2016g.1.0 || No ICU schema found for @2016g.1.0: 0 | NOTNEWER 2016g.1.0 vs. 2016c.1.0: 0 ||
ICU file readable by others only || update:2016g.1.0 @2016g.1.0/icutz/icutz44l.dat=%004 latest:2016g.1.0 || || use:2016g.1.0 rec:2016c.1.0_2016g.1.0
ICU file not readable by others || update:2016g.1.0 @2016g.1.0/icutz/icutz44l.dat=%640 latest:2016g.1.0 || No ICU schema found for @2016g.1.0: 0 | NOTNEWER 2016g.1.0 vs. 2016c.1.0: 0 ||
ICU name on a folder || update:2016g.1.0,none @2016g.1.0/icutz/icutz44l.dat/ latest:2016g.1.0 || No ICU schema found for @2016g.1.0: 0 | NOTNEWER 2016g.1.0 vs. 2016c.1.0: 0 ||
ICU name on a link || update:2016g.1.0,none @2016g.1.0/icutz/icutz44l.dat>@2016d.1.0/icutz/icutz44l.dat latest:2016g.1.0 || No ICU schema found for @2016g.1.0: 0 | NOTNEWER 2016g.1.0 vs. 2016c.1.0: 0 ||
ICU file one folder down || update:2016g.1.0,none @2016g.1.0/icutz/sub/icutz44l.dat= latest:2016g.1.0 || No ICU schema found for @2016g.1.0: 0 | NOTNEWER 2016g.1.0 vs. 2016c.1.0: 0 ||
ICU folder of an update is a link, followed || update:2016g.1.0 -@2016g.1.0/icutz @2016g.1.0/icutz>@2016d.1.0/icutz latest:2016g.1.0 || || use:2016g.1.0 rec:2016c.1.0_2016g.1.0
the first of two matching ICU files wins || update:2016g.1.0,none @2016g.1.0/icutz* latest:2016g.1.0 || || use:2016g.1.0 rec:2016c.1.0_2016g.1.0
