// What whole boots cannot show of the primitives: the exact bounds and values.
#include "fs/directories.h"
#include "fs/primitives.h"
#include "support/boots.h"

#include <cerrno>

namespace {

using boots::state;
using strings = std::vector<std::string>;
const std::string dir = "/var/t";

class primitives : public devroot::device_test {};

TEST_F(primitives, read_symlink_returns_the_stored_text_up_to_1024_bytes) {
    const std::string bytes_1024(1024, 'x');
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"../relative/UTC", "../relative/UTC"}, {"/no/such/target", "/no/such/target"},
        {bytes_1024, bytes_1024},               {bytes_1024 + "yz", bytes_1024},
    };
    // clang-format on
    for (const auto& [target, expected] : cases) {
        devroot::clear();
        devroot::make_link(target, dir + "/l");
        devroot::stderr_capture capture;
        EXPECT_EQ(vell_fs::read_symlink(dir + "/l"), expected);
        EXPECT_EQ(capture.messages(), strings{});
    }
    EXPECT_EQ(vell_fs::read_symlink("/var/no/such/link"), "");
}

TEST_F(primitives, failures_throw_errno_after_reporting) {
    devroot::make_dir(dir + "/d");
    devroot::make_link("/none", dir + "/l");
    devroot::stderr_capture capture;
    const auto thrown = [](const auto& call) {
        try {
            call();
        } catch (int error) {
            return error;
        }
        return 0;
    };
    EXPECT_EQ(thrown([] { vell_fs::remove(dir + "/d"); }), EISDIR);
    EXPECT_EQ(thrown([] { vell_fs::create_symlink("/new", dir + "/l"); }), EEXIST);
    EXPECT_EQ(thrown([] { vell_fs::remove("/var/no/such/x"); }), 0);
    EXPECT_EQ(capture.messages(), (strings{"remove: could not remove /var/t/d",
                                           "create_symlink: from /var/t/l to /new"}));
    EXPECT_FALSE(vell_fs::exists(dir + "/l"));
    EXPECT_TRUE(vell_fs::exists(dir));
}

TEST_F(primitives, remove_takes_the_link_not_its_target) {
    devroot::write_file(dir + "/f", "data");
    devroot::make_link(dir + "/f", dir + "/l");
    vell_fs::remove(dir + "/l");
    EXPECT_EQ(state(dir + "/l"), boots::missing);
    EXPECT_EQ(state(dir + "/f"), "=data");
}

TEST_F(primitives, protect_directories_creates_nothing_and_says_nothing) {
    devroot::stderr_capture capture;
    protect_directories();
    EXPECT_EQ(capture.messages(), strings{});
    EXPECT_EQ(state("/var/db"), boots::missing);
}

} // namespace
