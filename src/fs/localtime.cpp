#include "fs/localtime.h"

#include "fs/paths.h"
#include "fs/primitives.h"

#include <cstdio>
#include <err.h>
#include <string>

namespace {

// True when the link is left naming a zone file through the zoneinfo link; false
// when it must be reset. Failures of the primitives throw and also mean a reset.
bool keep_or_rewrite() {
    using namespace vell_paths;
    const std::string target = vell_fs::read_symlink(localtime_link);
    if (target.starts_with(zoneinfo_link_prefix)) {
        return true; // not tested for existence: the data set in use decides
    }
    if (!target.starts_with(public_zoneinfo_prefix)) {
        return false;
    }
    const std::string rewritten =
        std::string(zoneinfo_link_prefix) + target.substr(public_zoneinfo_prefix.size());
    warn("Correcting localtime link to %s", rewritten.c_str());
    if (!vell_fs::exists(rewritten)) {
        return false;
    }
    static_cast<void>(std::remove(localtime_link));
    vell_fs::create_symlink(rewritten, localtime_link);
    return true;
}

} // namespace

void correct_localtime_link() {
    using namespace vell_paths;
    try {
        if (keep_or_rewrite()) {
            return;
        }
    } catch (...) {
        // The failing primitive has reported; the reset below answers every failure.
    }
    warn("localtime link invalid; resetting to %s", default_zone);
    static_cast<void>(std::remove(localtime_link));
    vell_fs::create_symlink(default_localtime_target, localtime_link);
}
