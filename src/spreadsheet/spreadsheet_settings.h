// The settings of the spreadsheet.
#pragma once

#include "spreadsheet/number_locale.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// Read at the moment of use; start-up fills it, and the setup dialog may change the dialect.
struct SpreadsheetSettings {
    NumberLocale locale;  ///< the user's
    WksDialect wksDialect = WksDialect::Own;
};

}  // namespace velmora
