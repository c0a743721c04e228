#include "spreadsheet/wks_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "spreadsheet/sample_file.h"
#include "spreadsheet/sheet_error.h"
#include "spreadsheet/tokens.h"
#include "spreadsheet/wks_writer.h"
#include "support/failing_files.h"

namespace velmora {
namespace {

using namespace test;

SheetGrid read(const std::string& content, WksDialect dialect = WksDialect::Own) {
    return readSample(content, [&](File& file) { return readWks(file, dialect); });
}

/// A sheet with one cell.
SheetGrid only(const CellPosition& at, const Cell& cell) {
    SheetGrid sheet(at.row + 1, at.column + 1);
    sheet.at(at) = cell;
    return sheet;
}

std::string file(const std::string& records) {
    return startRecord + records + endRecord;
}

TEST(WksReader, AFileWithoutCellsIsOneEmptyCell) {
    EXPECT_EQ(read(""), SheetGrid(1, 1));
    EXPECT_EQ(read(file("")), SheetGrid(1, 1));
}

TEST(WksReader, ReadsEachKind) {
    SheetGrid expected(2, 2);
    expected.at({0, 0}) = std::int16_t{-2};
    expected.at({0, 1}) = 1.5;
    expected.at({1, 0}) = Label{"Sum"};
    expected.at({1, 1}) = Formula{"A1+B1"};
    EXPECT_EQ(read(file(integerRecord(0, 0, -2) + numberRecord(1, 0, 1.5) + labelRecord(0, 1, "Sum") +
                        formulaRecord(1, 1, ref(-1, -1) + ref(0, -1) + bytes({9}) + end))),
              expected);
}

TEST(WksReader, TheSizeFollowsTheCellsThatAreKept) {
    EXPECT_EQ(read(file(integerRecord(25, 98, 1) + integerRecord(26, 0, 2) + integerRecord(0, 99, 3))),
              only({98, 25}, std::int16_t{1}));
    const SheetGrid sheet = read(file(integerRecord(1, 1, 1) + integerRecord(26, 50, 2)));
    EXPECT_EQ(sheet.rows(), 2);
    EXPECT_EQ(sheet.columns(), 2);
}

TEST(WksReader, CellsComeInAnyOrder) {
    SheetGrid expected(4, 3);
    expected.at({0, 1}) = std::int16_t{-2};
    expected.at({0, 2}) = 1.5;
    expected.at({2, 0}) = Label{"Sum"};
    expected.at({3, 1}) = std::int16_t{4};
    expected.at({1, 1}) = Formula{"A1+B1"};
    std::vector<std::string> records = {integerRecord(1, 0, -2), numberRecord(2, 0, 1.5),
                                        labelRecord(0, 2, "Sum"), integerRecord(1, 3, 4),
                                        formulaRecord(1, 1, ref(-1, -1) + ref(0, -1) + bytes({9}) + end)};
    std::sort(records.begin(), records.end());
    int orders = 0;
    do {
        std::string all;
        for (const std::string& each : records) {
            all += each;
        }
        EXPECT_EQ(read(file(all)), expected);
        ++orders;
    } while (std::next_permutation(records.begin(), records.end()));
    EXPECT_EQ(orders, 120);
}

TEST(WksReader, CellsOutsideAreLeftOut) {
    for (const CellPosition at : {CellPosition{99, 0}, {0, 26}, {-1, 0}, {0, -1}, {32767, 32767}}) {
        EXPECT_EQ(read(file(integerRecord(at.column, at.row, 1))), SheetGrid(1, 1));
    }
}

TEST(WksReader, TheLastRecordOfACellCounts) {
    EXPECT_EQ(read(file(integerRecord(0, 0, 1) + labelRecord(0, 0, "x"))), only({0, 0}, Label{"x"}));
}

TEST(WksReader, OtherRecordsAreSkipped) {
    EXPECT_EQ(read(record(6, std::string(8, '\1')) + record(0x4B, "") + integerRecord(0, 0, 5)),
              only({0, 0}, std::int16_t{5}));
    EXPECT_EQ(read(endRecord + integerRecord(0, 0, 5)), only({0, 0}, std::int16_t{5}))
        << "the end-of-file record is one of them";
}

TEST(WksReader, LengthsAreUnsigned) {
    EXPECT_EQ(
        read(int16ToBytes(99) + int16ToBytes(0xFFFF) + std::string(0xFFFF, 'x') + integerRecord(0, 0, 5)),
        only({0, 0}, std::int16_t{5}));
    const std::string text(0xFFFF - 7, 'x');
    EXPECT_EQ(read(labelRecord(0, 0, text)), only({0, 0}, Label{text}));
}

TEST(WksReader, FormatPrefixAndCachedValueDoNotCount) {
    EXPECT_EQ(read(record(15, bytes({0, 0, 0, 0, 0}) + "^mid" + '\0')), only({0, 0}, Label{"mid"}));
    EXPECT_EQ(read(record(15, bytes({0, 0, 0, 0, 0}) + "\"abc")), only({0, 0}, Label{"ab"}))
        << "the last byte is taken for the zero byte";
    EXPECT_EQ(read(record(16, cellHeader(0, 0, 7) + std::string(8, '\x55') + int16ToBytes(999) + integer(3))),
              only({0, 0}, Formula{"3"}))
        << "nor does the length of the tokens";
}

TEST(WksReader, ABodyTooShortForItsTypeIsSkipped) {
    const std::string next = integerRecord(0, 0, 5);
    const struct {
        int type;
        std::size_t shortest;
    } rows[] = {{13, 7}, {14, 13}, {15, 7}, {16, 15}};
    for (const auto& row : rows) {
        for (std::size_t length = 0; length < row.shortest; ++length) {
            EXPECT_EQ(read(record(row.type, std::string(length, '\1')) + next),
                      only({0, 0}, std::int16_t{5}));
        }
    }
    EXPECT_EQ(read(record(16, cellHeader(0, 0) + std::string(10, '\0'))), only({0, 0}, Formula{""}));
    EXPECT_EQ(read(record(15, cellHeader(0, 0) + std::string(2, '\0'))), only({0, 0}, Label{""}));
}

TEST(WksReader, ALongerBodyIsReadFromItsFront) {
    EXPECT_EQ(read(record(13, cellHeader(0, 0) + int16ToBytes(5) + "more")), only({0, 0}, std::int16_t{5}));
}

TEST(WksReader, ARecordCutShortEndsTheReading) {
    const std::string first = integerRecord(0, 0, 5);
    const std::string second = labelRecord(1, 0, "second");
    for (std::size_t length = 0; length < second.size(); ++length) {
        EXPECT_EQ(read(first + second.substr(0, length)), only({0, 0}, std::int16_t{5}));
    }
}

TEST(WksReader, EveryPrefixOfAGoodFileIsSafe) {
    SheetGrid sheet(3, 3);
    sheet.at({0, 0}) = 1.5;
    sheet.at({1, 1}) = Label{"label"};
    sheet.at({2, 2}) = Formula{"SUM(A1:B2)*2.0E0"};
    const std::string content = writeWks(sheet);
    EXPECT_EQ(read(content), sheet);
    readEveryPrefix(content, [](File& opened) { return readWks(opened); });
}

TEST(WksReader, AFormulaThatIsTooDeepIsAnErrorWithTheNameOfItsCell) {
    std::string tokens;
    for (int i = 0; i < 102; ++i) {
        tokens += integer(1);
    }
    try {
        read(formulaRecord(1, 2, tokens));
        FAIL();
    } catch (const SheetError& error) {
        EXPECT_EQ(error.number(), 9);
        EXPECT_EQ(error.line().substr(0, 4), "B3: ");
    }
}

TEST(WksReader, TheDialectReachesTheFormulas) {
    const std::string content = formulaRecord(0, 0, integer(1) + bytes({4}) + end);
    EXPECT_EQ(read(content), only({0, 0}, Formula{"ERR"}));
    EXPECT_EQ(read(content, WksDialect::Common), only({0, 0}, Formula{"(1)"}));
}

TEST(WksReader, NoBytesThrowAnythingButARunTimeError) {
    std::mt19937 random(5);
    for (int i = 0; i < 3000; ++i) {
        std::string content;
        while (random() % 8 != 0) {
            std::string body(random() % 40, '\0');
            for (char& c : body) {
                c = static_cast<char>(random() % 4 == 0 ? random() : random() % 12);
            }
            content += record(static_cast<int>(random() % 20), body);
        }
        try {
            const SheetGrid sheet = read(content.substr(0, random() % (content.size() + 1)));
            ASSERT_TRUE(sheet.exists());
            ASSERT_LE(sheet.rows(), kSheetRows);
            ASSERT_LE(sheet.columns(), kSheetColumns);
        } catch (const RunTimeError&) {
        }
    }
}

TEST(WksReader, PassesOnAFailureOfTheFile) {
    MemoryFiles memory;
    memory.addFile("/sample", file(integerRecord(0, 0, 1)));
    FailingFiles files(memory);
    files.failAtCall(FileCall::Read, 1, ErrorNumber::DeviceIoError);
    const auto opened = files.open("/sample", OpenMode::Read);
    EXPECT_THROW(readWks(*opened), RunTimeError);
}

LeftOut leftOutOfWks(const std::string& content) {
    return readSample(content, [](File& file) {
        LeftOut leftOut;
        readWks(file, WksDialect::Own, &leftOut);
        return leftOut;
    });
}

TEST(WksReader, CountsCellsOutside) {
    EXPECT_EQ(leftOutOfWks(file(integerRecord(25, 98, 1))).cells, 0U);
    EXPECT_EQ(leftOutOfWks(file(integerRecord(26, 0, 2) + integerRecord(0, 99, 3))).cells, 2U);
}

TEST(WksReader, TellsAFileThatIsCutOff) {
    const std::string whole = file(integerRecord(0, 0, 1) + labelRecord(1, 0, "Sum"));
    EXPECT_FALSE(leftOutOfWks(whole).end);
    EXPECT_FALSE(leftOutOfWks(whole + "rest").end) << "nothing belongs behind the end";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_TRUE(leftOutOfWks(whole.substr(0, length)).end) << length;
    }
}

}  // namespace
}  // namespace velmora
