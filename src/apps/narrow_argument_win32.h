// The words of a Windows command line for programs that work on narrow texts.
#pragma once

#include <string>

namespace velmora {

/// A word of the command line (UTF-16) in the ANSI code page. A path of a file or folder that is there and
/// has other characters, alone or behind "--option=", is given by its short names where the volume keeps
/// them. UsageError for any other word with characters that the code page lacks: `main` gets it with
/// similar letters, which may name another file.
std::string narrowArgument(const std::wstring& word);

}  // namespace velmora
