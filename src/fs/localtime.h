// Repair of the local-time link, the last step of every run.
#pragma once

// Keeps a link through /var/db/timezone/zoneinfo, rewrites one into /usr/share/zoneinfo
// onto it, and resets anything else to the default zone. Throws only when the default
// link itself cannot be made.
void correct_localtime_link();
