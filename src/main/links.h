// Reading the two links that say which data sets exist.
#pragma once

#include <string>

// Target of /var/db/timezone/tz_latest, unchanged; empty when no update is installed.
std::string latest_dataset_path();

// Directory of the data set that /var/db/timezone/zoneinfo names; empty for the system
// partition. Throws when the link is missing, unreadable or of no accepted form.
std::string current_dataset_path();

// Turns a zoneinfo link target back into its data-set directory. Reads no files.
std::string dataset_path_from_zoneinfo_link(const std::string& target);
