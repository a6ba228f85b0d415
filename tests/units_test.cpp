// What no boot can show: the order of versions that no device pairs, numbers too large to
// convert, component pairs that the program never builds; and that the patterns' own
// traits change no match.
#include "dataset/vell_dataset.h"
#include "version/vell_regex.h"

#include <gtest/gtest.h>
#include <stdexcept>

TEST(units, version_order_and_component_pairs) {
    const std::vector<std::string> texts = {
        "2016A",     "0a",       "2016a",  "2016a.0", "2016a.0.9", "2016a.1", "2016a.1.0",
        "2016a.1.1", "2016a.10", "2016aa", "2016b",   "2016za",    "2017a",   "02017a.2147483647"};
    const std::vector<vell_version> chain(texts.begin(),
                                          texts.end()); // strictly increasing; unset first
    for (std::size_t i = 0; i < chain.size(); ++i) {
        for (std::size_t j = 0; j < chain.size(); ++j) {
            EXPECT_EQ(std::pair(chain[i] > chain[j], chain[i] == chain[j]),
                      std::pair(i > j, i == j))
                << i << " " << j;
        }
    }
    EXPECT_EQ(vell_version("2016a.01"), vell_version("2016a.1"));
    EXPECT_EQ(vell_version("2016.1"), vell_version()); // letters are required
    EXPECT_THROW(vell_version("2016a.2147483648"), std::out_of_range);
    const vell_dataset system;
    vell_dataset shorter;
    shorter.components.pop_back();
    EXPECT_FALSE(shorter.compatible_with(system) || system.compatible_with(shorter));
    EXPECT_EQ(std::pair(system.components[0]->compatible_schema(*system.components[1]),
                        system.components[1]->compatible_schema(*system.components[0])),
              std::pair(true, false)); // zoneinfo takes any component; ICU only its own kind
}

// The groups of a whole match, none when the text does not match.
template <typename Regex>
std::vector<std::string> groups(const std::string& text, const Regex& pattern) {
    std::smatch match;
    std::regex_match(text, match, pattern);
    return {match.begin(), match.end()};
}

// Every text of up to four bytes over digits, both cases, '.', the ICU formats' letters and a
// byte above 127, alone and in an ICU file's name: the same matches and groups as std::regex.
TEST(units, patterns_match_as_with_std_regex) {
    std::vector<std::string> texts = {""};
    for (std::size_t i = 0; texts[i].size() < 4; ++i) {
        for (const char byte : std::string("09aZ.lbe\xe9")) {
            texts.push_back(texts[i] + byte);
        }
    }
    for (const char* pattern : {vell_patterns::version, vell_patterns::icu_data_file}) {
        const vell_regex own(pattern);
        const std::regex standard(pattern);
        for (const std::string& text : texts) {
            const std::string file = "icutz" + text + ".dat";
            EXPECT_EQ(groups(text, own), groups(text, standard)) << text;
            EXPECT_EQ(groups(file, own), groups(file, standard)) << file;
        }
    }
}
