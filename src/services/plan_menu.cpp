#include "services/plan_menu.h"

#include "spreadsheet/sheet_format.h"

namespace velmora {

std::vector<SheetFormatEntry> offeredFormats() {
    constexpr int kFirst = XlsAvailable() ? kFormatXls : kFormatWks;
    std::vector<SheetFormatEntry> formats;
    for (int format = kFirst; format <= kFormatTab; ++format) {
        formats.push_back({static_cast<std::uint8_t>(format), FormatName(format, true)});
    }
    return formats;
}

}  // namespace velmora
