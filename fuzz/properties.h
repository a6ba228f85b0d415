// Properties the fuzz targets check, shared with the test that replays their corpus.
// Each returns what was violated, or an empty string.
#pragma once

#include "main/links.h"
#include "version/vell_version.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz_properties {

// Up to three version texts, one per line, compared pairwise and as a triple. A number
// too large for 32 bits is refused by the parser and not compared.
inline std::string version_order(std::string_view input) {
    std::vector<vell_version> v;
    for (std::size_t start = 0; v.size() < 3 && start <= input.size();) {
        const std::size_t end = std::min(input.find('\n', start), input.size());
        try {
            v.emplace_back(std::string(input.substr(start, end - start)));
        } catch (const std::out_of_range&) {
            return {};
        }
        start = end + 1;
    }
    while (v.size() < 3) {
        v.push_back(v.back());
    }
    for (const auto& a : v) {
        if (a > a) {
            return "not irreflexive";
        }
        for (const auto& b : v) {
            if (a > b && b > a) {
                return "not asymmetric";
            }
            if ((a == b) != (!(a > b) && !(b > a))) {
                return "not consistent with equality";
            }
            for (const auto& c : v) {
                if (a > b && b > c && !(a > c)) {
                    return "not transitive";
                }
            }
        }
    }
    return {};
}

// The data-set directory is empty (the system form, exactly), or the update prefix and
// more, cut from the front of the target; anything else must throw.
inline std::string zoneinfo_link(std::string_view input) {
    const std::string target(input);
    std::string result;
    try {
        result = dataset_path_from_zoneinfo_link(target);
    } catch (int) {
        return {};
    }
    if (result.empty()) {
        return target == "/usr/share/zoneinfo.default" ? "" : "empty result for another target";
    }
    if (result.size() < 21 || !result.starts_with("/var/db/timezone/tz/") ||
        !target.starts_with(result)) {
        return "result is not an update directory cut from the target";
    }
    return {};
}

} // namespace fuzz_properties
