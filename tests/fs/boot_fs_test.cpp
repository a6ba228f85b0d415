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
const std::string migrate_line = "Could not migrate /var/db/icutz to /var/db/timezone/icutz";
const std::string correcting = "Correcting localtime link to " + zoneinfo_link;

std::function<void()> localtime_to(const std::string& target) {
    return [target] { relink(localtime_link, target); };
}
std::function<void()> localtime_is(const std::string& file) {
    return [file] {
        std::filesystem::remove(localtime_link);
        write_file(localtime_link + file, "");
    };
}
std::map<std::string, std::string> localtime_after(const std::string& target) {
    return {{localtime_link, target}};
}
const auto reset = localtime_after(default_localtime);

class boot_fs : public devroot::device_test {};

TEST_F(boot_fs, localtime_link_is_kept_rewritten_or_reset) {
    // clang-format off
    const std::vector<boot_case> cases = {
        {"missing", [] { std::filesystem::remove(localtime_link); }, {reset_line}, reset},
        {"plain file", localtime_is(""), {"read_symlink: " + localtime_link, reset_line}, reset},
        {"empty directory", [] { std::filesystem::remove(localtime_link); make_dir(localtime_link); },
         {"read_symlink: " + localtime_link, reset_line}, reset},
        {"through zoneinfo, zone missing", localtime_to(zoneinfo_link + "/No/Zone"), {},
         localtime_after(zoneinfo_link + "/No/Zone")},
        {"prefix without a slash", localtime_to(zoneinfo_link + "X"), {},
         localtime_after(zoneinfo_link + "X")},
        {"public path, zone present", localtime_to("/usr/share/zoneinfo/UTC"), {correcting + "/UTC"},
         localtime_after(zoneinfo_link + "/UTC")},
        {"public path itself", localtime_to("/usr/share/zoneinfo"), {correcting},
         localtime_after(zoneinfo_link)},
        {"public path, zone missing", localtime_to("/usr/share/zoneinfo/Mars"),
         {correcting + "/Mars", reset_line}, reset},
        {"system partition path", localtime_to("/usr/share/zoneinfo.default/UTC"),
         {correcting + ".default/UTC", reset_line}, reset},
        {"relative, though it resolves", localtime_to("zoneinfo/UTC"), {reset_line}, reset},
        {"elsewhere", localtime_to("/etc/UTC"), {reset_line}, reset},
        {"default cannot be made", localtime_is("/keep"),
         {"read_symlink: " + localtime_link, reset_line,
          "create_symlink: from " + localtime_link + " to " + default_localtime,
          "correct_localtime_link failed"}, localtime_after("(dir)"), 1},
    };
    // clang-format on
    for (const auto& c : cases) {
        check(c);
    }
}

TEST_F(boot_fs, legacy_icu_link_is_migrated_then_removed) {
    // clang-format off
    const std::vector<boot_case> cases = {
        {"no legacy link", {}, {}, {{icutz_link, missing}}},
        {"relative target copied unchanged", [] { make_link("timezone/tz", legacy); }, {},
         {{icutz_link, "timezone/tz"}, {legacy, missing}}},
        {"present link kept", [] { make_link("/var/db", legacy); make_link("/usr", icutz_link); },
         {}, {{icutz_link, "/usr"}, {legacy, missing}}},
        {"legacy is a plain file", [] { write_file(legacy, "x"); },
         {"read_symlink: " + legacy, migrate_line}, {{icutz_link, missing}, {legacy, missing}}},
        {"legacy is a directory", [] { make_dir(legacy); },
         {"read_symlink: " + legacy, migrate_line, "remove: could not remove " + legacy,
          "Could not remove /var/db/icutz"}, {{icutz_link, missing}, {legacy, "(dir)"}}},
        {"present link dangling", [] { make_link("/var/db", legacy); make_link("/no", icutz_link); },
         {"create_symlink: from " + icutz_link + " to /var/db", migrate_line},
         {{icutz_link, "/no"}, {legacy, missing}}},
        {"legacy link dangling", [] { make_link("/none", legacy); }, {},
         {{icutz_link, missing}, {legacy, "/none"}}},
    };
    // clang-format on
    for (const auto& c : cases) {
        check(c);
    }
}

} // namespace
