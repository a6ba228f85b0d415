// libFuzzer target: the first line of the input is a zoneinfo link target, the next ones up
// to three version texts. Aborts when the link resolution or the version order breaks.
#include "main/links.h"
#include "version/vell_version.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
    std::string target, text;
    std::getline(lines, target);
    try { // empty for the system target only, else an update directory cut from the front
        const std::string dir = dataset_path_from_zoneinfo_link(target);
        if (dir.empty() ? target != "/usr/share/zoneinfo.default"
                        : dir.size() < 21 || !dir.starts_with("/var/db/timezone/tz/") ||
                              !target.starts_with(dir)) {
            std::abort();
        }
    } catch (int) {
    }
    std::vector<vell_version> v;
    try {
        while (v.size() < 3 && std::getline(lines, text)) {
            v.emplace_back(text);
        }
    } catch (const std::out_of_range&) {
        return 0;
    }
    for (const auto& a : v) { // a strict order whose incomparable pairs are the equal ones
        for (const auto& b : v) {
            for (const auto& c : v) {
                if ((a > b && b > a) || (a == b) == (a > b || b > a) ||
                    (a > b && b > c && !(a > c))) {
                    std::abort();
                }
            }
        }
    }
    return 0;
}
