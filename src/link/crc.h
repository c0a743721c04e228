// The frame check of the link: CRC-16/ARC (polynomial x^16+x^15+x^2+1 reflected, 0xA001; initial value 0; no
// final xor), kept with its two bytes swapped.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace velmora {

/// Computes frame checks from a table that is loaded once per run. load_CRCtable must have run before any
/// check is computed.
class Crc {
  public:
    /// Fills the table; a loaded table is left alone.
    void load_CRCtable();
    bool loaded() const { return loaded_; }

    /// Entry of the table: the CRC-16/ARC table entry with its bytes swapped, 0x0000 for 0, 0xC1C0 for 1.
    std::uint16_t entry(std::uint8_t index) const { return table_[0][index]; }

    /// The two check bytes of a body in the order in which they are sent: low byte of the CRC-16/ARC first.
    /// "123456789" gives 0x3D 0xBB.
    std::array<char, 2> check(std::string_view body) const;

  private:
    // table_[k] gives the effect of a byte that is followed by k more, so that eight bytes take one step
    // (slicing by eight); table_[0] is the plain table.
    std::array<std::array<std::uint16_t, 256>, 8> table_{};
    bool loaded_ = false;
};

}  // namespace velmora
