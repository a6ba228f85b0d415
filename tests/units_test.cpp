// What no boot can show: the order of versions that no device pairs, numbers too large to
// convert, and component pairs that the program never builds.
#include "dataset/vell_dataset.h"

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
