#include "main/links.h"
#include "support/device_root.h"

namespace {

TEST(links, zoneinfo_target_gives_the_data_set_directory_or_is_refused) {
    const std::string bad = "(bad)";
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"/var/db/timezone/tz/2016b.1.0/zoneinfo", "/var/db/timezone/tz/2016b.1.0"},
        {"/var/db/timezone/tz/2016b.1.0/", "/var/db/timezone/tz/2016b.1.0"},
        {"/var/db/timezone/tz/a/b/zoneinfo", "/var/db/timezone/tz/a/b"},
        {"/var/db/timezone/tz/a/", "/var/db/timezone/tz/a"}, // shortest directory: 21 bytes
        {"/var/db/timezone/tz/2016b.1.0", bad},              // last slash ends the prefix
        {"/var/db/timezone/tz//zoneinfo", bad},              // last slash at index 20
        {"/var/db/timezone/tz/", bad},
        {"/var/db/timezone/tz/a", bad},
        {"/usr/share/zoneinfo.default", ""},
        {"/usr/share/zoneinfo.default/", bad},
        {"/usr/share/zoneinfo", bad},
        {"/VAR/db/timezone/tz/a/zoneinfo", bad},
        {"var/db/timezone/tz/a/zoneinfo", bad},
        {"", bad},
    };
    for (const auto& [target, expected] : cases) {
        devroot::stderr_capture capture;
        std::string result;
        try {
            result = dataset_path_from_zoneinfo_link(target);
        } catch (int value) {
            EXPECT_EQ(value, -1);
            result = bad;
        }
        EXPECT_EQ(result, expected) << target;
        EXPECT_EQ(capture.messages(), expected == bad
                                          ? std::vector<std::string>{"Bad zoneinfo link " + target}
                                          : std::vector<std::string>{})
            << target;
    }
}

} // namespace
