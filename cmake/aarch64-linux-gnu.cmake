# Cross build for 64-bit ARM with Debian's cross compiler (g++-aarch64-linux-gnu), whose
# headers and libraries live in /usr/aarch64-linux-gnu. Built programs run under qemu-user,
# named explicitly so that no binfmt registration is needed on the build machine.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(TZLINKS_CROSS_TRIPLE aarch64-linux-gnu)
set(CMAKE_C_COMPILER ${TZLINKS_CROSS_TRIPLE}-gcc)
set(CMAKE_CXX_COMPILER ${TZLINKS_CROSS_TRIPLE}-g++)

set(CMAKE_FIND_ROOT_PATH /usr/${TZLINKS_CROSS_TRIPLE})
# Tools (python, pkg-config) come from the build machine; headers, libraries and CMake
# packages only from the target's tree, so no x86-64 library is ever linked in.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# -L makes the emulator load the target's dynamic loader and libraries from that tree.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L /usr/${TZLINKS_CROSS_TRIPLE})
