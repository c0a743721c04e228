// The message catalogue's texts from the configuration file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/strings.h"
#include "startup/ini_file.h"

namespace velmora {

/// Fills the catalogue: the built-in texts, overridden key by key from [DisplayStrings], [InfoStrings],
/// [Dialogs] and [ErrorMessages]. Leaves the file's current section at the last of them. Never complains
/// about a text; RunTimeError when the file cannot be read.
void get_Messages(clsIniFile& ini, Strings& strings);

/// A display text from its form in the file, "line 1","line 2". Line 2 is what stands between the next two
/// double quotes after the first comma of all, also when that comma belongs to line 1.
DisplayText parse_DisplayValue(std::string_view value);

/// The text without a leading and without a trailing double quote, each removed on its own.
std::string strip_Quotes(std::string_view text);

/// A key of the message sections.
struct MessageKey {
    std::string_view section;
    std::string_view key;
};

/// Every key that get_Messages reads, in its order.
std::vector<MessageKey> messageKeys();

}  // namespace velmora
