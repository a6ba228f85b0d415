// The fixed paths of the program. Nothing is configurable: every path is a constant.
#pragma once

#include <string_view>

namespace vell_paths {

inline constexpr char timezone_dir[] = "/var/db/timezone/";
inline constexpr char tz_dir[] = "/var/db/timezone/tz/";
inline constexpr char tz_latest[] = "/var/db/timezone/tz_latest";
inline constexpr char zoneinfo_link[] = "/var/db/timezone/zoneinfo";
inline constexpr char icutz_link[] = "/var/db/timezone/icutz";
inline constexpr char localtime_link[] = "/var/db/timezone/localtime";
inline constexpr char default_zone[] = "America/Los_Angeles";
inline constexpr char default_localtime_target[] = "/var/db/timezone/zoneinfo/America/Los_Angeles";
inline constexpr char needs_cleanup[] = "/var/db/timezone/needs_cleanup";
inline constexpr char version_diff_record[] = "/var/db/timezone/TZVersionDiffRecord";
inline constexpr char system_zoneinfo[] = "/usr/share/zoneinfo.default";
inline constexpr char public_zoneinfo[] = "/usr/share/zoneinfo";
inline constexpr char system_icu[] = "/usr/share/icu";
inline constexpr char legacy_icutz_link[] = "/var/db/icutz";
inline constexpr char legacy_icu[] = "/var/db/icu";

// Prefix tests compare the first characters only, so their lengths matter.
inline constexpr std::string_view tz_dir_prefix = tz_dir;
inline constexpr std::string_view zoneinfo_link_prefix = zoneinfo_link;
inline constexpr std::string_view public_zoneinfo_prefix = public_zoneinfo;

} // namespace vell_paths
