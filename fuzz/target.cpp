// libFuzzer target: two version texts, one per line, are ordered one way only, and neither
// way exactly when they are equal; and both patterns, with their own traits, match the input
// (alone and in an ICU file's name) exactly as with std::regex.
#include "version/vell_regex.h"
#include "version/vell_version.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

// The groups of a whole match, none when the text does not match.
template <typename Regex>
std::vector<std::string> groups(const std::string& text, const Regex& pattern) {
    std::smatch match;
    std::regex_match(text, match, pattern);
    return {match.begin(), match.end()};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    static const vell_regex own[] = {vell_regex(vell_patterns::version),
                                     vell_regex(vell_patterns::icu_data_file)};
    static const std::regex standard[] = {std::regex(vell_patterns::version),
                                          std::regex(vell_patterns::icu_data_file)};
    for (const std::string& text : {input, "icutz" + input + ".dat"}) {
        for (std::size_t i = 0; i < 2; ++i) {
            if (groups(text, own[i]) != groups(text, standard[i])) {
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
