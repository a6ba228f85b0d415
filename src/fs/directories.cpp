#include "fs/directories.h"

#include "fs/paths.h"
#include "fs/platform.h"
#include "fs/primitives.h"

#include <err.h>
#include <fcntl.h>
#include <unistd.h>

void protect_directory(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return; // a missing directory is left alone
    }
    vell_platform::set_protection_class(fd, vell_platform::unprotected_class);
    static_cast<void>(::close(fd)); // a read-only descriptor: nothing is lost
}

void protect_directories() {
    protect_directory(vell_paths::timezone_dir);
    protect_directory(vell_paths::tz_dir);
}

void migrate_icutz_link() {
    using namespace vell_paths;
    if (vell_fs::exists(legacy_icutz_link) && !vell_fs::exists(icutz_link)) {
        try {
            // The target text is copied as it stands, relative or not.
            vell_fs::create_symlink(vell_fs::read_symlink(legacy_icutz_link), icutz_link);
        } catch (...) {
            warn("Could not migrate /var/db/icutz to /var/db/timezone/icutz");
        }
    }
    // The legacy link goes whether or not it could be migrated.
    if (vell_fs::exists(legacy_icutz_link)) {
        try {
            vell_fs::remove(legacy_icutz_link);
        } catch (...) {
            warn("Could not remove /var/db/icutz");
        }
    }
}
