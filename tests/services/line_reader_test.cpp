#include "services/line_reader.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "support/memory_files.h"

namespace velmora {
namespace {

class LineReaderTest : public testing::Test {
  protected:
    void content(const std::string& bytes) {
        files.addFile("/f", bytes);
        file = files.open("/f", OpenMode::Read);
        reader = std::make_unique<LineReader>(*file);
    }
    std::vector<std::string> lines() {
        std::vector<std::string> all;
        while (!reader->atEnd()) {
            EXPECT_TRUE(reader->readLine(all.emplace_back(), 100'000));
        }
        return all;
    }
    test::MemoryFiles files;
    std::unique_ptr<File> file;
    std::unique_ptr<LineReader> reader;
};

using Lines = std::vector<std::string>;

TEST_F(LineReaderTest, BothLineEndsAreRead) {
    content("a\r\nb\nc\r\n");
    EXPECT_EQ(lines(), (Lines{"a", "b", "c"}));
}

TEST_F(LineReaderTest, TheLastLineMayLackItsEnd) {
    content("a\nb");
    EXPECT_EQ(lines(), (Lines{"a", "b"}));
}

TEST_F(LineReaderTest, EmptyLinesAreLines) {
    content("\r\n\n");
    EXPECT_EQ(lines(), (Lines{"", ""}));
}

TEST_F(LineReaderTest, AnEmptyFileHasNoLines) {
    content("");
    EXPECT_EQ(lines(), Lines{});
}

TEST_F(LineReaderTest, OnlyTheLastCrBelongsToTheLineEnd) {
    content("a\r\r\nb\rc\n");
    EXPECT_EQ(lines(), (Lines{"a\r", "b\rc"}));
}

TEST_F(LineReaderTest, LineEndsAcrossTheBufferAreRead) {
    for (const std::size_t length : {4094U, 4095U, 4096U, 4097U, 8191U}) {
        const std::string longLine(length, 'x');
        content(longLine + "\r\nend\r\n");
        EXPECT_EQ(lines(), (Lines{longLine, "end"})) << length;
    }
}

TEST_F(LineReaderTest, TheLimitCountsTheLineWithoutItsEnd) {
    std::string line;
    for (const std::size_t limit : {5U, 4095U, 4096U, 65'536U}) {
        content(std::string(limit, 'x') + "\r\n");
        EXPECT_TRUE(reader->readLine(line, limit)) << limit;
        EXPECT_EQ(line.size(), limit);
        content(std::string(limit + 1, 'x') + "\n");
        EXPECT_FALSE(reader->readLine(line, limit)) << limit;
    }
}

// The reader took one more than the limit for the place to give up at, which is none when there is no limit:
// whatever crossed the end of the buffer came as two lines.
TEST_F(LineReaderTest, WithoutALimitALineIsWholeHoweverLongItIs) {
    constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
    const std::string longLine(4095, 'x');
    content(longLine + "yz\r\nend");
    std::string line;
    EXPECT_TRUE(reader->readLine(line, kNoLimit));
    EXPECT_TRUE(line == longLine + "yz") << line.size();
    EXPECT_TRUE(reader->readLine(line, kNoLimit));
    EXPECT_EQ(line, "end");
    EXPECT_TRUE(reader->readLine(line, kNoLimit)) << "at the end of the file";
    EXPECT_EQ(line, "");
}

TEST_F(LineReaderTest, ALineWithoutEndIsGivenUpSoonBehindTheLimit) {
    content(std::string(1'000'000, 'x'));
    std::string line;
    EXPECT_FALSE(reader->readLine(line, 10));
    EXPECT_LE(file->position(), 8192U);
}

}  // namespace
}  // namespace velmora
