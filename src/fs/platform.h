// The data-protection facility of the target system, behind the two operations the
// program needs. Where the build does not find the facility, both do the least the
// logic asks of them.
#pragma once

#include <sys/types.h>

namespace vell_platform {

// The class without data protection.
inline constexpr int unprotected_class = 4;

// Sets the protection class of the directory open on fd, if it can; a failure changes
// nothing the program needs. Without the facility there is nothing to set.
void set_protection_class(int fd, int protection_class);

// Creates or opens path in the given protection class, as open_dprotected_np does.
// Returns a descriptor, or a negative value with errno set.
int open_dprotected(const char* path, int flags, int protection_class, int dp_flags, mode_t mode);

} // namespace vell_platform
