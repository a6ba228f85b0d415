// Preparation of the program's directories, run first at every start.
#pragma once

#include <string>

// Puts one directory into the unprotected class; silent whatever happens.
void protect_directory(const std::string& path);

// Puts /var/db/timezone/ and /var/db/timezone/tz/ into the unprotected class.
void protect_directories();

// Moves a legacy /var/db/icutz link to /var/db/timezone/icutz; reports and goes on.
void migrate_icutz_link();
