// What the requests of the services that open, write and read begin with.
#pragma once

#include <cstdint>

namespace velmora {

/// The first byte of a request. Not every service has all of them.
enum class ServiceOperation : std::uint8_t { Open = 0, Close = 1, Write = 2, Read = 3, Seek = 4 };

}  // namespace velmora
