#include <windows.h>

#include <array>

#include "serial/system_text.h"

namespace velmora {

std::string systemText(SystemError number) {
    std::array<char, 256> buffer{};
    // Messages with places for arguments are taken as they stand: there are no arguments to be had.
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   static_cast<DWORD>(number), 0, buffer.data(), static_cast<DWORD>(buffer.size() - 1),
                   nullptr);
    std::string text = buffer.data();
    text.erase(text.find_last_not_of(" \t\r\n") + 1);
    return text;
}

}  // namespace velmora
