#include "files/show_command.h"

#include "files/tool_fixture.h"
#include "services/boot_file.h"
#include "spreadsheet/dif_writer.h"
#include "spreadsheet/wks_writer.h"

namespace velmora {
namespace {

using namespace std::string_literals;

TEST(RecogniseFile, GoesByContentWhereThatIsTelling) {
    EXPECT_EQ(recogniseFile(writeWks(SheetGrid()), "dat"), FileKind::Worksheet);
    EXPECT_EQ(recogniseFile(writeDif(SheetGrid()), ""), FileKind::Dif);
    EXPECT_EQ(recogniseFile("ORG\0\0\x83"s, "ob3"), FileKind::BlockFile);
    EXPECT_EQ(recogniseFile("ORG\0\0\x83"s, ""), FileKind::BlockFile);
    EXPECT_EQ(recogniseFile("ORGANS\r\n", "odb"), FileKind::DataFile);
}

TEST(RecogniseFile, GoesByTheExtensionOtherwise) {
    const struct {
        const char* extension;
        FileKind kind;
    } rows[] = {{"wks", FileKind::Worksheet}, {"dif", FileKind::Dif},       {"odb", FileKind::DataFile},
                {"txt", FileKind::DataFile},  {"csv", FileKind::CsvFile},   {"opl", FileKind::Procedure},
                {"bin", FileKind::BootFile},  {"ob2", FileKind::BlockFile}, {"ob10", FileKind::BlockFile},
                {"ob", FileKind::Unknown},    {"obx", FileKind::Unknown},   {"", FileKind::Unknown}};
    for (const auto& row : rows) {
        EXPECT_EQ(recogniseFile("anything", row.extension), row.kind) << row.extension;
        EXPECT_EQ(recogniseFile("", row.extension), row.kind) << row.extension;
    }
}

using ShowCommandTest = test::ToolTest;

TEST_F(ShowCommandTest, ShowsEachKind) {
    SheetGrid sheet(1, 2);
    sheet.at({0, 1}) = Formula{"A1+1"};
    memory.addFile("/w/a.wks", writeWks(sheet));
    memory.addFile("/w/a.dif", writeDif(sheet));
    memory.addFile("/w/a.odb", "a\tb\r\n");
    memory.addFile("/w/a.csv", "a;b\r\n");
    memory.addFile("/w/a.ob3", "ORG\0\1\x83x"s);
    memory.addFile("/w/a.opl", "A:\r\nPRINT 1\r\n");
    memory.addFile("/w/a.bin", makeBootFile("abc", ""));
    const struct {
        const char* name;
        const char* text;
    } rows[] = {{"/w/a.wks", "=A1+1"},
                {"/w/a.dif", "Worksheet, 1 rows, 2 columns"},
                {"/w/a.odb", "1  a | b"},
                {"/w/a.csv", "1  a | b"},
                {"/w/a.ob3", "of type 3"},
                {"/w/a.opl", "  PRINT 1\n"},
                {"/w/a.bin", "Boot file, 11 bytes"}};
    for (const auto& row : rows) {
        EXPECT_EQ(run({"show", row.name}), 0) << complaint;
        expectPrinted(row.text);
    }
}

TEST_F(ShowCommandTest, TheKindAndTheDialectCanBeGiven) {
    EXPECT_EQ(run({"show", "-", "--as", "data"}, "a\tb\n"), 0);
    expectPrinted("1  a | b");
    SheetGrid sheet(1, 1);
    sheet.at({0, 0}) = Formula{"(A1+1)*2"};
    const std::string common = writeWks(sheet, WksDialect::Common);
    EXPECT_EQ(run({"show", "-", "--wks-dialect=common"}, common), 0);
    expectPrinted("=(A1+1)*2");
    EXPECT_EQ(run({"show", "-"}, common), 0);
    expectPrinted("=ERR");
}

TEST_F(ShowCommandTest, DamagedFilesAreAFailure) {
    EXPECT_EQ(run({"show", "-", "--as=block"}, "ORG"), 1);
    EXPECT_EQ(run({"show", "-", "--as=boot"}, "x"), 1);
    EXPECT_EQ(run({"show", "-", "--as=opl"}, std::string(70'000, 'x')), 1);
    EXPECT_NE(complaint.find("Overflow"), std::string::npos) << complaint;
}

TEST_F(ShowCommandTest, SaysWhatIsWrong) {
    expectUsage({"show"}, "FILE is required");
    expectUsage({"show", "-", "--as=tune"}, "tune");
    expectUsage({"show", "-"}, "--as");
    expectUsage({"show", "-", "--wks-dialect=x"}, "dialect");
    EXPECT_EQ(run({"show", "/w/missing.wks"}), 1);
}

TEST_F(ShowCommandTest, EveryPrefixOfEveryKindIsSafe) {
    SheetGrid sheet(2, 2);
    sheet.at({1, 1}) = Label{"x"};
    const struct {
        const char* kind;
        std::string content;
    } rows[] = {{"wks", writeWks(sheet)},
                {"dif", writeDif(sheet)},
                {"data", "a\tb\r\n"},
                {"csv", "a,\"b\"\r\n"},
                {"block", "ORG\0\2\x83xy"s},
                {"opl", "A:\r\nB"},
                {"boot", makeBootFile("abcd", "\0\1"s)}};
    for (const auto& row : rows) {
        for (std::size_t length = 0; length <= row.content.size(); ++length) {
            EXPECT_LE(run({"show", "-", "--as", row.kind}, row.content.substr(0, length)), 1);
        }
        EXPECT_EQ(run({"show", "-", "--as", row.kind}, row.content), 0) << row.kind;
    }
}

}  // namespace
}  // namespace velmora
