#include "organiser/local_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

TEST(LocalFiles, LinesEndWithEitherEndOrNone) {
    EXPECT_EQ(splitLines("a\nb\r\nc"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(splitLines("a\n\n"), (Lines{"a", ""}));
    EXPECT_EQ(splitLines("a\rb"), Lines{"a\rb"});
    EXPECT_EQ(splitLines(""), Lines{});
}

TEST(LocalFiles, LinesAreJoinedWithTheEndAskedFor) {
    EXPECT_EQ(joinLines({"a", ""}, false), "a\n\n");
    EXPECT_EQ(joinLines({"a", "b"}, true), "a\r\nb\r\n");
}

TEST(LocalFiles, LinesThatNoMessageHoldsAreRefused) {
    EXPECT_NO_THROW(checkLines("f", {std::string(250, 'x')}, 250));
    EXPECT_THROW(checkLines("f", {std::string(251, 'x')}, 250), LocalFileError);
    EXPECT_THROW(checkLines("f", {"a\0b"s}, 250), LocalFileError);
}

TEST(LocalFiles, EmptyFileIsReadAsEmpty) {
    const std::string path = testing::TempDir() + "velmora-empty";
    writeLocalFile(path, "");
    EXPECT_EQ(readLocalFile(path), "");
}

TEST(LocalFiles, NameInUtf8IsTheFileOfThatName) {
    const test::TempFolder folder;
    const std::string path = folder.path() + "/Gr\xC3\xB6\xC3\x9F" + "e.txt";
    writeLocalFile(path, "x");
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(folder.path()) / u8"Gr\u00F6\u00DFe.txt"));
    EXPECT_EQ(readLocalFile(path), "x");
}

TEST(LocalFiles, FullDiskIsToldAndNotTakenForSuccess) {
    EXPECT_THROW(writeLocalFile("/dev/full", "x"), LocalFileError);
}

}  // namespace
}  // namespace velmora
