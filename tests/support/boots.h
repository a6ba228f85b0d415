// Table-driven boots of the real binary: arrange a device, boot once, compare the
// messages and the state of the paths that matter.
#pragma once

#include "support/device_root.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace boots {

inline const std::string timezone_dir = "/var/db/timezone/";
inline const std::string zoneinfo_link = timezone_dir + "zoneinfo";
inline const std::string icutz_link = timezone_dir + "icutz";
inline const std::string localtime_link = timezone_dir + "localtime";
inline const std::string marker = timezone_dir + "needs_cleanup";
inline const std::string record = timezone_dir + "TZVersionDiffRecord";
inline const std::string tz_latest = timezone_dir + "tz_latest";
inline const std::string system_zoneinfo = "/usr/share/zoneinfo.default";
inline const std::string missing = "(missing)";
inline const std::string default_localtime = zoneinfo_link + "/America/Los_Angeles";

inline std::string update_dir(const std::string& version) {
    return timezone_dir + "tz/" + version;
}

// A link's target; "=content" for a regular file; "(dir)"; or "(missing)".
std::string state(const std::string& path);

// Replaces whatever is at path by a link to target.
void relink(const std::string& path, const std::string& target);

// A sound device: system data 2016c (ICU format 44l) in use through the links, a valid
// localtime link, no update named by tz_latest, and update directories 2016a.1.0,
// 2016b.1.0, 2016d.1.0 and 2016f.1.0 with format 44l, 2016e.1.0 with format 46l.
void sound_device();

struct boot_case {
    std::string name;
    std::function<void()> arrange;            // applied to the sound device
    std::vector<std::string> messages;        // without prefix and errno text
    std::map<std::string, std::string> after; // path -> state()
    int status = 0;
};

// Boots once from the sound device changed by arrange, and checks everything.
void check(const boot_case& c);
// Boots once from whatever is on disk, and checks everything.
void boot_and_check(const boot_case& c);

} // namespace boots
