// A throwaway "device root": a scratch folder whose var/ and share/ are bind-mounted
// over /var and /usr/share in this test process's private mount namespace, so that code
// using the program's fixed paths, and the tzlinks binary run from here, only ever see it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <sys/types.h>
#include <vector>

namespace devroot {

// Enters the sandbox; called once by the test main before any test runs.
void enter();
// Whether the sandbox is in place, and why not when it is not.
bool available();
const std::string& unavailable_reason();

// Empties the device root: /var and /usr/share hold nothing afterwards.
void clear();

// Builders; every path is absolute as the program sees it, and parents are made.
void write_file(const std::string& path, const std::string& content, mode_t mode = 0644);
void make_dir(const std::string& path, mode_t mode = 0755);
void make_link(const std::string& target, const std::string& path);

// What is on disk: the link's target; "(missing)" when nothing is there; "(not a link)"
// when something else is.
std::string link(const std::string& path);
std::string read_file(const std::string& path);

// A system partition whose +VERSION holds version_word and whose icutzformat.txt
// holds schema, each omitted when empty; with one zone file, UTC, and the default zone.
void system_partition(const std::string& version_word, const std::string& schema);
// An update directory /var/db/timezone/tz/<name> with the same two zone files and,
// when icu_file is not empty, that ICU data file (mode 0644).
void update(const std::string& name, const std::string& icu_file);

// Messages of warn(3) lines without the program-name prefix and the errno text.
std::vector<std::string> messages(const std::string& output);

struct run_result {
    int status = -1;    // exit status, or -1 when killed by a signal
    std::string output; // standard error, raw
    std::vector<std::string> messages;
};
// Runs the built tzlinks binary against the device root, behind prefix when it is not
// empty (a tracer and its options, found on PATH).
run_result run_tzlinks(const std::vector<std::string>& prefix = {});

// Collects what in-process code writes to standard error.
class stderr_capture {
  public:
    stderr_capture();
    ~stderr_capture();
    stderr_capture(const stderr_capture&) = delete;
    stderr_capture& operator=(const stderr_capture&) = delete;
    // Stops capturing and returns the messages written.
    std::vector<std::string> messages();

  private:
    int saved_fd_ = -1;
    int file_fd_ = -1;
};

// Base for every test that touches the fixed paths: skips without a sandbox, and
// starts from an empty device root.
class device_test : public ::testing::Test {
  protected:
    void SetUp() override;
};

} // namespace devroot
