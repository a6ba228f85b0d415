#include "main/decision.h"

#include "fs/paths.h"
#include "main/reset.h"

#include <err.h>
#include <fstream>

namespace {

// Base text, "_", latest text, nothing else. A record that cannot be written is not
// worth failing a boot over: the activation stands.
void write_record(const vell_dataset& base, const vell_dataset& latest) {
    std::ofstream record(vell_paths::version_diff_record, std::ios::out | std::ios::trunc);
    record << base.get_version_string() << '_' << latest.get_version_string();
}

} // namespace

void decide_update(const vell_dataset& system, const std::string& current_path,
                   const std::string& latest_path) {
    const vell_dataset current(current_path);
    // Schema first, then not older than the system partition's data.
    const bool current_passes = current.compatible_with(system) && !(system > current);
    if (!current_passes) {
        warn("Symlink points at data incompatible with installed system");
        reset_to_system_partition();
        touch_needs_cleanup();
    }
    const vell_dataset& base = current_passes ? current : system;

    if (latest_path.empty()) {
        return; // no update installed
    }
    const vell_dataset latest(latest_path);
    // Schema first; then newer than the current data set, even when the links have just left it.
    if (!(latest.compatible_with(system) && latest > current)) {
        warn("New update not compatible or older version: %s vs. %s",
             latest.get_version_string().c_str(), current.get_version_string().c_str());
        return;
    }
    latest.activate();
    if (!(base == system)) {
        touch_needs_cleanup(); // the links have just left an update data set
    }
    write_record(base, latest);
}
