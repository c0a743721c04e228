// BOOT: machine code, relocated by the server to the address that the Organiser names.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora {

struct BootCode {
    std::string code;                 ///< as long as the server announced
    std::vector<std::size_t> chunks;  ///< length of each piece in which it came
};

/// Fetches the boot file `name` (without extension) for `address`. Throws LinkFailure and LineError; an
/// address or a length that does not follow from what came before is Unexpected.
BootCode fetchBootCode(OrganiserLink& link, Progress& progress, std::string_view name, std::uint16_t address);

}  // namespace velmora
