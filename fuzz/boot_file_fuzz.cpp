// Boot files of any content: taken apart, relocated and made again.
#include <cstdint>
#include <string>
#include <string_view>

#include "base/run_time_error.h"
#include "require.h"
#include "services/boot_file.h"

namespace {

using namespace velmora;
using fuzz::require;

void relocate(BootFile file, std::uint32_t address) {
    const std::size_t length = file.code.size();
    try {
        relocate_Code(file.code, file.relocations, address);
    } catch (const RunTimeError& error) {
        require(error.errorNumber() == ErrorNumber::Overflow);
    }
    require(file.code.size() == length);
}

/// Whatever a file says of itself is either refused or held by its bytes.
void readAnything(std::string_view bytes) {
    const BootFile file = readBootFile(bytes);
    if (file.problem != BootFileProblem::None) {
        return;
    }
    const std::string again = makeBootFile(file.code, file.relocations);
    require(bytes.substr(0, again.size()) == again);
    relocate(file, 0x2000);
}

/// A file with right sums gets past them, so that its entries are what is tried.
void readWellSummed(std::string_view bytes) {
    const std::size_t codeLength = bytes.size() / 2;
    const BootFile file = readBootFile(makeBootFile(bytes.substr(0, codeLength), bytes.substr(codeLength)));
    require(file.problem == BootFileProblem::None ||
            file.problem == BootFileProblem::RelocationOutsideTheCode);
    if (file.problem == BootFileProblem::None) {
        relocate(file, 0xF000);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readAnything(bytes);
    if (size < 65'536) {
        readWellSummed(bytes);
    }
    return 0;
}
