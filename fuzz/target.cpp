// libFuzzer target: two version texts, one per line, are ordered one way only, and neither
// way exactly when they are equal; and the patterns match the whole input, alone and inside
// an ICU file name, with the same groups as with std::regex.
#include "version/vell_regex.h"
#include "version/vell_version.h"

#include <cstdint>
#include <cstdlib>
#include <regex>
#include <stdexcept>
#include <tuple>
#include <vector>

// Whether text matches, and where each group is (nothing when it does not match).
template <typename Regex>
std::vector<std::tuple<bool, long, long>> groups(const std::string& text, const Regex& pattern) {
    std::smatch match;
    std::regex_match(text, match, pattern);
    std::vector<std::tuple<bool, long, long>> found;
    for (std::size_t i = 0; i < match.size(); ++i) {
        found.emplace_back(match[i].matched, match.position(i), match.length(i));
    }
    return found;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    static const vell_regex own[] = {vell_regex(vell_patterns::version),
                                     vell_regex(vell_patterns::icu_data_file)};
    static const std::regex standard[] = {std::regex(vell_patterns::version),
                                          std::regex(vell_patterns::icu_data_file)};
    for (const std::string& text : {input, "icutz" + input + ".dat"}) {
        for (std::size_t pattern = 0; pattern < 2; ++pattern) {
            if (groups(text, own[pattern]) != groups(text, standard[pattern])) {
                std::abort();
            }
        }
    }
    const std::size_t cut = std::min(input.find('\n'), size);
    try {
        const vell_version a(input.substr(0, cut)), b(input.substr(std::min(cut + 1, size)));
        if ((a > b && b > a) || (a == b) == (a > b || b > a)) {
            std::abort();
        }
    } catch (const std::out_of_range&) { // too large to convert: refused, never compared
    }
    return 0;
}
