// Boot files: relocatable machine code for the Organiser.
//
//   2 bytes      n, the number of code bytes
//   n bytes      the code, assembled for address 0
//   2 bytes      code check: the sum of the code bytes
//   2 bytes      m, the number of relocation entries
//   2 * m bytes  offsets into the code of two-byte words that hold an address
//   2 bytes      table check: the sum of the entries as two-byte numbers
//
// Numbers have their most significant byte first; sums are modulo 65,536. What follows is ignored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// The largest file that the format allows, in bytes, without trailing ones.
constexpr std::size_t kLargestBootFile = 2 + 65'535 + 2 + 2 + 2 * 65'535 + 2;

/// What keeps a boot file from being loaded, in the order of the checks.
enum class BootFileProblem {
    None,
    CodeCutShort,              ///< the file ends before the code check does
    WrongCodeCheck,            ///< the code check is not the sum of the code
    TableCutShort,             ///< the file ends before the table check does
    WrongTableCheck,           ///< the table check is not the sum of the entries
    RelocationOutsideTheCode,  ///< an entry names a word that is not wholly in the code
};

/// A boot file taken apart. Up to the problem found, the parts are those of the file.
struct BootFile {
    std::string code;
    std::string relocations;  ///< the table as in the file, two bytes an entry
    std::string codeCheck;    ///< as in the file
    std::string tableCheck;   ///< as in the file
    BootFileProblem problem = BootFileProblem::None;
};

/// Takes a boot file apart and checks it. Never fails; see BootFile::problem.
BootFile readBootFile(std::string_view bytes);

/// The bytes of a boot file. `relocations`: two bytes an entry, an odd last byte is left out. RunTimeError 6
/// when code or table is longer
/// than its count can say.
std::string makeBootFile(std::string_view code, std::string_view relocations);

/// The sum of the bytes, or of the two-byte numbers if `words` (an odd last byte counts as if a 0 followed),
/// modulo 65,536, as two bytes.
std::string check_Sum(std::string_view data, bool words);

/// Adds `address` to each word of `code` that `table` names, in the table's order. RunTimeError 6 when a sum
/// is above 65,535, 9 when a word is not wholly in the code; the words before it are relocated then.
void relocate_Code(std::string& code, std::string_view table, std::uint32_t address);

}  // namespace velmora
