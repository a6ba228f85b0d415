#include "support/device_root.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sched.h>
#include <sstream>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace devroot {

namespace {

fs::path scratch_dir;
std::string reason = "the device root was never entered";
bool entered = false;

bool write_proc(const char* path, const std::string& text) {
    std::ofstream file(path);
    file << text;
    return static_cast<bool>(file.flush());
}

// As root, a mount namespace is enough; otherwise an unprivileged user namespace in
// which this user is root gives one.
bool private_mount_namespace(std::string& why) {
    if (geteuid() == 0 && unshare(CLONE_NEWNS) == 0) {
        return true;
    }
    const uid_t uid = geteuid();
    const gid_t gid = getegid();
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        why = std::string("cannot make a private mount namespace (unshare: ") + strerror(errno) +
              "); neither root nor unprivileged user namespaces are available";
        return false;
    }
    write_proc("/proc/self/setgroups", "deny");
    if (!write_proc("/proc/self/uid_map", "0 " + std::to_string(uid) + " 1\n") ||
        !write_proc("/proc/self/gid_map", "0 " + std::to_string(gid) + " 1\n")) {
        why = "cannot map this user in a user namespace";
        return false;
    }
    return true;
}

bool bind_over(const fs::path& from, const char* onto, std::string& why) {
    if (mount(from.c_str(), onto, nullptr, MS_BIND, nullptr) != 0) {
        why = std::string("cannot bind-mount over ") + onto + ": " + strerror(errno);
        return false;
    }
    return true;
}

void remove_scratch() {
    if (!scratch_dir.empty()) {
        std::error_code ignored;
        fs::remove_all(scratch_dir, ignored);
    }
}

void clear_dir(const fs::path& dir) {
    for (const auto& entry : fs::directory_iterator(dir)) {
        fs::remove_all(entry.path());
    }
}

} // namespace

void enter() {
    std::string base = fs::temp_directory_path() / "tzlinks-device-XXXXXX";
    if (mkdtemp(base.data()) == nullptr) {
        reason = std::string("cannot make a scratch folder: ") + strerror(errno);
        return;
    }
    scratch_dir = base;
    std::atexit(remove_scratch);
    fs::create_directories(scratch_dir / "var");
    fs::create_directories(scratch_dir / "share");
    // Links made by the program resolve inside the device root only once both binds are
    // in place; a sentinel proves that /var really is the scratch folder before any test
    // writes there.
    std::ofstream(scratch_dir / "var" / ".device-root") << base;
    std::string why;
    if (!private_mount_namespace(why) ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        !bind_over(scratch_dir / "var", "/var", why) ||
        !bind_over(scratch_dir / "share", "/usr/share", why)) {
        reason = why.empty() ? std::string("cannot make mounts private: ") + strerror(errno) : why;
        return;
    }
    std::ifstream sentinel("/var/.device-root");
    std::string seen;
    sentinel >> seen;
    if (seen != base) {
        reason = "/var is not the device root after mounting";
        return;
    }
    entered = true;
}

bool available() {
    return entered;
}
const std::string& unavailable_reason() {
    return reason;
}

void clear() {
    clear_dir(scratch_dir / "var");
    clear_dir(scratch_dir / "share");
    std::ofstream(scratch_dir / "var" / ".device-root") << scratch_dir.string();
}

void make_dir(const std::string& path, mode_t mode) {
    fs::create_directories(path);
    chmod(path.c_str(), mode);
}

void write_file(const std::string& path, const std::string& content, mode_t mode) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
    chmod(path.c_str(), mode);
}

void make_link(const std::string& target, const std::string& path) {
    fs::create_directories(fs::path(path).parent_path());
    if (symlink(target.c_str(), path.c_str()) != 0) {
        throw std::runtime_error("symlink " + path + ": " + strerror(errno));
    }
}

std::string link(const std::string& path) {
    struct stat st {};
    if (lstat(path.c_str(), &st) != 0) {
        return "(missing)";
    }
    if (!S_ISLNK(st.st_mode)) {
        return "(not a link)";
    }
    return fs::read_symlink(path).string();
}

std::string read_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void system_partition(const std::string& version_word, const std::string& schema) {
    const std::string zoneinfo = "/usr/share/zoneinfo.default";
    write_file(zoneinfo + "/UTC", "TZif2 UTC");
    write_file(zoneinfo + "/America/Los_Angeles", "TZif2 PST8PDT");
    if (!version_word.empty()) {
        write_file(zoneinfo + "/+VERSION", version_word + "\n");
    }
    make_dir("/usr/share/icu");
    if (!schema.empty()) {
        write_file("/usr/share/icu/icutzformat.txt", schema + "\n");
    }
    make_dir("/var/db/timezone/tz");
}

void update(const std::string& name, const std::string& icu_file) {
    const std::string dir = "/var/db/timezone/tz/" + name;
    write_file(dir + "/zoneinfo/UTC", "TZif2 UTC");
    write_file(dir + "/zoneinfo/America/Los_Angeles", "TZif2 PST8PDT");
    write_file(dir + "/zoneinfo/+VERSION", name + "\n");
    make_dir(dir + "/icutz");
    if (!icu_file.empty()) {
        write_file(dir + "/icutz/" + icu_file, "icu data");
    }
}

std::vector<std::string> messages(const std::string& output) {
    std::vector<std::string> result;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t prefix = line.find(": ");
        const std::size_t errno_text = line.rfind(": ");
        if (prefix == std::string::npos || errno_text == prefix) {
            result.push_back(line); // not a warn(3) line: keep it whole so a test sees it
            continue;
        }
        result.push_back(line.substr(prefix + 2, errno_text - prefix - 2));
    }
    return result;
}

run_result run_tzlinks(const std::vector<std::string>& prefix) {
    std::vector<std::string> args = prefix;
    args.push_back(prefix.empty() ? "tzlinks" : TZLINKS_BINARY);
    std::vector<char*> argv;
    for (auto& arg : args) {
        argv.push_back(arg.data());
    }
    argv.push_back(nullptr);
    run_result result;
    int pipe_fds[2];
    if (pipe(pipe_fds) != 0) {
        throw std::runtime_error("pipe failed");
    }
    const pid_t child = fork();
    if (child == 0) {
        dup2(pipe_fds[1], STDERR_FILENO);
        close(pipe_fds[0]);
        close(pipe_fds[1]);
        if (prefix.empty()) {
            execv(TZLINKS_BINARY, argv.data());
        } else {
            execvp(argv[0], argv.data());
        }
        _exit(127);
    }
    close(pipe_fds[1]);
    char buffer[4096];
    for (ssize_t n; (n = read(pipe_fds[0], buffer, sizeof buffer)) > 0;) {
        result.output.append(buffer, static_cast<std::size_t>(n));
    }
    close(pipe_fds[0]);
    int status = 0;
    waitpid(child, &status, 0);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.messages = messages(result.output);
    return result;
}

stderr_capture::stderr_capture() {
    std::fflush(stderr);
    char name[] = "/tmp/tzlinks-stderr-XXXXXX";
    file_fd_ = mkstemp(name);
    unlink(name);
    saved_fd_ = dup(STDERR_FILENO);
    dup2(file_fd_, STDERR_FILENO);
}

stderr_capture::~stderr_capture() {
    if (saved_fd_ >= 0) {
        messages();
    }
}

std::vector<std::string> stderr_capture::messages() {
    if (saved_fd_ < 0) {
        return {};
    }
    std::fflush(stderr);
    dup2(saved_fd_, STDERR_FILENO);
    close(saved_fd_);
    saved_fd_ = -1;
    std::string output;
    char buffer[4096];
    lseek(file_fd_, 0, SEEK_SET);
    for (ssize_t n; (n = read(file_fd_, buffer, sizeof buffer)) > 0;) {
        output.append(buffer, static_cast<std::size_t>(n));
    }
    close(file_fd_);
    return devroot::messages(output);
}

void device_test::SetUp() {
    if (!available()) {
        GTEST_SKIP() << "no device root: " << unavailable_reason();
    }
    clear();
}

} // namespace devroot
