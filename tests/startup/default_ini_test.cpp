#include "startup/default_ini.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "startup/messages.h"
#include "startup/settings.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

using ::testing::HasSubstr;

class DefaultIni : public ::testing::Test, protected test::IniRig {
  protected:
    DefaultIni() { given(defaultIni()); }
    Strings messages() {
        Strings strings;
        get_Messages(ini, strings);
        return strings;
    }
    Settings settings() {
        Settings read;
        readSettings(ini, SettingStep::get_Settings, {}, read);
        readSettings(ini, SettingStep::init_Ports, {}, read);
        return read;
    }
};

/// CRC-32 of ISO 3309, as zlib and gzip compute it.
std::uint32_t crc32(const std::string& bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char c : bytes) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

// The file is part of what users and their notes rely on: not a byte of it changes by accident.
TEST_F(DefaultIni, IsTheSameByteForByte) {
    EXPECT_EQ(defaultIni().size(), 5413U);
    EXPECT_EQ(crc32(defaultIni()), 0xdea38f44U);
}

TEST_F(DefaultIni, EndsEveryLineWithCarriageReturnAndLineFeed) {
    const std::string file = defaultIni();
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 147);
    for (std::size_t i = 0; i < file.size(); ++i) {
        EXPECT_EQ(file[i] == '\n', i > 0 && file[i - 1] == '\r') << i;
    }
    EXPECT_TRUE(file.ends_with("terminate Velmora?\"\r\n"));
}

TEST_F(DefaultIni, KeepsItsOddLines) {
    EXPECT_THAT(defaultIni(), HasSubstr("\r\nDataFileType = 0\r\n"));
    EXPECT_THAT(defaultIni(), HasSubstr("importing Data files to speradsheet programs\r\n"));
    EXPECT_THAT(defaultIni(),
                HasSubstr("\r\nError=\"\",\"Waiting for link\"    ;first line is for error message, do "
                          "not use!\r\n"));
}

TEST_F(DefaultIni, HasItsSectionsInOrder) {
    ini.setSectionName("Settings");
    std::string names = ini.GetSections();
    std::replace(names.begin(), names.end(), '\0', ' ');
    EXPECT_EQ(names, "Settings OnExit DisplayStrings InfoStrings Dialogs ErrorMessages  ");
}

TEST_F(DefaultIni, GivesBothLinesOfEveryDisplayText) {
    const auto& texts = messages().DisplayStrings;
    const std::array<DisplayText, Strings::kDisplayCount> expected = {
        {{"Please set PROTOCOL to PSION in organiser menu COMMS/SETUP...", "and click Start!"},
         {"No port selected", "The server could not find a free serial port!"},
         {"", ""},
         {"Server was stopped by Organiser!", "  Click Start!"},
         {" Server offline", "  Click Start!"},
         {"Waiting for link", " "},
         {"", "  Connecting..."},
         {" Accessing file", ""},
         {" Uploading file", ""},
         {"Downloading file", ""},
         {"    Sending", "   directory"},
         {"    Sending", "      menu"},
         {"Sending code", ""},
         {"", ""},
         {"", "Waiting for link"}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(texts[i].line1, expected[i].line1) << i;
        EXPECT_EQ(texts[i].line2, expected[i].line2) << i;
    }
}

TEST_F(DefaultIni, GivesTheBuiltInSingleTexts) {
    const Strings builtIn;
    const Strings read = messages();
    const std::string Strings::*const texts[] = {
        &Strings::Files,       &Strings::Bytes,         &Strings::Received,         &Strings::Sent,
        &Strings::Error,       &Strings::FolderCaption, &Strings::DownloadPath,     &Strings::BadBlockFile,
        &Strings::BadBootFile, &Strings::FileNotFound,  &Strings::TooManyErrors,    &Strings::UserInterrupt,
        &Strings::LineDown,    &Strings::OnExitAskText, &Strings::OnShutdownAskText};
    for (const auto text : texts) {
        EXPECT_EQ(read.*text, builtIn.*text);
    }
    EXPECT_EQ(read.PortStatus, builtIn.PortStatus);
}

TEST_F(DefaultIni, GivesTheDefaultSettings) {
    const Settings read = settings();
    EXPECT_EQ(read.DownloadPath, "");
    EXPECT_EQ(read.Port, 0);
    EXPECT_EQ(read.Baud, 9600);
    EXPECT_EQ(read.DataFileType, 0);
    EXPECT_EQ(read.WksDialect, std::nullopt);
    const ServerOptions defaults;
    for (const SettingRow& row : settingsTable()) {
        if (row.flag != nullptr) {
            EXPECT_EQ(read.options.*row.flag, defaults.*row.flag) << row.key;
        }
    }
}

TEST_F(DefaultIni, HoldsEverySettingThatIsNotForTheFew) {
    for (const SettingRow& row : settingsTable()) {
        ini.setSectionName(std::string(row.section));
        const bool present = ini.GetString(std::string(row.key), "missing") != "missing";
        const bool forTheFew = row.key == "WksDialect" || row.key == "EarlierCopies" ||
                               row.key == "StayInFolder" || row.key == "Reconnect" ||
                               row.key == "PortIdentity" || row.key == "HideToTray";
        EXPECT_EQ(present, !forTheFew) << row.key;
    }
    ini.setSectionName("Settings");
    EXPECT_FALSE(ini.SectExist("Ports"));
}

TEST_F(DefaultIni, HoldsEveryTextThatIsRead) {
    for (const MessageKey& message : messageKeys()) {
        ini.setSectionName(std::string(message.section));
        EXPECT_NE(ini.GetString(std::string(message.key), "missing"), "missing") << message.key;
    }
}

}  // namespace
}  // namespace velmora
