// libFuzzer target: aborts on any input that breaks the property named by
// FUZZ_PROPERTY (one of fuzz_properties' checks; each target is this file built once).
#include "properties.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#define FUZZ_STRINGIFY(name) #name
#define FUZZ_NAME(name) FUZZ_STRINGIFY(name)

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string broken =
        fuzz_properties::FUZZ_PROPERTY(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!broken.empty()) {
        std::fprintf(stderr, "%s: %s\n", FUZZ_NAME(FUZZ_PROPERTY), broken.c_str());
        std::abort();
    }
    return 0;
}
