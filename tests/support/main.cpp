#include "support/device_root.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Before any test, while the process still has one thread, as unshare(2) requires.
    devroot::enter();
    if (!devroot::available()) {
        std::fprintf(stderr, "device-root tests will be skipped: %s\n",
                     devroot::unavailable_reason().c_str());
    }
    return RUN_ALL_TESTS();
}
