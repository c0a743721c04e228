#include "base/run_time_error.h"
#include "seeds.h"
#include "spreadsheet/formula_cases.h"
#include "spreadsheet/spreadsheet.h"
#include "spreadsheet/tokens.h"
#include "support/number_cases.h"

namespace velmora::fuzz {
namespace {

/// Every formula of the tests in one column, so that writers and readers meet them all.
SheetGrid formulas() {
    SheetGrid sheet(kSheetRows, 3);
    int row = 0;
    for (const test::FormulaCase& formula : test::formulaCases()) {
        if (row < kSheetRows) {
            sheet.at({row++, 2}) = Formula{formula.text};
        }
    }
    return sheet;
}

SheetGrid ofEachKind() {
    SheetGrid sheet(2, 3);
    sheet.at({0, 0}) = Label{"Sum \"of\" all;,"};
    sheet.at({0, 1}) = -2.5e-9;
    sheet.at({1, 0}) = std::int16_t{-7};
    sheet.at({1, 2}) = Formula{"A2*SUM(A1:B1)"};
    return sheet;
}

void giveFile(const TakeSeed& take, const char* fuzzer, const SheetGrid& sheet, int format,
              WksDialect dialect) {
    try {
        SpreadsheetSettings settings;
        settings.wksDialect = dialect;
        take(fuzzer, sheetBytes(sheet, format, settings));
    } catch (const RunTimeError&) {
        // No file holds this sheet.
    }
}

void giveSheetFiles(const TakeSeed& take, const SheetGrid& sheet) {
    giveFile(take, "wks_reader", sheet, kFormatWks, WksDialect::Own);
    giveFile(take, "wks_reader", sheet, kFormatWks, WksDialect::Common);
    giveFile(take, "dif_reader", sheet, kFormatDif, WksDialect::Own);
    for (const int format : {kFormatCsv, kFormatTxt, kFormatTab}) {
        giveFile(take, "text_reader", sheet, format, WksDialect::Own);
    }
}

void giveFormulas(const TakeSeed& take) {
    for (const auto& cases : {test::formulaCases(), test::calls()}) {
        for (const test::FormulaCase& formula : cases) {
            take("formula_decoder", formula.tokens);
            take("formula_encoder", formula.text);
            take("wks_reader",
                 test::startRecord + test::formulaRecord(2, 0, formula.tokens) + test::endRecord);
        }
    }
}

}  // namespace

void giveSheetSeeds(const TakeSeed& take) {
    giveSheetFiles(take, ofEachKind());
    giveSheetFiles(take, formulas());
    giveFormulas(take);
    for (const test::NumberText& number : test::numberTexts()) {
        for (const char signs : {'\0', '\1', '\4'}) {
            take("number_locale", signs + std::string(number.plain));
        }
        take("cells_file", std::string("A1 ") + number.exponent + "\nZ99 =A1*2\n# end\nB2 'label\n");
    }
    take("number_locale", "\xFFpt_BR.UTF-8");
    take("number_locale", "\1-1.234.567,89");
}

}  // namespace velmora::fuzz
