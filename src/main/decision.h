// The choice between the system, current and latest data sets.
#pragma once

#include "dataset/vell_dataset.h"

#include <string>

// Keeps the current data set if it still suits the system, else resets to the system
// partition; then activates the latest update if it suits the system and is newer than
// the current data set. Catches nothing.
void decide_update(const vell_dataset& system, const std::string& current_path,
                   const std::string& latest_path);
