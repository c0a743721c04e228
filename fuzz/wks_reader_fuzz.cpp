// Any bytes are a worksheet file, or a run-time error.
#include <cstddef>
#include <cstdint>
#include <string>

#include "sheet_check.h"
#include "spreadsheet/wks_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    fuzz::checkReader(bytes, [](File& file) { return readWks(file); });
    fuzz::checkReader(bytes, [](File& file) { return readWks(file, WksDialect::Common); });
    return 0;
}
