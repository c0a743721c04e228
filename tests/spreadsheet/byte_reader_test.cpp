#include "spreadsheet/byte_reader.h"

#include <gtest/gtest.h>

#include <vector>

#include "spreadsheet/sample_file.h"
#include "support/failing_files.h"

namespace velmora {
namespace {

std::vector<std::string> linesOf(const std::string& content) {
    return test::readSample(content, [](File& file) {
        SheetLines reader(file);
        std::vector<std::string> lines;
        std::string line;
        while (reader.next(line)) {
            lines.push_back(line);
        }
        return lines;
    });
}

using Lines = std::vector<std::string>;

TEST(SheetLines, TakesBothLineEnds) {
    EXPECT_EQ(linesOf("a\r\nb\nc\r\n"), (Lines{"a", "b", "c"}));
}

TEST(SheetLines, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(linesOf("a\r\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\r\n\r\n"), (Lines{"a", ""}));
    EXPECT_EQ(linesOf(""), Lines{});
}

TEST(SheetLines, ALongLineIsCutAndTheNextOneIsWhole) {
    const Lines lines = linesOf(std::string(3 * kLongestLine, 'x') + "\nnext\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], std::string(kLongestLine, 'x'));
    EXPECT_EQ(lines[1], "next");
}

TEST(ByteReader, ReadsAcrossItsBufferAndSkipsBeyondIt) {
    std::string content;
    for (int i = 0; i < 200'000; ++i) {
        content += static_cast<char>(i % 251);
    }
    test::readSample(content, [&](File& file) {
        ByteReader reader(file);
        EXPECT_EQ(reader.read(10), content.substr(0, 10));
        reader.skip(70'000);
        EXPECT_EQ(reader.read(65'536), content.substr(70'010, 65'536));
        reader.skip(5);
        EXPECT_EQ(reader.read(3), content.substr(135'551, 3));
        reader.skip(1'000'000);
        EXPECT_EQ(reader.read(1), "");
        return 0;
    });
}

TEST(ByteReader, GivesWhatIsLeftAtTheEnd) {
    test::readSample("abc", [](File& file) {
        ByteReader reader(file);
        EXPECT_EQ(reader.read(5), "abc");
        EXPECT_EQ(reader.read(5), "");
        return 0;
    });
}

TEST(ByteReader, AsksTheFileForNoMoreOnceItHasEnough) {
    test::MemoryFiles memory;
    memory.addFile("/sample", "abc");
    test::FailingFiles files(memory);
    files.failAtCall(test::FileCall::Read, 2, ErrorNumber::DeviceIoError);
    const auto file = files.open("/sample", OpenMode::Read);
    ByteReader reader(*file);
    EXPECT_EQ(reader.read(3), "abc");
}

TEST(ByteReader, PassesOnWhatTheFileThrows) {
    test::MemoryFiles memory;
    memory.addFile("/sample", "abc");
    test::FailingFiles files(memory);
    files.failAtCall(test::FileCall::Read, 1, ErrorNumber::DeviceIoError);
    const auto file = files.open("/sample", OpenMode::Read);
    ByteReader reader(*file);
    EXPECT_THROW(reader.read(1), RunTimeError);
}

}  // namespace
}  // namespace velmora
