#include "dataset/vell_dataset.h"

#include "dataset/vell_icu.h"
#include "dataset/vell_zoneinfo.h"
#include "fs/paths.h"

#include <err.h>
#include <stdexcept>

vell_dataset::vell_dataset() {
    create_components();
}

vell_dataset::vell_dataset(const std::string& path) : path(path) {
    create_components();
}

void vell_dataset::create_components() {
    using vell_paths::tz_dir_prefix;
    auto zoneinfo = std::make_shared<vell_zoneinfo>(path);
    if (path.empty()) {
        // The system partition's +VERSION holds only the release name.
        version_string = zoneinfo->get_version_string() + ".1.0";
    } else if (path.size() > tz_dir_prefix.size() && path.starts_with(tz_dir_prefix)) {
        // An update directory is named by its version text.
        version_string = path.substr(tz_dir_prefix.size());
    } else {
        warn("vell_dataset::create_components: bad path %s", path.c_str());
        throw std::invalid_argument("badpath");
    }
    version.parse(version_string);
    components.push_back(std::move(zoneinfo));
    components.push_back(std::make_shared<vell_icu>(path));
}

bool vell_dataset::compatible_with(const vell_dataset& other) const {
    // The receiver's components decide, pair by pair; a missing counterpart is a refusal.
    for (std::size_t i = 0; i < components.size(); ++i) {
        if (i >= other.components.size() ||
            !components[i]->compatible_schema(*other.components[i])) {
            return false;
        }
    }
    return components.size() == other.components.size();
}

void vell_dataset::activate() const {
    for (const auto& component : components) {
        component->activate();
    }
}
