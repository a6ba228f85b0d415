// tzlinks: decides at every boot which time-zone data set the system uses, and keeps
// the links under /var/db/timezone/ saying so.

#include "dataset/vell_dataset.h"
#include "fs/directories.h"
#include "fs/localtime.h"
#include "fs/paths.h"
#include "main/decision.h"
#include "main/links.h"
#include "main/reset.h"

#include <cstdio>
#include <err.h>
#include <string>

namespace {

// Runs a step that stands outside the data-set handlers. Such steps contain their own
// failures; one that escapes all the same is reported in one line, the boot goes on
// with the next step, and the run ends with status 1 so that the init system records it.
template <typename Step> bool contained(const char* name, Step step) noexcept {
    try {
        step();
        return true;
    } catch (...) {
        warn("%s failed", name);
        return false;
    }
}

// Settles the zoneinfo and icutz links: the update decision, falling back to the system
// partition when anything in it fails. Returns false when even that fallback failed.
bool settle_dataset_links() {
    try {
        const vell_dataset system;
        const std::string latest_path = latest_dataset_path();
        std::string current_path;
        try {
            current_path = current_dataset_path();
        } catch (...) {
            warn("Invalid current symlinks; resetting to system partition");
            reset_to_system_partition();
            current_path.clear();
        }
        decide_update(system, current_path, latest_path);
        return true;
    } catch (...) {
        warn("Unable to locate data; resetting to system partition");
        return contained("reset_to_system_partition", reset_to_system_partition);
    }
}

} // namespace

int main() {
    bool ok = contained("protect_directories", protect_directories);
    ok &= contained("migrate_icutz_link", migrate_icutz_link);
    // Stale entries; whether they were there or could be removed does not matter.
    static_cast<void>(std::remove(vell_paths::needs_cleanup));
    static_cast<void>(std::remove(vell_paths::legacy_icu));
    ok &= settle_dataset_links();
    ok &= contained("correct_localtime_link", correct_localtime_link);
    return ok ? 0 : 1;
}
