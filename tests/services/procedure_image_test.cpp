#include "services/procedure_image.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/memory_files.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class ProcedureImageTest : public testing::Test {
  protected:
    std::string imageOf(const std::string& text) {
        files.addFile("/source", text);
        const auto source = files.open("/source", OpenMode::Read);
        const auto image = files.open("/image", OpenMode::Create);
        buildProcedureImage(*source, *image);
        return files.content("/image");
    }
    test::MemoryFiles files;
};

TEST_F(ProcedureImageTest, AnEmptyTextGivesTheHeaderAlone) {
    EXPECT_EQ(imageOf(""), "ORG\0\x04\x81\0\0\0\0"s);
}

TEST_F(ProcedureImageTest, EachLineEndsWithAZero) {
    EXPECT_EQ(imageOf("A\r\nBC\r\n"), "ORG\0\x09\x81\0\0\0\x05"s + "A\0BC\0"s);
    EXPECT_EQ(imageOf("A\nBC"), "ORG\0\x09\x81\0\0\0\x05"s + "A\0BC\0"s);
}

TEST_F(ProcedureImageTest, CodeSevenBecomesABlank) {
    EXPECT_EQ(imageOf("\x07\x07print\n").substr(10), "  print\0"s);
}

TEST_F(ProcedureImageTest, LengthsAboveAByteHaveTheirHighByteFirst) {
    const std::string image = imageOf(std::string(0x1FF, 'x') + "\n");
    EXPECT_EQ(image.substr(3, 7), "\x02\x04\x81\0\0\x02\0"s);
    EXPECT_EQ(image.size(), 10U + 0x200);
}

TEST_F(ProcedureImageTest, TheLargestImageFillsItsLengthField) {
    const std::string image = imageOf(std::string(65'530, 'x') + "\n");
    EXPECT_EQ(image.size(), 65'541U);
    EXPECT_EQ(image.substr(3, 2), "\xFF\xFF");
}

TEST_F(ProcedureImageTest, ALargerImageOverflows) {
    EXPECT_THROW(imageOf(std::string(65'531, 'x') + "\n"), RunTimeError);
    std::string manyLines;
    for (int i = 0; i < 40'000; ++i) {
        manyLines += "x\n";
    }
    EXPECT_THROW(imageOf(manyLines), RunTimeError);
    EXPECT_THROW(imageOf(std::string(1'000'000, 'x')), RunTimeError);
}

TEST(ProcedureTextTest, ZerosBecomeLineEnds) {
    EXPECT_EQ(procedureText("A\0BC\0"s), "A\r\nBC\r\n");
    EXPECT_EQ(procedureText("\r\n"), "\r\n");
    EXPECT_EQ(procedureText(""), "");
}

}  // namespace
}  // namespace velmora
