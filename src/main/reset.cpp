#include "main/reset.h"

#include "dataset/vell_dataset.h"
#include "fs/paths.h"
#include "fs/platform.h"

#include <err.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

void reset_to_system_partition() {
    const vell_dataset system;
    system.activate();
}

void touch_needs_cleanup() {
    using vell_paths::needs_cleanup;
    // Neither truncated nor exclusive: an existing marker is left as it is.
    const int fd = vell_platform::open_dprotected(needs_cleanup, O_RDWR | O_CREAT,
                                                  vell_platform::unprotected_class, 0, 0666);
    struct stat status {};
    if (fd < 0 || ::fstat(fd, &status) != 0 || ::close(fd) != 0) {
        warn("Cannot touch file %s", needs_cleanup);
    }
}
