// Clock, boot code and spreadsheets over the line, also when it loses and repeats frames.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <regex>
#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

using namespace std::string_literals;

class ServicesTest : public ServerFixture {
  protected:
    const std::vector<std::string> faults = {"--drop", "0.03", "--duplicate", "0.1", "--seed", "11"};
};

TEST_F(ServicesTest, ClockInAZoneEastOfGreenwich) {
    zone = "Asia/Kolkata";
    startServer();
    const Finished local = organiser({"time"});
    EXPECT_TRUE(std::regex_search(local.output, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)")))
        << local.output;
    const Finished zoned = organiser({"timeinfo"}, faults);
    EXPECT_EQ(zoned.status, 0) << zoned.error;
    EXPECT_TRUE(std::regex_search(zoned.output, std::regex(R"(\d\d:\d\d:\d\d \+0530  )"))) << zoned.output;
    const Finished universal = organiser({"gmt"}, faults);
    EXPECT_TRUE(std::regex_search(universal.output, std::regex(R"(\d\d:\d\d:\d\d  )"))) << universal.output;
}

TEST_F(ServicesTest, BootCodeArrivesRelocatedInThreeChunks) {
    std::string code(450, '\0');
    for (std::size_t i = 0; i < code.size(); ++i) {
        code[i] = static_cast<char>(i * 13);
    }
    const auto put = [&code](std::size_t offset, unsigned word) {
        code[offset] = static_cast<char>(word >> 8);
        code[offset + 1] = static_cast<char>(word & 0xFF);
    };
    put(16, 0x1234);
    put(448, 0x0100);
    writeFile(home / "code", code);
    const Finished made = filesTool({"boot", "make", organiserPath(home / "code"), "--relocations", "16,448",
                                     "-o", organiserPath(psion / "Loader.bin")});
    ASSERT_EQ(made.status, 0) << made.output << made.error;

    startServer({"--trace"});
    for (const auto& options : {std::vector<std::string>{}, faults}) {
        const Finished booted =
            organiser({"boot", "LOADER", "--address", "2000", "-o", organiserPath(home / "booted")}, options);
        ASSERT_EQ(booted.status, 0) << booted.output << booted.error;
        put(16, 0x3234);
        put(448, 0x2100);
        EXPECT_EQ(contentsOf(home / "booted"), code);
    }
    EXPECT_TRUE(server->waitForOutput("Sending code"));
    // The load address goes before each chunk (the length in the trace counts doubled bytes too).
    for (const char* address : {"\t <00>", "\t <C8>", "\t!<90>"}) {
        EXPECT_TRUE(server->waitForError(address)) << address;
    }
}

TEST_F(ServicesTest, ADamagedBootFileIsRefused) {
    writeFile(psion / "Bad.bin", "\x00\x02"s + "ab" + "\xFF\xFF\x00\x00\x00\x00"s);
    startServer();
    const Finished refused = organiser({"boot", "BAD", "--address", "2000"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_NE((refused.output + refused.error).find("188"), std::string::npos)
        << refused.output << refused.error;
    EXPECT_EQ(organiser({"time"}).status, 0);
}

TEST_F(ServicesTest, SpreadsheetsGoThereAndBackInEveryFormat) {
    startServer();
    writeFile(home / "cells",
              "A1 'Item\r\nB1 'Price\r\nA2 'Tea\r\nB2 1.25\r\nA3 'Cup\r\nB3 3\r\nB4 =SUM(B2:B3)\r\n");
    for (const std::string format : {"wks", "dif", "csv", "txt", "tab"}) {
        const Finished saved = organiser(
            {"sheet-save", organiserPath(home / "cells"), "--as", "SHEET" + format, "--format", format},
            faults);
        ASSERT_EQ(saved.status, 0) << format << saved.output << saved.error;
        const Finished loaded = organiser({"sheet-load", "SHEET" + format, "--format", format}, faults);
        ASSERT_EQ(loaded.status, 0) << format << loaded.output << loaded.error;
        EXPECT_NE(loaded.output.find("Price"), std::string::npos) << format << loaded.output;
        if (format == "wks") {
            EXPECT_NE(loaded.output.find("B4 =SUM(B2:B3)"), std::string::npos) << loaded.output;
        }
        // A CSV file comes back as one label a line; in the fixed columns a label that is as long as its
        // column touches the number behind it.
        if (format != "csv" && format != "txt") {
            EXPECT_NE(loaded.output.find("B3 3"), std::string::npos) << format << loaded.output;
        }
    }
}

TEST_F(ServicesTest, TheCommonDialectMarksParenthesesInWorksheets) {
    constexpr char kParentheses = 4;
    writeFile(home / "cells", "A1 1\r\nB1 2\r\nC1 3\r\nD1 =(A1+B1)*C1\r\n");
    for (const bool common : {false, true}) {
        writeFile(
            serverSide->configuration(home),
            "; " + std::string(100, '-') + "\r\n[Settings]\r\nWksDialect=" + (common ? "1" : "0") + "\r\n");
        startServer();
        ASSERT_EQ(
            organiser({"sheet-save", organiserPath(home / "cells"), "--as", "SUM", "--format", "wks"}).status,
            0);
        const std::string tokens = contentsOf(psion / "Sum.wks").substr(20);
        EXPECT_EQ(tokens.find(std::string("\x09") + kParentheses + "\x01") != std::string::npos, common);
        const Finished loaded = organiser({"sheet-load", "SUM", "--format", "wks"});
        EXPECT_NE(loaded.output.find("D1 =(A1+B1)*C1"), std::string::npos) << loaded.output;
        stopServer();
        server->wait();
    }
}

TEST_F(ServicesTest, FormulasThatWillNotComeBackAreNamedInTheLogAndTheTrace) {
    startServer({"--trace"});
    writeFile(home / "cells", "A1 1\r\nB2 =A1-(B1-C1)\r\n");
    ASSERT_EQ(
        organiser({"sheet-save", organiserPath(home / "cells"), "--as", "SUM", "--format", "wks"}).status, 0);
    EXPECT_TRUE(server->waitForOutput("Sum.wks, B2: =A1-(B1-C1) comes back as =A1-B1-C1"));
    EXPECT_TRUE(server->waitForError("Sum.wks, B2: =A1-(B1-C1) comes back as =A1-B1-C1"));
    writeFile(home / "cells", "A1 1\r\nC9 =A1+(\r\n");
    const Finished refused =
        organiser({"sheet-save", organiserPath(home / "cells"), "--as", "SUM", "--format", "wks"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_TRUE(server->waitForOutput("Sum.wks, C9: =A1+( cannot be saved"));
    EXPECT_NE(organiser({"sheet-load", "SUM", "--format", "wks"}).output.find("B2"), std::string::npos)
        << "the sheet saved before stands";
}

TEST_F(ServicesTest, AWorksheetUnderTheNameOfSomethingElseIsRefusedWith189) {
    std::filesystem::create_directory(psion / "Folder.wks");
    std::filesystem::create_symlink("nowhere", psion / "Link.wks");
    std::filesystem::create_symlink("/dev/null", psion / "Device.wks");
    ASSERT_EQ(::mkfifo((psion / "Pipe.wks").c_str(), 0600), 0);
    startServer();
    writeFile(home / "cells", "A1 1\r\n");
    for (const std::string name : {"FOLDER", "LINK", "DEVICE", "PIPE"}) {
        const Finished refused =
            organiser({"sheet-save", organiserPath(home / "cells"), "--as", name, "--format", "wks"});
        EXPECT_EQ(refused.status, 3) << name;
        EXPECT_NE((refused.output + refused.error).find("189"), std::string::npos)
            << name << refused.output << refused.error;
    }
}

TEST_F(ServicesTest, AMissingWorksheetIsRefusedWithTheErrorNumberInDigits) {
    startServer();
    const Finished refused = organiser({"sheet-load", "NONE", "--format", "wks"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_NE((refused.output + refused.error).find("53"), std::string::npos)
        << refused.output << refused.error;
}

}  // namespace
}  // namespace velmora::e2e
