// What the command-line programs print on a console.
#pragma once

#include <memory>

namespace velmora {

/// The encoding of what a program prints: the system's narrow one (on Windows the ANSI code page), or UTF-8.
enum class PrintedText { System, Utf8 };

/// While the result is kept, a console shows such texts with the right letters; then it has its own code page
/// again (SetConsoleOutputCP). Output to files and pipes is the same bytes with and without it. Null where
/// there is nothing to give back. Kept by main() for as long as the program runs.
[[nodiscard]] std::shared_ptr<void> showOnConsole(PrintedText text);

}  // namespace velmora
