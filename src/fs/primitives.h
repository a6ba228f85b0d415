// Reporting wrappers round the file-system calls. Every failure is printed with warn(3)
// and then thrown as the int value of errno. Kept in a namespace of their own so that
// they are never mistaken for the C library's remove(3) or std::filesystem.
#pragma once

#include <string>

namespace vell_fs {

// unlink(2); a missing path is nothing to remove.
void remove(const std::string& path);

// access(2) with F_OK: follows links, so a dangling link does not exist. Never fails.
bool exists(const std::string& path);

// readlink(2) of at most 1,024 bytes; a missing path reads as empty text.
std::string read_symlink(const std::string& path);

// symlink(2): makes link_path hold target. Anything already at link_path is a failure.
void create_symlink(const std::string& target, const std::string& link_path);

} // namespace vell_fs
