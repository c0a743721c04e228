// Any tokens give a formula of at most 250 characters, or a run-time error.
#include <cstddef>
#include <cstdint>
#include <string>

#include "sheet_check.h"
#include "spreadsheet/formula_decoder.h"
#include "spreadsheet/formula_encoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    for (const WksDialect dialect : {WksDialect::Own, WksDialect::Common}) {
        try {
            const std::string text = DecodeFormula(bytes, {50, 12}, dialect);
            fuzz::require(text.size() <= kLongestCellText);
            fuzz::require(EncodeFormula(text, {50, 12}, dialect).back() == 3);
        } catch (const RunTimeError&) {
            continue;
        }
    }
    return 0;
}
