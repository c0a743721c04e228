# libudev, the device manager's library, which knows the serial adapters. velmora_udev is a target to link.
find_path(VELMORA_UDEV_HEADERS libudev.h REQUIRED)
find_library(VELMORA_UDEV_LIBRARY udev REQUIRED)
add_library(velmora_udev INTERFACE)
target_include_directories(velmora_udev SYSTEM INTERFACE ${VELMORA_UDEV_HEADERS})
target_link_libraries(velmora_udev INTERFACE ${VELMORA_UDEV_LIBRARY})
