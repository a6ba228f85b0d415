#include "main/links.h"

#include "fs/paths.h"
#include "fs/primitives.h"

#include <err.h>

std::string latest_dataset_path() {
    return vell_fs::read_symlink(vell_paths::tz_latest);
}

std::string current_dataset_path() {
    return dataset_path_from_zoneinfo_link(vell_fs::read_symlink(vell_paths::zoneinfo_link));
}

std::string dataset_path_from_zoneinfo_link(const std::string& target) {
    using namespace vell_paths;
    if (target.size() > tz_dir_prefix.size() && target.starts_with(tz_dir_prefix)) {
        // An update target is the data-set directory followed by one more name; the
        // directory itself must be at least one character long.
        const std::size_t last_slash = target.rfind('/');
        if (last_slash > tz_dir_prefix.size()) {
            return target.substr(0, last_slash);
        }
    } else if (target == system_zoneinfo) {
        return {};
    }
    warn("Bad zoneinfo link %s", target.c_str());
    throw -1;
}
