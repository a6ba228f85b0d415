// libFuzzer target: both patterns, compiled with their own traits, match the input (alone and
// as an ICU file's name) exactly as with std::regex; two version texts, one per line, are
// ordered one way at most, and neither way exactly when equal.
#include "version/vell_regex.h"
#include "version/vell_version.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    static const vell_regex own[] = {vell_regex(vell_patterns::version),
                                     vell_regex(vell_patterns::icu_data_file)};
    static const std::regex standard[] = {std::regex(vell_patterns::version),
                                          std::regex(vell_patterns::icu_data_file)};
    for (std::size_t i = 0; i < 2; ++i) {
        for (const std::string& text : {input, "icutz" + input + ".dat"}) {
            std::smatch a, b; // no match leaves them empty
            std::regex_match(text, a, own[i]);
            std::regex_match(text, b, standard[i]);
            if (std::vector<std::string>(a.begin(), a.end()) !=
                std::vector<std::string>(b.begin(), b.end())) {
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
