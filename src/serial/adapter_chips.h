// The chips of well-known adapters.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The chip by its USB vendor and product number (hexadecimal, lower case), as the makers have assigned them;
/// empty for others.
std::string adapterChip(std::string_view vendorId, std::string_view productId);

}  // namespace velmora
