// Any bytes are a text file of either kind.
#include <cstddef>
#include <cstdint>
#include <string>

#include "sheet_check.h"
#include "spreadsheet/text_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    fuzz::checkReader(bytes, [](File& file) { return readDelimited(file, ";"); });
    fuzz::checkReader(bytes, [](File& file) { return readDelimited(file, ""); });
    fuzz::checkReader(bytes, [](File& file) { return readFixedText(file); });
    return 0;
}
