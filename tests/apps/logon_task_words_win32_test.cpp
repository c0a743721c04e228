#include <windows.h>
// Needs windows.h before it.
#include <gtest/gtest.h>
#include <shellapi.h>

#include <memory>

#include "apps/logon_task.h"
#include "platform/win32/ansi_text.h"

namespace velmora {
namespace {

/// A command line as Windows takes it apart.
std::vector<std::string> wordsOf(const std::string& line) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> wide(
        CommandLineToArgvW(wideFromUtf8("program " + line).c_str(), &count), LocalFree);
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i) {
        words.push_back(utf8FromWide(wide.get()[i]));
    }
    return words;
}

TEST(WindowsCommandLine, WindowsTakesItApartIntoTheSameWords) {
    const std::vector<std::string> words{"--folder", R"(C:\My "old" files\)",
                                         "",         R"(\\server\share)",
                                         R"(a\\"b)", "tab\there",
                                         R"(\)",     R"(\\" \)",
                                         "--wait",   "Gr\xC3\xBC\xC3\x9F",
                                         R"("""")",  "end"};
    EXPECT_EQ(wordsOf(windowsCommandLine(words)), words);
}

}  // namespace
}  // namespace velmora
