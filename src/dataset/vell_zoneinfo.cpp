#include "dataset/vell_zoneinfo.h"

#include "fs/paths.h"
#include "fs/primitives.h"

#include <err.h>
#include <fstream>

vell_zoneinfo::vell_zoneinfo(const std::string& dataset_path)
    : vell_dataset_component(dataset_path),
      path(dataset_path.empty() ? std::string(vell_paths::system_zoneinfo)
                                : dataset_path + "/zoneinfo") {
    read_version();
}

void vell_zoneinfo::read_version() {
    // A missing or blank file leaves the text empty; the data set decides what that means.
    std::ifstream file(path + "/+VERSION");
    file >> version_string;
}

// Zoneinfo files have no format that must agree with the installed system.
bool vell_zoneinfo::compatible_schema(const vell_dataset_component& /*other*/) const {
    return true;
}

void vell_zoneinfo::activate() const {
    try {
        vell_fs::remove(vell_paths::zoneinfo_link);
    } catch (...) {
        warn("Unlink of zoneinfo softlink failed");
    }
    vell_fs::create_symlink(path, vell_paths::zoneinfo_link);
}
