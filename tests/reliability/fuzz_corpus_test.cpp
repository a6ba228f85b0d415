// Every stored fuzz input, seeds and past findings alike, replayed through the
// properties its target checks, so that a fixed finding stays fixed.
#include "../../fuzz/properties.h"
#include "support/device_root.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;

const fs::path corpus = fs::path(__FILE__).parent_path() / ".." / ".." / "fuzz" / "corpus";

struct target {
    const char* name;
    std::string (*broken)(std::string_view);
};

TEST(fuzz_corpus, every_stored_input_keeps_its_properties) {
    for (const target& t : {target{"version_order", fuzz_properties::version_order},
                            target{"zoneinfo_link", fuzz_properties::zoneinfo_link}}) {
        int inputs = 0;
        for (const auto& entry : fs::directory_iterator(corpus / t.name)) {
            const std::string input = devroot::read_file(entry.path());
            const devroot::stderr_capture warnings; // malformed texts warn, as they should
            EXPECT_EQ(t.broken(input), "") << entry.path();
            ++inputs;
        }
        EXPECT_GT(inputs, 0) << "no stored inputs for " << t.name;
    }
}

} // namespace
