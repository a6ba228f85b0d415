// What no boot can show: the order of versions that no device pairs, numbers too large to
// convert, component pairs that the program never builds, and that the patterns' own traits
// change no match.
#include "dataset/vell_dataset.h"
#include "version/vell_regex.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <tuple>

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

// In the classic locale, for every byte: its primary key, and whether it is in the empty
// class, in [[:alpha:]] and in \w.
TEST(units, regex_traits_answer_as_the_standard_ones) {
    const std::regex_traits<char> standard;
    const vell_regex_traits own;
    const std::string alpha = "alpha", word = "w";
    for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        EXPECT_EQ(own.transform_primary(&byte, &byte + 1),
                  standard.transform_primary(&byte, &byte + 1))
            << value;
        for (const auto mask : {vell_regex_traits::char_class_type(),
                                standard.lookup_classname(alpha.begin(), alpha.end()),
                                standard.lookup_classname(word.begin(), word.end())}) {
            EXPECT_EQ(own.isctype(byte, mask), standard.isctype(byte, mask)) << value;
        }
    }
}

// Every text of up to four characters over digits, both cases, the dot, the ICU formats'
// letters and a byte above 127: alone, after a version's year and letters, and inside an ICU
// file name.
TEST(units, patterns_match_as_with_std_regex) {
    std::vector<std::string> texts = {""};
    for (std::size_t i = 0; texts[i].size() < 4; ++i) {
        for (const char byte : std::string("09aZ.lbe\xe9")) {
            texts.push_back(texts[i] + byte);
        }
    }
    const vell_regex own[] = {vell_regex(vell_patterns::version),
                              vell_regex(vell_patterns::icu_data_file)};
    const std::regex standard[] = {std::regex(vell_patterns::version),
                                   std::regex(vell_patterns::icu_data_file)};
    for (const std::string& text : texts) {
        for (const std::string& framed : {text, "2016a" + text, "icutz" + text + ".dat"}) {
            for (std::size_t pattern = 0; pattern < 2; ++pattern) {
                EXPECT_EQ(groups(framed, own[pattern]), groups(framed, standard[pattern]))
                    << framed;
            }
        }
    }
}
