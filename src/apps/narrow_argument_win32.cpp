#include "apps/narrow_argument_win32.h"

#include <optional>

#include "arguments/usage_error.h"
#include "platform/win32/ansi_text.h"

namespace velmora {

std::string narrowArgument(const std::wstring& word) {
    if (const std::optional<std::string> exact = exactPath(word)) {
        return *exact;
    }
    if (const std::size_t equals = word.find(L'='); word.starts_with(L"--") && equals != std::wstring::npos) {
        const std::optional<std::string> option = exactAnsi(word.substr(0, equals + 1));
        const std::optional<std::string> value = exactPath(word.substr(equals + 1));
        if (option && value) {
            return *option + *value;
        }
    }
    throw UsageError("\"" + ansiPath(word) +
                     R"(" has a character that this system's ANSI code page lacks, shown as "?")");
}

}  // namespace velmora
