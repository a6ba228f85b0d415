// libFuzzer target: aborts on any input that breaks fuzz_properties::zoneinfo_link.
#include "properties.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string broken =
        fuzz_properties::zoneinfo_link(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!broken.empty()) {
        std::fprintf(stderr, "zoneinfo_link: %s\n", broken.c_str());
        std::abort();
    }
    return 0;
}
