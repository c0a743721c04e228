// Any bytes are a DIF file.
#include <cstddef>
#include <cstdint>
#include <string>

#include "sheet_check.h"
#include "spreadsheet/dif_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    fuzz::checkReader(bytes, [](File& file) { return readDif(file); });
    return 0;
}
