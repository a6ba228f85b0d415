# The update decision (the sound device: system 2016c.1.0 in ICU format 44l, updates 2016a/b/d/f.1.0 in 44l, 2016e.1.0 in 46l)
*sound device || || ||
*passes, no update; a stale marker goes || marker || || -needs_cleanup
passes on an update, none named || use:2016d.1.0 || ||
fails (older), none named || use:2016b.1.0 || INCOMPAT || system marker
*passes, latest is the current || use:2016d.1.0 latest:2016d.1.0 || NOTNEWER 2016d.1.0 vs. 2016d.1.0 ||
*fails, latest is the current || use:2016b.1.0 latest:2016b.1.0 || INCOMPAT | NOTNEWER 2016b.1.0 vs. 2016b.1.0 || system marker
*passes on system, newer latest || latest:2016d.1.0 || || use:2016d.1.0 rec:2016c.1.0_2016d.1.0
*passes on an update, newer latest || use:2016d.1.0 latest:2016f.1.0 || || use:2016f.1.0 marker rec:2016d.1.0_2016f.1.0
*fails, newer latest || use:2016b.1.0 latest:2016d.1.0 || INCOMPAT || use:2016d.1.0 marker rec:2016c.1.0_2016d.1.0
fails; latest newer than current, older than system || use:2016a.1.0 latest:2016b.1.0 || INCOMPAT || use:2016b.1.0 marker rec:2016c.1.0_2016b.1.0
newer latest of another ICU format || latest:2016e.1.0 || NOTNEWER 2016e.1.0 vs. 2016c.1.0 ||
current of another ICU format || use:2016e.1.0 || INCOMPAT || system marker
current as new as the system, then left for a newer update || update:2016c.1.0 use:2016c.1.0 latest:2016d.1.0 || || use:2016d.1.0 marker rec:2016c.1.0_2016d.1.0
current directory deleted || use:2016d.1.0 -@2016d.1.0 || No ICU schema found for @2016d.1.0: 0 | INCOMPAT: 0 || system marker
unparsable latest is never newer || update:next latest:next || UNPARSED next, results.size() = 0 | UNPARSED next | NOTNEWER next vs. 2016c.1.0 ||
unparsable current fails || update:x use:x || UNPARSED x, results.size() = 0 | UNPARSED x | INCOMPAT || system marker
unparsable current passes an unparsable system || /usr/share/zoneinfo.default/+VERSION= update:x use:x || UNPARSED .1.0, results.size() = 0 | UNPARSED .1.0 | UNPARSED x, results.size() = 0 | UNPARSED x ||
largest numbers still convert || update:2016d.2147483647 latest:2016d.2147483647 || || use:2016d.2147483647 rec:2016c.1.0_2016d.2147483647
a second activation replaces the whole record || latest:2016d.1.0 "rec:an older and longer record" || || use:2016d.1.0 rec:2016c.1.0_2016d.1.0
record cannot be written: the activation stands || latest:2016d.1.0 TZVersionDiffRecord/x/ || || use:2016d.1.0
marker cannot be made: reported once, the run goes on || use:2016b.1.0 latest:2016d.1.0 needs_cleanup/keep/ || INCOMPAT | Cannot touch file $needs_cleanup: EISDIR || use:2016d.1.0 rec:2016c.1.0_2016d.1.0
an activation also removes a dangling legacy ICU link || latest:2016d.1.0 /var/db/icutz>/none || || use:2016d.1.0 rec:2016c.1.0_2016d.1.0 -/var/db/icutz
ICU link is a folder: the activation fails, the reset keeps the legacy link || latest:2016d.1.0 icutz/x/ /var/db/icutz>/none || remove: could not remove $icutz: EISDIR | unlink of ICU softlink failed: EISDIR | create_symlink: from $icutz to @2016d.1.0/icutz: EEXIST | LOCATE: EEXIST | remove: could not remove $icutz: EISDIR | unlink of ICU softlink failed: EISDIR ||
the marker follows a complete activation only || use:2016d.1.0 latest:2016f.1.0 -icutz icutz/x/ || remove: could not remove $icutz: EISDIR | unlink of ICU softlink failed: EISDIR | create_symlink: from $icutz to @2016f.1.0/icutz: EEXIST | LOCATE: EEXIST | remove: could not remove $icutz: EISDIR | unlink of ICU softlink failed: EISDIR || zoneinfo>/usr/share/zoneinfo.default
