#include "support/device_root.h"
#include "version/vell_version.h"

#include <stdexcept>

namespace {

struct parse_case {
    std::string text;
    int year;
    std::string letters;
    int major;
    int minor;
};

std::vector<std::string> unparsed(const std::string& text) {
    return {"Cannot parse version string " + text + ", results.size() = 0",
            "Cannot parse version string " + text};
}

TEST(vell_version, parses_whole_texts_and_warns_twice_on_anything_else) {
    const std::vector<parse_case> cases = {
        {"2016a", 2016, "a", -1, -1},
        {"2016a.5", 2016, "a", 5, -1},
        {"2016a.1.0", 2016, "a", 1, 0},
        {"2016ab.12.3", 2016, "ab", 12, 3},
        {"02016a.007", 2016, "a", 7, -1},
        {"2016a.2147483647", 2016, "a", 2147483647, -1},
        {"2016A", -1, "", -1, -1},
        {"2016a.1.0.5", -1, "", -1, -1},
        {"2016a.1.0/", -1, "", -1, -1},
        {" 2016a", -1, "", -1, -1},
        {"2016a ", -1, "", -1, -1},
        {".1.0", -1, "", -1, -1},
        {"", -1, "", -1, -1},
        {"2016a.", -1, "", -1, -1},
    };
    for (const auto& c : cases) {
        vell_version version("2000z.9.9"); // parse replaces every field
        devroot::stderr_capture capture;
        version.parse(c.text);
        const auto messages = capture.messages();
        EXPECT_EQ(messages, c.year < 0 ? unparsed(c.text) : std::vector<std::string>{}) << c.text;
        EXPECT_EQ(version.year, c.year) << c.text;
        EXPECT_EQ(version.letters, c.letters) << c.text;
        EXPECT_EQ(version.major, c.major) << c.text;
        EXPECT_EQ(version.minor, c.minor) << c.text;
    }
}

TEST(vell_version, numbers_beyond_32_bits_throw_out_of_range) {
    for (const char* text : {"2147483648a", "2016a.2147483648", "2016a.1.99999999999"}) {
        EXPECT_THROW(vell_version{text}, std::out_of_range) << text;
    }
}

TEST(vell_version, orders_field_by_field) {
    // Each list is strictly increasing.
    const std::vector<std::vector<std::string>> chains = {
        {"", "0a", "2016a", "2016a.0", "2016a.0.0", "2016a.0.9", "2016a.1", "2016a.1.0",
         "2016a.1.1", "2016a.2", "2016aa", "2016b", "2016z", "2016za", "2017a", "10000a"},
        {"2016a.5", "2016a.10"}, // numbers, not texts
    };
    for (const auto& chain : chains) {
        for (std::size_t i = 0; i < chain.size(); ++i) {
            devroot::stderr_capture quiet;
            const vell_version a(chain[i]);
            for (std::size_t j = 0; j < chain.size(); ++j) {
                const vell_version b(chain[j]);
                EXPECT_EQ(a > b, i > j) << chain[i] << " > " << chain[j];
                EXPECT_EQ(a == b, i == j) << chain[i] << " == " << chain[j];
            }
        }
    }
    devroot::stderr_capture quiet;
    EXPECT_TRUE(vell_version("2016a.01") == vell_version("2016a.1"));
    EXPECT_FALSE(vell_version("2016a.01") > vell_version("2016a.1"));
    EXPECT_TRUE(vell_version("garbage") == vell_version());
}

} // namespace
