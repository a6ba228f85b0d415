#include "support/boots.h"

#include <filesystem>
#include <sys/stat.h>

namespace boots {

std::string state(const std::string& path) {
    struct stat st {};
    if (lstat(path.c_str(), &st) != 0) {
        return missing;
    }
    if (S_ISLNK(st.st_mode)) {
        return devroot::link(path);
    }
    return S_ISDIR(st.st_mode) ? "(dir)" : "=" + devroot::read_file(path);
}

void relink(const std::string& path, const std::string& target) {
    std::filesystem::remove_all(path);
    devroot::make_link(target, path);
}

void sound_device() {
    devroot::system_partition("2016c", "44l");
    for (const char* version : {"2016a.1.0", "2016b.1.0", "2016d.1.0", "2016f.1.0"}) {
        devroot::update(version, "icutz44l.dat");
    }
    devroot::update("2016e.1.0", "icutz46l.dat");
    devroot::make_link(system_zoneinfo, zoneinfo_link);
    devroot::make_link(zoneinfo_link + "/UTC", localtime_link);
}

void boot_and_check(const boot_case& c) {
    const devroot::run_result result = devroot::run_tzlinks();
    EXPECT_EQ(result.messages, c.messages) << c.name << "\n" << result.output;
    EXPECT_EQ(result.status, c.status) << c.name;
    for (const auto& [path, expected] : c.after) {
        EXPECT_EQ(state(path), expected) << c.name << ": " << path;
    }
}

void check(const boot_case& c) {
    devroot::clear();
    sound_device();
    if (c.arrange) {
        c.arrange();
    }
    boot_and_check(c);
}

} // namespace boots
