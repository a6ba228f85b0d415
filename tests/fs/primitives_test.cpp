#include "fs/directories.h"
#include "fs/primitives.h"
#include "support/boots.h"

#include <cerrno>
#include <functional>
#include <optional>

namespace {

using boots::state;
using devroot::make_dir;
using devroot::make_link;
using devroot::write_file;

struct primitive_case {
    std::string name;
    std::function<void()> arrange;
    std::function<void()> call;
    std::vector<std::string> messages;
    std::optional<int> thrown; // the errno value thrown, if any
    std::string path;          // whose state is checked afterwards
    std::string after;
};

const std::string dir = "/var/t";
const std::string long_target(1024, 'x');

class primitives : public devroot::device_test {};

TEST_F(primitives, report_and_throw_exactly_as_documented) {
    const std::vector<primitive_case> cases = {
        {"remove missing",
         {},
         [] { vell_fs::remove(dir + "/none"); },
         {},
         {},
         dir + "/none",
         boots::missing},
        {"remove under missing parent",
         {},
         [] { vell_fs::remove("/var/no/such/x"); },
         {},
         {},
         "/var/no",
         boots::missing},
        {"remove link keeps target",
         [] {
             write_file(dir + "/f", "data");
             make_link(dir + "/f", dir + "/l");
         },
         [] { vell_fs::remove(dir + "/l"); },
         {},
         {},
         dir + "/f",
         "=data"},
        {"remove dangling link",
         [] { make_link("/none", dir + "/l"); },
         [] { vell_fs::remove(dir + "/l"); },
         {},
         {},
         dir + "/l",
         boots::missing},
        {"remove directory",
         [] { make_dir(dir + "/d"); },
         [] { vell_fs::remove(dir + "/d"); },
         {"remove: could not remove /var/t/d"},
         EISDIR,
         dir + "/d",
         "(dir)"},
        {"create over dangling link",
         [] { make_link("/none", dir + "/l"); },
         [] { vell_fs::create_symlink("/new", dir + "/l"); },
         {"create_symlink: from /var/t/l to /new"},
         EEXIST,
         dir + "/l",
         "/none"},
        {"create to missing target",
         {},
         [] { vell_fs::create_symlink("../rel", dir + "/l"); },
         {},
         {},
         dir + "/l",
         "../rel"},
        {"read regular file",
         [] { write_file(dir + "/f", "data"); },
         [] { (void)vell_fs::read_symlink(dir + "/f"); },
         {"read_symlink: /var/t/f"},
         EINVAL,
         dir + "/f",
         "=data"},
    };
    for (const auto& c : cases) {
        devroot::clear();
        make_dir(dir);
        if (c.arrange) {
            c.arrange();
        }
        devroot::stderr_capture capture;
        std::optional<int> thrown;
        try {
            c.call();
        } catch (int error) {
            thrown = error;
        }
        EXPECT_EQ(capture.messages(), c.messages) << c.name;
        EXPECT_EQ(thrown, c.thrown) << c.name;
        EXPECT_EQ(state(c.path), c.after) << c.name;
    }
}

TEST_F(primitives, read_symlink_returns_the_stored_text_up_to_1024_bytes) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"../relative/UTC", "../relative/UTC"}, // not resolved
        {"/no/such/target", "/no/such/target"}, // dangling
        {long_target, long_target},             // exactly the buffer
        {long_target + "yz", long_target},      // cut, silently
    };
    for (const auto& [target, expected] : cases) {
        devroot::clear();
        make_link(target, dir + "/l");
        devroot::stderr_capture capture;
        EXPECT_EQ(vell_fs::read_symlink(dir + "/l"), expected);
        EXPECT_EQ(capture.messages(), std::vector<std::string>{});
    }
    EXPECT_EQ(vell_fs::read_symlink(dir + "/none"), "");
}

TEST_F(primitives, exists_follows_links) {
    make_dir(dir + "/d");
    make_link(dir + "/d", dir + "/to_dir");
    make_link(dir + "/none", dir + "/dangling");
    EXPECT_TRUE(vell_fs::exists(dir + "/to_dir"));
    EXPECT_FALSE(vell_fs::exists(dir + "/dangling"));
}

TEST_F(primitives, protect_directories_creates_nothing_and_says_nothing) {
    devroot::stderr_capture capture;
    protect_directories();
    EXPECT_EQ(capture.messages(), std::vector<std::string>{});
    EXPECT_EQ(state("/var/db"), boots::missing);
}

} // namespace
