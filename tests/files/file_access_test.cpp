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

TEST(FileAccess, ADashIsAStandardStream) {
    test::MemoryFiles files;
    test::SlashPathRules rules;
    std::istringstream in(std::string(100'000, 'i'));
    std::ostringstream out;
    const FileAccess access(files, rules, in, out);
    EXPECT_EQ(access.readInput("-"), std::string(100'000, 'i'));
    access.writeOutput("-", "bytes");
    EXPECT_EQ(out.str(), "bytes");
    EXPECT_TRUE(files.paths().empty());
}

TEST(FileAccess, AFullOutputStreamIsADeviceError) {
    test::MemoryFiles files;
    test::SlashPathRules rules;
    std::istringstream in;
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    EXPECT_THROW(FileAccess(files, rules, in, out).writeOutput("-", "bytes"), RunTimeError);
}

TEST(FileAccess, ReadsFilesOfAnySize) {
    test::MemoryFiles files;
    test::SlashPathRules rules;
    std::istringstream in;
    std::ostringstream out;
    files.addFile("/w/big", std::string(200'000, 'b'));
    const FileAccess access(files, rules, in, out);
    EXPECT_EQ(access.readInput("/w/big").size(), 200'000U);
    EXPECT_THROW(access.readInput("/w/missing"), RunTimeError);
    access.writeOutput("/w/big", "small");
    EXPECT_EQ(files.content("/w/big"), "small");
}

}  // namespace
}  // namespace velmora
