#include "fs/platform.h"

#include <fcntl.h>

namespace vell_platform {

int set_protection_class(int fd, int protection_class) {
#ifdef F_SETPROTECTIONCLASS
    return ::fcntl(fd, F_SETPROTECTIONCLASS, protection_class);
#else
    (void)fd;
    (void)protection_class;
    return 0;
#endif
}

int open_dprotected(const char* path, int flags, int protection_class, int dp_flags, mode_t mode) {
#ifdef TZLINKS_HAVE_OPEN_DPROTECTED_NP
    return ::open_dprotected_np(path, flags, protection_class, dp_flags, mode);
#else
    // Without protection classes every file is in the unprotected class already.
    (void)protection_class;
    (void)dp_flags;
    return ::open(path, flags, mode);
#endif
}

} // namespace vell_platform
