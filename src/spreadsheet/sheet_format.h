// The worksheet formats: their numbers on the line, their names and what they keep.
#pragma once

#include <string>

namespace velmora {

/// Numbers of the formats, as the Organiser sends them.
enum SheetFormat : int {
    kFormatXls = 1,  ///< never offered, neither read nor written
    kFormatWks = 2,
    kFormatDif = 3,
    kFormatCsv = 4,
    kFormatTxt = 5,  ///< text in columns of fixed width
    kFormatTab = 6,  ///< text separated by tabs
};

/// The name of a format, which is also its file extension; empty for a number that is none. `longForm` tells
/// the two text forms apart for a menu: format 6 is "TXT(tab)" then and "TXT" otherwise.
std::string FormatName(int format, bool longForm);

/// Whether files of a format hold formulas: 1 and 2 do.
bool KeepsFormulas(int format);

/// Whether format 1 can be chosen. It cannot.
constexpr bool XlsAvailable() {
    return false;
}

}  // namespace velmora
