#include "fs/platform.h"

#include <fcntl.h>

namespace vell_platform {

// The data-protection facility is there exactly when <fcntl.h> names its command.
#ifdef F_SETPROTECTIONCLASS

void set_protection_class(int fd, int protection_class) {
    static_cast<void>(::fcntl(fd, F_SETPROTECTIONCLASS, protection_class));
}

int open_dprotected(const char* path, int flags, int protection_class, int dp_flags, mode_t mode) {
    return ::open_dprotected_np(path, flags, protection_class, dp_flags, mode);
}

#else

// Without protection classes there is nothing to set, and every file is in the
// unprotected class already.
void set_protection_class(int /*fd*/, int /*protection_class*/) {}

int open_dprotected(const char* path, int flags, int /*protection_class*/, int /*dp_flags*/,
                    mode_t mode) {
    return ::open(path, flags, mode);
}

#endif

} // namespace vell_platform
