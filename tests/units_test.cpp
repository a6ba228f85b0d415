// What no whole boot can show: the version fields themselves, the order of versions that
// no device pairs, and component pairs that the program never builds.
#include "dataset/vell_dataset.h"
#include "dataset/vell_icu.h"
#include "dataset/vell_zoneinfo.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <tuple>

TEST(vell_version, parses_whole_texts_only) {
    using fields = std::tuple<int, std::string, int, int>;
    const std::vector<std::pair<std::string, fields>> cases = {
        {"2016a", {2016, "a", -1, -1}},
        {"2016a.5", {2016, "a", 5, -1}},
        {"2016ab.12.3", {2016, "ab", 12, 3}},
        {"02016a.007", {2016, "a", 7, -1}},
        {"0a.2147483647.0", {0, "a", 2147483647, 0}},
        {"2016A", {-1, "", -1, -1}},
        {"2016a.1.0.5", {-1, "", -1, -1}},
        {" 2016a", {-1, "", -1, -1}},
        {"2016a.", {-1, "", -1, -1}},
        {"", {-1, "", -1, -1}}};
    for (const auto& [text, want] : cases) {
        vell_version v("2000z.9.9");
        v.parse(text); // replaces every field
        EXPECT_EQ(std::tie(v.year, v.letters, v.major, v.minor), want) << text;
    }
    for (const char* text : {"2147483648a", "2016a.2147483648", "2016a.1.99999999999"}) {
        EXPECT_THROW(vell_version{text}, std::out_of_range) << text;
    }
}

TEST(vell_version, orders_field_by_field) {
    const std::vector<std::string> chain = {"",          "0a",        "2016a",    "2016a.0",
                                            "2016a.0.0", "2016a.0.9", "2016a.1",  "2016a.1.0",
                                            "2016a.1.1", "2016a.2",   "2016a.10", "2016aa",
                                            "2016b",     "2016z",     "2016za",   "2017a"};
    for (std::size_t i = 0; i < chain.size(); ++i) {
        for (std::size_t j = 0; j < chain.size(); ++j) {
            EXPECT_EQ(vell_version(chain[i]) > vell_version(chain[j]), i > j)
                << chain[i] << " > " << chain[j];
            EXPECT_EQ(vell_version(chain[i]) == vell_version(chain[j]), i == j)
                << chain[i] << " == " << chain[j];
        }
    }
    EXPECT_TRUE(vell_version("2016a.01") == vell_version("2016a.1"));
}

TEST(vell_dataset, pairs_components_by_position_and_length) {
    const vell_dataset system;
    vell_dataset shorter;
    EXPECT_TRUE(shorter.compatible_with(system));
    shorter.components.pop_back();
    EXPECT_FALSE(shorter.compatible_with(system));
    EXPECT_FALSE(system.compatible_with(shorter));
    const vell_zoneinfo zoneinfo;
    const vell_icu icu;
    EXPECT_TRUE(zoneinfo.compatible_schema(icu));
    EXPECT_FALSE(icu.compatible_schema(zoneinfo));
}
