// Any text gives tokens that end with the end token, or a run-time error; they decode.
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
            const std::string tokens = EncodeFormula(bytes, {50, 12}, dialect);
            fuzz::require(tokens.back() == 3);
            fuzz::require(DecodeFormula(tokens, {50, 12}, dialect).size() <= kLongestCellText);
        } catch (const RunTimeError&) {
            continue;
        }
    }
    return 0;
}
