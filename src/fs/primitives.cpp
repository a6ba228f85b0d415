#include "fs/primitives.h"

#include <cerrno>
#include <err.h>
#include <unistd.h>

namespace vell_fs {

namespace {
constexpr std::size_t max_target = 1024;
} // namespace

// warn(3) may change errno: the failing call's is read first.

void remove(const std::string& path) {
    if (::unlink(path.c_str()) == 0 || errno == ENOENT) {
        return;
    }
    const int error = errno;
    warn("remove: could not remove %s", path.c_str());
    throw error;
}

bool exists(const std::string& path) {
    return ::access(path.c_str(), F_OK) == 0;
}

std::string read_symlink(const std::string& path) {
    char buffer[max_target + 1]; // the target plus the NUL we append
    const ssize_t count = ::readlink(path.c_str(), buffer, max_target);
    if (count < 0) {
        if (errno == ENOENT) {
            return {};
        }
        const int error = errno;
        warn("read_symlink: %s", path.c_str());
        throw error;
    }
    buffer[count] = '\0';
    return buffer;
}

void create_symlink(const std::string& target, const std::string& link_path) {
    if (::symlink(target.c_str(), link_path.c_str()) == 0) {
        return;
    }
    const int error = errno;
    warn("create_symlink: from %s to %s", link_path.c_str(), target.c_str());
    throw error;
}

} // namespace vell_fs
