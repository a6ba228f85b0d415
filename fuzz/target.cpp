// libFuzzer target: two version texts, one per line, are ordered one way only, and neither
// way exactly when they are equal.
#include "version/vell_version.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::size_t cut = std::min(input.find('\n'), size);
    try {
        const vell_version a(input.substr(0, cut)), b(input.substr(std::min(cut + 1, size)));
        if ((a > b && b > a) || (a == b) == (a > b || b > a)) {
            std::abort();
        }
    } catch (const std::out_of_range&) { // too large to convert: refused, never compared
    }
    return 0;
}
