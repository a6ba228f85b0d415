// Whole boots of the real binary: the update decision, the failures of the start-up
// sequence, and the common runs in sequence on one device.
#include "support/boots.h"

namespace {

using namespace boots;
using devroot::write_file;

const std::string incompatible = "Symlink points at data incompatible with installed system";
const std::string locate = "Unable to locate data; resetting to system partition";
const std::string invalid = "Invalid current symlinks; resetting to system partition";
std::string not_newer(const std::string& latest, const std::string& current) {
    return "New update not compatible or older version: " + latest + " vs. " + current;
}

// The state of the links, marker and record that every row checks.
std::map<std::string, std::string> on(const std::string& version, const std::string& marker_state,
                                      const std::string& record_state) {
    const bool system = version.empty();
    return {{zoneinfo_link, system ? system_zoneinfo : update_dir(version) + "/zoneinfo"},
            {icutz_link, system ? missing : update_dir(version) + "/icutz"},
            {marker, marker_state},
            {record, record_state}};
}
const std::string made = "=";

// Makes the links name a data set, and tz_latest name another (empty: none).
std::function<void()> in_use(const std::string& current, const std::string& latest) {
    return [=] {
        if (!current.empty()) {
            relink(zoneinfo_link, update_dir(current) + "/zoneinfo");
            relink(icutz_link, update_dir(current) + "/icutz");
        }
        if (!latest.empty()) {
            relink(tz_latest, update_dir(latest));
        }
    };
}

const std::string cannot_remove = "remove: could not remove " + zoneinfo_link;
const std::string unlink_failed = "Unlink of zoneinfo softlink failed";
const std::string cannot_create =
    "create_symlink: from " + zoneinfo_link + " to " + system_zoneinfo;

class boot : public devroot::device_test {};

// The system data is 2016c.1.0 with ICU format 44l; 2016e.1.0 has format 46l.
TEST_F(boot, decides_between_current_and_latest) {
    // clang-format off
    const std::vector<boot_case> cases = {
        {"passes, no update; a stale marker goes", [] { write_file(marker, ""); }, {},
         on("", missing, missing)},
        {"passes on an update, no update named", in_use("2016d.1.0", ""), {},
         on("2016d.1.0", missing, missing)},
        {"fails (older), no update named", in_use("2016b.1.0", ""), {incompatible},
         on("", made, missing)},
        {"passes, latest is the current", in_use("2016d.1.0", "2016d.1.0"),
         {not_newer("2016d.1.0", "2016d.1.0")}, on("2016d.1.0", missing, missing)},
        {"fails, latest is the current", in_use("2016b.1.0", "2016b.1.0"),
         {incompatible, not_newer("2016b.1.0", "2016b.1.0")}, on("", made, missing)},
        {"passes on system, newer latest", in_use("", "2016d.1.0"), {},
         on("2016d.1.0", missing, "=2016c.1.0_2016d.1.0")},
        {"passes on an update, newer latest", in_use("2016d.1.0", "2016f.1.0"), {},
         on("2016f.1.0", made, "=2016d.1.0_2016f.1.0")},
        {"fails, newer latest", in_use("2016b.1.0", "2016d.1.0"), {incompatible},
         on("2016d.1.0", made, "=2016c.1.0_2016d.1.0")},
        {"fails; latest newer than current, older than system", in_use("2016a.1.0", "2016b.1.0"),
         {incompatible}, on("2016b.1.0", made, "=2016c.1.0_2016b.1.0")},
        {"newer latest of another ICU format", in_use("", "2016e.1.0"),
         {not_newer("2016e.1.0", "2016c.1.0")}, on("", missing, missing)},
        {"marker cannot be made: reported, the run goes on",
         [] { in_use("2016b.1.0", "2016d.1.0")(); write_file(marker + "/keep", ""); },
         {incompatible, "Cannot touch file " + marker}, // touched once only
         on("2016d.1.0", "(dir)", "=2016c.1.0_2016d.1.0")},
        {"current of another ICU format", in_use("2016e.1.0", ""), {incompatible},
         on("", made, missing)},
        {"current as new as the system",
         [] { devroot::update("2016c.1.0", "icutz44l.dat"); in_use("2016c.1.0", "")(); }, {},
         on("2016c.1.0", missing, missing)},
        {"current directory deleted",
         [] { in_use("2016d.1.0", "")(); std::filesystem::remove_all(update_dir("2016d.1.0")); },
         {"No ICU schema found for " + update_dir("2016d.1.0"), incompatible}, on("", made, missing)},
        {"an activation also removes a dangling legacy ICU link",
         [] { in_use("", "2016d.1.0")(); devroot::make_link("/none", "/var/db/icutz"); }, {},
         {{icutz_link, update_dir("2016d.1.0") + "/icutz"}, {"/var/db/icutz", missing}}},
        {"ICU link is a directory: activation fails, reset keeps the legacy link",
         [] { in_use("", "2016d.1.0")(); devroot::make_dir(icutz_link + "/x");
              devroot::make_link("/none", "/var/db/icutz"); },
         {"remove: could not remove " + icutz_link, "unlink of ICU softlink failed",
          "create_symlink: from " + icutz_link + " to " + update_dir("2016d.1.0") + "/icutz", locate,
          "remove: could not remove " + icutz_link, "unlink of ICU softlink failed"},
         {{zoneinfo_link, system_zoneinfo}, {icutz_link, "(dir)"}, {"/var/db/icutz", "/none"},
          {record, missing}}},
        {"unparsable latest is never newer",
         [] { devroot::update("next", "icutz44l.dat"); relink(tz_latest, update_dir("next")); },
         {"Cannot parse version string next, results.size() = 0", "Cannot parse version string next",
          not_newer("next", "2016c.1.0")}, on("", missing, missing)},
    };
    // clang-format on
    for (const auto& c : cases) {
        check(c);
    }
}

TEST_F(boot, falls_back_to_the_system_partition_on_failure) {
    // clang-format off
    const std::vector<boot_case> cases = {
        {"zoneinfo link missing, newer update activated",
         [] { std::filesystem::remove(zoneinfo_link); in_use("", "2016d.1.0")(); },
         {"Bad zoneinfo link ", invalid}, on("2016d.1.0", missing, "=2016c.1.0_2016d.1.0")},
        {"zoneinfo link names an update directory itself",
         [] { relink(zoneinfo_link, update_dir("2016d.1.0")); },
         {"Bad zoneinfo link " + update_dir("2016d.1.0"), invalid}, on("", missing, missing)},
        {"zoneinfo is a plain file",
         [] { std::filesystem::remove(zoneinfo_link); write_file(zoneinfo_link, ""); },
         {"read_symlink: " + zoneinfo_link, invalid}, on("", missing, missing)},
        {"tz_latest is a plain file", [] { in_use("2016d.1.0", "")(); write_file(tz_latest, ""); },
         {"read_symlink: " + tz_latest, locate}, on("", missing, missing)},
        {"tz_latest outside the tz directory", [] { relink(tz_latest, "2016d.1.0"); },
         {"vell_dataset::create_components: bad path 2016d.1.0", locate}, on("", missing, missing)},
        {"current version too large to convert",
         [] { relink(zoneinfo_link, update_dir("2016a.2147483648") + "/zoneinfo"); }, {locate},
         on("", missing, missing)},
        {"zoneinfo is a directory: no reset can succeed",
         [] { std::filesystem::remove(zoneinfo_link); devroot::make_dir(zoneinfo_link + "/UTC"); },
         {"read_symlink: " + zoneinfo_link, invalid, cannot_remove, unlink_failed, cannot_create,
          locate, cannot_remove, unlink_failed, cannot_create, "reset_to_system_partition failed"},
         {{zoneinfo_link, "(dir)"}, {localtime_link, zoneinfo_link + "/UTC"}}, 1},
        {"system version too large: no fallback, localtime still repaired",
         [] { in_use("2016d.1.0", "")(); write_file(system_zoneinfo + "/+VERSION", "99999999999a");
              std::filesystem::remove(localtime_link); },
         {locate, "reset_to_system_partition failed",
          "localtime link invalid; resetting to America/Los_Angeles"},
         {{zoneinfo_link, update_dir("2016d.1.0") + "/zoneinfo"}, {localtime_link, default_localtime}},
         1},
    };
    // clang-format on
    for (const auto& c : cases) {
        check(c);
    }
}

TEST_F(boot, first_boot_update_and_later_boot_in_sequence) {
    devroot::system_partition("2016c", "44l");
    boot_and_check({"links never made",
                    {},
                    {"Bad zoneinfo link ", invalid,
                     "localtime link invalid; resetting to America/Los_Angeles"},
                    on("", missing, missing)});
    EXPECT_EQ(state(localtime_link), default_localtime);
    devroot::update("2016d.1.0", "icutz44l.dat");
    relink(tz_latest, update_dir("2016d.1.0"));
    boot_and_check({"update installed", {}, {}, on("2016d.1.0", missing, "=2016c.1.0_2016d.1.0")});
    EXPECT_EQ(devroot::read_file(localtime_link), "TZif2 PST8PDT"); // reached through the update
    boot_and_check({"later boot",
                    {},
                    {not_newer("2016d.1.0", "2016d.1.0")},
                    on("2016d.1.0", missing, "=2016c.1.0_2016d.1.0")});
}

} // namespace
