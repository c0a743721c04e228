#include <gtest/gtest.h>

#include <cstdlib>

#include "base/byte_text.h"
#include "platform/known_folders.h"
#include "platform/win32/win32_files.h"

namespace velmora {
namespace {

TEST(WindowsFolder, IsWhereTheSystemSaysItIs) {
    const char* const root = std::getenv("SystemRoot");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(upperCase(windowsFolder()), upperCase(root));
    EXPECT_TRUE(Win32Files("").folderExists(windowsFolder()));
}

}  // namespace
}  // namespace velmora
