#include "main/decision.h"

#include "dataset/vell_icu.h"
#include "fs/paths.h"
#include "main/reset.h"

#include <algorithm>
#include <err.h>
#include <fstream>
#include <optional>

namespace {

// Base text, "_", latest text, nothing else. A record that cannot be written is not
// worth failing a boot over: the activation stands.
void write_record(const vell_dataset& base, const vell_dataset& latest) {
    std::ofstream record(vell_paths::version_diff_record, std::ios::out | std::ios::trunc);
    record << base.version_string << '_' << latest.version_string;
}

// Whether building the data set printed nothing: its version parsed and its ICU data named
// a format.
bool built_silently(const vell_dataset& dataset) {
    return !(dataset.version == vell_version()) &&
           std::ranges::none_of(dataset.components, [](const auto& component) {
               const auto* icu = dynamic_cast<const vell_icu*>(component.get());
               return icu != nullptr && icu->get_schema().empty();
           });
}

} // namespace

void decide_update(const vell_dataset& system, const std::string& current_path,
                   const std::string& latest_path) {
    const vell_dataset current(current_path);
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
    // Every boot after an activation finds the links on the latest update. Built again from
    // the same path, it would make the same calls with the same results, so the current data
    // set stands for it: unless the links were reset since, or building it printed warnings,
    // which a second build prints again.
    std::optional<vell_dataset> latest_built;
    const vell_dataset& latest =
        current_passes && latest_path == current_path && built_silently(current)
            ? current
            : latest_built.emplace(latest_path);
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
