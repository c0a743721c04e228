#include "files/file_access.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/run_time_error.h"
#include "support/memory_files.h"
#include "support/slash_path_rules.h"

namespace velmora {
namespace {

TEST(BytesFile, ReadsAndWritesAtItsPosition) {
    BytesFile file("abcdef");
    char buffer[4];
    EXPECT_EQ(file.read(buffer, 4), 4U);
    EXPECT_EQ(std::string(buffer, 4), "abcd");
    EXPECT_EQ(file.read(buffer, 4), 2U);
    EXPECT_EQ(file.read(buffer, 4), 0U);
    file.seek(2);
    file.write("XY");
    EXPECT_EQ(file.bytes(), "abXYef");
    file.seek(8);
    EXPECT_EQ(file.read(buffer, 4), 0U);
    file.write("z");
    EXPECT_EQ(file.size(), 9U);
}

class FileAccessTest : public ::testing::Test {
  protected:
    test::MemoryFiles files;
    test::SlashPathRules rules;
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    Remarks remarks{err};
    const FileAccess access{files, rules, in, out, remarks};
};

TEST_F(FileAccessTest, ADashIsAStandardStream) {
    in.str(std::string(100'000, 'i'));
    EXPECT_EQ(access.readInput("-"), std::string(100'000, 'i'));
    access.writeOutput("-", "bytes");
    EXPECT_EQ(out.str(), "bytes");
    EXPECT_TRUE(files.paths().empty());
}

TEST_F(FileAccessTest, AFullOutputStreamIsADeviceError) {
    out.setstate(std::ios::badbit);
    EXPECT_THROW(access.writeOutput("-", "bytes"), RunTimeError);
}

TEST_F(FileAccessTest, ReadsFilesOfAnySize) {
    files.addFile("/w/big", std::string(200'000, 'b'));
    EXPECT_EQ(access.readInput("/w/big").size(), 200'000U);
    EXPECT_THROW(access.readInput("/w/missing"), RunTimeError);
    access.writeOutput("/w/big", "small");
    EXPECT_EQ(files.content("/w/big"), "small");
}

TEST_F(FileAccessTest, TextsAreConvertedAndWhatIsLostIsToldOfTheirFile) {
    files.addFile("/w/text", "\xC3\xA9\xC5\x81");
    EXPECT_EQ(access.readText("/w/text", TextEncoding::Utf8), "\xE9?");
    EXPECT_NE(err.str().find("velmora-files: /w/text: line 1: "), std::string::npos) << err.str();
    access.writeText("-", "\xE9", TextEncoding::Utf8);
    EXPECT_EQ(out.str(), "\xC3\xA9");
}

}  // namespace
}  // namespace velmora
