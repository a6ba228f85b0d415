// libFuzzer target: aborts on any input that breaks fuzz_properties::version_order.
#include "properties.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string broken =
        fuzz_properties::version_order(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!broken.empty()) {
        std::fprintf(stderr, "version_order: %s\n", broken.c_str());
        std::abort();
    }
    return 0;
}
