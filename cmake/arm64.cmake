# Cross-builds for 64-bit ARM, a Raspberry Pi for instance, on a Debian with the libraries of both kinds of machine
# (scripts/setup.sh arm64). What the build runs of its own programs, it runs under QEMU.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static)

# The toolkit's own tools must be those of this machine.
set(QT_HOST_PATH /usr)
file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/*/cmake/Qt6CoreTools)
list(FILTER QT_HOST_PATH_CMAKE_DIR EXCLUDE REGEX ${CMAKE_LIBRARY_ARCHITECTURE})
list(TRANSFORM QT_HOST_PATH_CMAKE_DIR REPLACE "/Qt6CoreTools$" "")
