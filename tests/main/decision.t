# The update decision, on the sound device (system 9c.1.0; updates 9a to 9g; docs/HACKING.md)
*sound device || || ||
*passes, no update; a stale marker goes || marker || || -needs_cleanup
*passes, latest is the current || use:9d latest:9d || NOTNEWER 9d vs. 9d ||
*fails, latest is the current || use:9b latest:9b || INCOMPAT | NOTNEWER 9b vs. 9b || system marker
*passes on system, newer latest || latest:9d || || use:9d rec:9c.1.0_9d
*passes on an update, newer latest || use:9d latest:9f || || use:9f marker rec:9d_9f
*fails, newer latest || use:9b latest:9d || INCOMPAT || use:9d marker rec:9c.1.0_9d
fails; latest older than the system || use:9a latest:9b || INCOMPAT || use:9b marker rec:9c.1.0_9b
newer latest of another ICU format || latest:9e || NOTNEWER 9e vs. 9c.1.0 ||
current of another ICU format || use:9e || INCOMPAT || system marker
current as new as the system || use:9c.1.0 update:9c.1.0 latest:9d || || use:9d marker rec:9c.1.0_9d
unparsable latest || update:9d. latest:9d. || UNPARSED 9d. | NOTNEWER 9d. vs. 9c.1.0 ||
current directory deleted || use:9d -@9d || NOSCHEMA @9d: 0 | INCOMPAT || system marker
unparsable current fails || update:x use:x || UNPARSED x | INCOMPAT || system marker
unparsable current, unparsable system || release: update:x use:x || UNPARSED .1.0 | UNPARSED x ||
largest numbers convert || update:9d.2147483647 latest:9d.2147483647 || || use:9d.2147483647
    rec:9c.1.0_9d.2147483647
a whole record rewritten || latest:9d "rec:an older record" || || use:9d rec:9c.1.0_9d
record cannot be written: the activation stands || latest:9d TZVersionDiffRecord/x/ || || use:9d
marker not made, after a reset || use:9b -icutz icutz/x/ needs_cleanup/x/ || INCOMPAT | NOICUTZ
    | Cannot touch file $needs_cleanup: EISDIR || zoneinfo>~zoneinfo.default
legacy link removed || latest:9d /var/db/icutz>/none || || use:9d rec:9c.1.0_9d -/var/db/icutz
ICU link a folder: the reset keeps the legacy link || latest:9d icutz/x/ /var/db/icutz>/none
    || NOICUTZ | create_symlink: from $icutz to @9d/icutz: EEXIST | LOCATE | NOICUTZ ||
the marker follows a whole activation only || use:9d latest:9f -icutz icutz/x/ || NOICUTZ
    | create_symlink: from $icutz to @9f/icutz: EEXIST | LOCATE | NOICUTZ
    || zoneinfo>~zoneinfo.default
