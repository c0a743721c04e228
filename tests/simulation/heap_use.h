// How much memory the program holds.
#pragma once

#include <malloc.h>

#include <cstddef>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELMORA_ADDRESS_SANITIZER 1
#endif
#endif
#ifdef VELMORA_ADDRESS_SANITIZER
#include <sanitizer/allocator_interface.h>
#endif

namespace velmora::simulation {

/// Bytes that are allocated and not freed (mallinfo2, or the sanitizer's own count).
inline std::size_t heapInUse() {
#ifdef VELMORA_ADDRESS_SANITIZER
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

}  // namespace velmora::simulation
