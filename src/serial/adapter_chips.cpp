#include "serial/adapter_chips.h"

#include <algorithm>
#include <array>

namespace velmora {
namespace {

struct Chip {
    std::string_view vendorId;
    std::string_view productId;
    std::string_view name;
};

// The numbers that the makers deliver their chips with.
constexpr std::array<Chip, 13> kChips = {{
    {"0403", "6001", "FT232R"},
    {"0403", "6010", "FT2232"},
    {"0403", "6011", "FT4232"},
    {"0403", "6014", "FT232H"},
    {"0403", "6015", "FT-X"},
    {"067b", "2303", "PL2303"},
    {"067b", "23a3", "PL2303GC"},
    {"10c4", "ea60", "CP210x"},
    {"10c4", "ea70", "CP2105"},
    {"10c4", "ea71", "CP2108"},
    {"1a86", "5523", "CH341"},
    {"1a86", "7523", "CH340"},
    {"1a86", "55d4", "CH9102"},
}};

}  // namespace

std::string adapterChip(std::string_view vendorId, std::string_view productId) {
    const auto* const found = std::find_if(kChips.begin(), kChips.end(), [&](const Chip& chip) {
        return chip.vendorId == vendorId && chip.productId == productId;
    });
    return found == kChips.end() ? std::string() : std::string(found->name);
}

}  // namespace velmora
