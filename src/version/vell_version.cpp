#include "version/vell_version.h"

#include "version/vell_regex.h"

#include <err.h>
#include <regex>
#include <stdexcept>
#include <tuple>

namespace {

// A whole match of the pattern below: the match itself and its four groups.
constexpr std::size_t match_entries = 5;

// Built once per process: the program runs at every boot.
const vell_regex& version_pattern() {
    static const vell_regex pattern(vell_patterns::version, vell_regex::ECMAScript);
    return pattern;
}

// An absent group has empty text, which std::stoi refuses; that means -1.
// A value beyond 32 bits throws std::out_of_range, which is left to the caller.
std::int32_t optional_number(const std::string& digits) {
    try {
        return std::stoi(digits);
    } catch (const std::invalid_argument&) {
        return -1;
    }
}

} // namespace

vell_version::vell_version(const std::string& text) {
    parse(text);
}

void vell_version::parse(const std::string& text) {
    try {
        std::smatch results;
        if (!std::regex_match(text, results, version_pattern()) ||
            results.size() != match_entries) {
            warn("Cannot parse version string %s, results.size() = %d", text.c_str(),
                 static_cast<int>(results.size()));
            throw std::invalid_argument("no match");
        }
        // Converted into locals first so that an out-of-range number leaves no half-set value.
        const std::int32_t parsed_year = std::stoi(results[1].str());
        const std::int32_t parsed_major = optional_number(results[3].str());
        const std::int32_t parsed_minor = optional_number(results[4].str());
        year = parsed_year;
        letters = results[2].str();
        major = parsed_major;
        minor = parsed_minor;
    } catch (const std::invalid_argument&) {
        warn("Cannot parse version string %s", text.c_str());
        *this = vell_version();
    }
}

bool vell_version::operator>(const vell_version& other) const {
    // Lexicographic over the fields in declaration order; letters compare as byte strings.
    return std::tie(year, letters, major, minor) >
           std::tie(other.year, other.letters, other.major, other.minor);
}
