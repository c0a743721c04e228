#include "spreadsheet/sheet_format.h"

namespace velmora {

std::string FormatName(int format, bool longForm) {
    switch (format) {
        case kFormatXls:
            return "XLS";
        case kFormatWks:
            return "WKS";
        case kFormatDif:
            return "DIF";
        case kFormatCsv:
            return "CSV";
        case kFormatTxt:
            return "TXT";
        case kFormatTab:
            return longForm ? "TXT(tab)" : "TXT";
        default:
            return {};
    }
}

bool KeepsFormulas(int format) {
    return format == kFormatXls || format == kFormatWks;
}

}  // namespace velmora
