#include "platform/posix/user_dirs.h"

#include <gtest/gtest.h>

#include <sstream>

namespace velmora {
namespace {

std::optional<std::string> documentsIn(const std::string& text) {
    std::istringstream file(text);
    return userDir(file, "XDG_DOCUMENTS_DIR", "/home/anna");
}

TEST(UserDirs, AreBelowHomeOrAbsolute) {
    EXPECT_EQ(documentsIn("XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"), "/home/anna/Dokumente");
    EXPECT_EQ(documentsIn("XDG_DOCUMENTS_DIR=\"/data/docs/\""), "/data/docs");
}

TEST(UserDirs, HomeItselfMeansThatThereIsNone) {
    EXPECT_EQ(documentsIn("XDG_DOCUMENTS_DIR=\"$HOME/\""), "/home/anna");
    EXPECT_EQ(documentsIn("XDG_DOCUMENTS_DIR=\"$HOME\""), "/home/anna");
}

TEST(UserDirs, CommentsOtherKeysAndBlanksArePassedOver) {
    EXPECT_EQ(documentsIn("# XDG_DOCUMENTS_DIR=\"/comment\"\n"
                          "XDG_DESKTOP_DIR=\"$HOME/Desktop\"\n"
                          "\n"
                          "  XDG_DOCUMENTS_DIR \t= \"$HOME/Docs\" # why not\n"
                          "XDG_DOCUMENTS_DIRECTORY=\"/other\"\n"),
              "/home/anna/Docs");
}

TEST(UserDirs, TheLastGoodLineCounts) {
    EXPECT_EQ(
        documentsIn("XDG_DOCUMENTS_DIR=\"/one\"\nXDG_DOCUMENTS_DIR=\"/two\"\nXDG_DOCUMENTS_DIR=\"bad\"\n"),
        "/two");
}

TEST(UserDirs, ABackslashTakesTheNextCharacterAsItIs) {
    EXPECT_EQ(documentsIn("XDG_DOCUMENTS_DIR=\"$HOME/My \\\"Docs\\\" \\\\ \\$\""),
              "/home/anna/My \"Docs\" \\ $");
}

TEST(UserDirs, LinesOfAnotherFormCountForNothing) {
    for (const char* line :
         {"", "XDG_DOCUMENTS_DIR", "XDG_DOCUMENTS_DIR=", "XDG_DOCUMENTS_DIR=/plain", "XDG_DOCUMENTS_DIR=\"",
          "XDG_DOCUMENTS_DIR=\"\"", "XDG_DOCUMENTS_DIR=\"/open", "XDG_DOCUMENTS_DIR=\"relative\"",
          "XDG_DOCUMENTS_DIR=\"$HOMER/x\"", "XDG_DOCUMENTS_DIR=\"/x\\"}) {
        EXPECT_FALSE(documentsIn(line)) << line;
    }
}

}  // namespace
}  // namespace velmora
