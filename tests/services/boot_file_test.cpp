#include "services/boot_file.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace velmora {
namespace {

using namespace std::string_literals;

const std::string kCode = "\x12\x34\xFF\x01"s;

TEST(CheckSumTest, BytesAreAdded) {
    EXPECT_EQ(check_Sum("", false), "\0\0"s);
    EXPECT_EQ(check_Sum(kCode, false), "\x01\x46");
    EXPECT_EQ(check_Sum(std::string(300, '\xFF'), false), "\x2A\xD4") << "300 * 255 = 76500 = 65536 + 0x2AD4";
}

TEST(CheckSumTest, WordsAreAdded) {
    EXPECT_EQ(check_Sum("", true), "\0\0"s);
    EXPECT_EQ(check_Sum("\x12\x34\x01\x02"s, true), "\x13\x36");
    EXPECT_EQ(check_Sum("\xFF\xFF\x00\x02"s, true), "\0\x01"s);
    EXPECT_EQ(check_Sum("\x01\x02\x03"s, true), "\x04\x02") << "as if a 0 followed";
}

TEST(RelocateCodeTest, EachNamedWordIsRaised) {
    std::string code(20, '\0');
    code[16] = '\x12';
    code[17] = '\x34';
    relocate_Code(code, "\x00\x10"s, 0x2000);
    EXPECT_EQ(code.substr(16, 2), "\x32\x34");
    EXPECT_EQ(code.substr(0, 16), std::string(16, '\0'));
}

TEST(RelocateCodeTest, AnEntryNamedTwiceIsRaisedTwice) {
    std::string code = "\0\x01"s;
    relocate_Code(code, "\0\0\0\0"s, 0x0100);
    EXPECT_EQ(code, "\x02\x01");
}

TEST(RelocateCodeTest, OverlappingWordsAreRaisedInOrder) {
    std::string code = "\0\0\0"s;
    relocate_Code(code, "\0\0\0\x01"s, 0x0102);
    EXPECT_EQ(code, "\x01\x03\x02");
}

TEST(RelocateCodeTest, TheLargestWordIsReached) {
    std::string code = "\xF0\x00"s;
    relocate_Code(code, "\0\0"s, 0x0FFF);
    EXPECT_EQ(code, "\xFF\xFF");
}

TEST(RelocateCodeTest, ALargerWordOverflows) {
    std::string code = "\xF0\x00"s;
    EXPECT_THROW(relocate_Code(code, "\0\0"s, 0x1000), RunTimeError);
}

TEST(RelocateCodeTest, AWordOutsideTheCodeIsAnError) {
    std::string code = "\0\0"s;
    EXPECT_THROW(relocate_Code(code, "\0\x01"s, 0), RunTimeError);
    EXPECT_EQ(code, "\0\0"s);
}

class BootFileTest : public testing::Test {
  protected:
    static BootFileProblem problemOf(const std::string& bytes) { return readBootFile(bytes).problem; }
    const std::string good = "\x00\x04"s + kCode + "\x01\x46" + "\x00\x02"s + "\x00\x00\x00\x02"s + "\0\x02"s;
};

TEST_F(BootFileTest, AGoodFileIsTakenApart) {
    const BootFile file = readBootFile(good);
    EXPECT_EQ(file.problem, BootFileProblem::None);
    EXPECT_EQ(file.code, kCode);
    EXPECT_EQ(file.relocations, "\0\0\0\x02"s);
    EXPECT_EQ(file.codeCheck, "\x01\x46");
    EXPECT_EQ(file.tableCheck, "\0\x02"s);
}

TEST_F(BootFileTest, MakingGivesTheSameBytes) {
    EXPECT_EQ(makeBootFile(kCode, "\0\0\0\x02"s), good);
    EXPECT_EQ(makeBootFile(kCode, "\0\0\0\x02\x07"s), good) << "half an entry is none";
}

TEST_F(BootFileTest, TrailingBytesAreIgnored) {
    EXPECT_EQ(problemOf(good + "more"), BootFileProblem::None);
}

TEST_F(BootFileTest, EveryPrefixIsCutShort) {
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_EQ(problemOf(good.substr(0, length)),
                  length < 8 ? BootFileProblem::CodeCutShort : BootFileProblem::TableCutShort)
            << length;
    }
}

TEST_F(BootFileTest, AChangedCodeByteIsNoticed) {
    std::string bytes = good;
    bytes[3] ^= 1;
    EXPECT_EQ(problemOf(bytes), BootFileProblem::WrongCodeCheck);
}

TEST_F(BootFileTest, AChangedTableIsNoticed) {
    std::string bytes = good;
    bytes[11] ^= 1;
    EXPECT_EQ(problemOf(bytes), BootFileProblem::WrongTableCheck);
}

TEST_F(BootFileTest, AnEntryOutsideTheCodeIsNoticed) {
    EXPECT_EQ(problemOf(makeBootFile(kCode, "\0\x02"s)), BootFileProblem::None);
    EXPECT_EQ(problemOf(makeBootFile(kCode, "\0\x03"s)), BootFileProblem::RelocationOutsideTheCode);
    EXPECT_EQ(problemOf(makeBootFile(kCode, "\xFF\xFF")), BootFileProblem::RelocationOutsideTheCode);
    EXPECT_EQ(problemOf(makeBootFile("", "\0\0"s)), BootFileProblem::RelocationOutsideTheCode);
    EXPECT_EQ(problemOf(makeBootFile(kCode, "\0\0\0\2\0\3"s)), BootFileProblem::RelocationOutsideTheCode)
        << "the last of three";
}

TEST_F(BootFileTest, TheLargestFileIsRead) {
    std::string relocations;
    for (int i = 0; i < 65'535; ++i) {
        relocations += "\0\x01"s;
    }
    const std::string bytes = makeBootFile(std::string(65'535, 'x'), relocations);
    EXPECT_EQ(bytes.size(), kLargestBootFile);
    EXPECT_EQ(problemOf(bytes), BootFileProblem::None);
}

TEST_F(BootFileTest, WhatACountCannotHoldIsNotMade) {
    EXPECT_THROW(makeBootFile(std::string(65'536, 'x'), ""), RunTimeError);
    EXPECT_THROW(makeBootFile("", std::string(2 * 65'536, 'x')), RunTimeError);
}

TEST_F(BootFileTest, AnEmptyFileOfNothingIsGood) {
    EXPECT_EQ(problemOf(std::string(8, '\0')), BootFileProblem::None);
}

}  // namespace
}  // namespace velmora
