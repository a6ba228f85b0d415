// The local-time repair and the legacy ICU link migration, seen through whole boots of a
// device whose data-set links are sound, so that only these steps speak.
#include "support/boots.h"

namespace {

using namespace boots;
using devroot::make_dir;
using devroot::make_link;
using devroot::write_file;

const std::string legacy = "/var/db/icutz";
const std::string reset_line = "localtime link invalid; resetting to America/Los_Angeles";

class boot_fs : public devroot::device_test {};

TEST_F(boot_fs, localtime_link_is_kept_rewritten_or_reset) {
    const auto localtime_to = [](std::string target) {
        return [target] { relink(localtime_link, target); };
    };
    const std::vector<boot_case> cases = {
        {"missing",
         [] { std::filesystem::remove(localtime_link); },
         {reset_line},
         {{localtime_link, default_localtime}}},
        {"plain file",
         [] {
             std::filesystem::remove(localtime_link);
             write_file(localtime_link, "x");
         },
         {"read_symlink: " + localtime_link, reset_line},
         {{localtime_link, default_localtime}}},
        {"empty directory",
         [] {
             std::filesystem::remove(localtime_link);
             make_dir(localtime_link);
         },
         {"read_symlink: " + localtime_link, reset_line},
         {{localtime_link, default_localtime}}},
        {"through zoneinfo_link, missing zone",
         localtime_to(zoneinfo_link + "/No/Such/Zone"),
         {},
         {{localtime_link, zoneinfo_link + "/No/Such/Zone"}}},
        {"prefix without a slash",
         localtime_to(zoneinfo_link + "X"),
         {},
         {{localtime_link, zoneinfo_link + "X"}}},
        {"public path, zone present",
         localtime_to("/usr/share/zoneinfo/UTC"),
         {"Correcting localtime link to " + zoneinfo_link + "/UTC"},
         {{localtime_link, zoneinfo_link + "/UTC"}}},
        {"public path itself",
         localtime_to("/usr/share/zoneinfo"),
         {"Correcting localtime link to " + zoneinfo_link},
         {{localtime_link, zoneinfo_link}}},
        {"public path, zone missing",
         localtime_to("/usr/share/zoneinfo/Mars/Base"),
         {"Correcting localtime link to " + zoneinfo_link + "/Mars/Base", reset_line},
         {{localtime_link, default_localtime}}},
        {"system partition path",
         localtime_to("/usr/share/zoneinfo.default/UTC"),
         {"Correcting localtime link to /var/db/timezone/zoneinfo.default/UTC", reset_line},
         {{localtime_link, default_localtime}}},
        {"relative, though it resolves",
         localtime_to("zoneinfo/UTC"),
         {reset_line},
         {{localtime_link, default_localtime}}},
        {"elsewhere",
         localtime_to("/etc/UTC"),
         {reset_line},
         {{localtime_link, default_localtime}}},
        {"default cannot be made",
         [] {
             std::filesystem::remove(localtime_link);
             write_file(localtime_link + "/keep", "x");
         },
         {"read_symlink: " + localtime_link, reset_line,
          "create_symlink: from " + localtime_link + " to " + default_localtime,
          "correct_localtime_link failed"},
         {{localtime_link, "(dir)"}},
         1},
    };
    for (const auto& c : cases) {
        check(c);
    }
}

TEST_F(boot_fs, legacy_icu_link_is_migrated_then_removed) {
    const std::string migrate_line = "Could not migrate /var/db/icutz to /var/db/timezone/icutz";
    const std::vector<boot_case> cases = {
        {"no legacy link", {}, {}, {{icutz_link, missing}}},
        {"relative target copied unchanged",
         [] { make_link("timezone/tz", legacy); },
         {},
         {{icutz_link, "timezone/tz"}, {legacy, missing}}},
        {"present link kept",
         [] {
             make_link("/var/db", legacy);
             make_link("/usr/share/icu", icutz_link);
         },
         {},
         {{icutz_link, "/usr/share/icu"}, {legacy, missing}}},
        {"legacy is a plain file",
         [] { write_file(legacy, "x"); },
         {"read_symlink: " + legacy, migrate_line},
         {{icutz_link, missing}, {legacy, missing}}},
        {"legacy is a directory",
         [] { make_dir(legacy); },
         {"read_symlink: " + legacy, migrate_line, "remove: could not remove " + legacy,
          "Could not remove /var/db/icutz"},
         {{icutz_link, missing}, {legacy, "(dir)"}}},
        {"present link dangling",
         [] {
             make_link("/var/db", legacy);
             make_link("/none", icutz_link);
         },
         {"create_symlink: from " + icutz_link + " to /var/db", migrate_line},
         {{icutz_link, "/none"}, {legacy, missing}}},
        {"legacy link dangling",
         [] { make_link("/none", legacy); },
         {},
         {{icutz_link, missing}, {legacy, "/none"}}},
    };
    for (const auto& c : cases) {
        check(c);
    }
}

} // namespace
