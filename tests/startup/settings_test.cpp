#include "startup/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "startup/ini_settings_store.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

class SettingsFile : public ::testing::Test, protected test::IniRig {
  protected:
    Settings read(const std::string& contents) {
        given(contents);
        Settings settings;
        readSettings(ini, SettingStep::get_Settings, {}, settings);
        readSettings(ini, SettingStep::init_Ports, {}, settings);
        return settings;
    }
    Settings readEntry(const std::string& line) { return read("[Settings]\r\n" + line + "\r\n"); }
    int errorOf(const std::string& line) {
        try {
            readEntry(line);
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    }
};

TEST_F(SettingsFile, AnEmptyFileGivesTheDefaults) {
    const Settings settings = read("");
    EXPECT_EQ(settings.DownloadPath, "");
    EXPECT_EQ(settings.Port, -1);
    EXPECT_EQ(settings.Baud, 9600);
    EXPECT_EQ(settings.DataFileType, 0);
    EXPECT_EQ(settings.WksDialect, std::nullopt);
    EXPECT_FALSE(settings.StayInFolder);
}

TEST_F(SettingsFile, TheAdapterIsATextAndReconnectingIsTheRule) {
    EXPECT_EQ(read("").options.PortIdentity, "");
    EXPECT_EQ(readEntry("PortIdentity= 0403:6001:A50285BI ").options.PortIdentity, "0403:6001:A50285BI");
    EXPECT_TRUE(read("").options.Reconnect);
    EXPECT_FALSE(readEntry("Reconnect=False").options.Reconnect);
}

TEST_F(SettingsFile, TheWindowGoesIntoTheTrayOnlyWhereThatIsWanted) {
    EXPECT_FALSE(read("").options.HideToTray);
    EXPECT_TRUE(readEntry("HideToTray=True").options.HideToTray);
    EXPECT_EQ(errorOf("HideToTray=sometimes"), 13);
}

TEST_F(SettingsFile, APortOfTheCommandLineTakesThePlaceOfTheFilesAdapterToo) {
    RunOverrides overrides;
    EXPECT_FALSE(isOverridden(overrides, "Settings", "PortIdentity"));
    overrides.port = "COM7";
    EXPECT_TRUE(isOverridden(overrides, "Settings", "PortIdentity"));
}

TEST_F(SettingsFile, StayingInTheFolderIsReadAsAFlag) {
    EXPECT_TRUE(readEntry("StayInFolder=Yes").StayInFolder);
    EXPECT_FALSE(readEntry("StayInFolder=0").StayInFolder);
    EXPECT_EQ(errorOf("StayInFolder=perhaps"), 13);
}

TEST_F(SettingsFile, EveryFlagIsReadFromItsOwnKey) {
    const ServerOptions defaults;
    for (const SettingRow& row : settingsTable()) {
        if (row.flag == nullptr) {
            continue;
        }
        const bool flipped = !(defaults.*row.flag);
        const Settings settings = read("[" + std::string(row.section) + "]\r\n" + std::string(row.key) + "=" +
                                       (flipped ? "Yes" : "No") + "\r\n");
        for (const SettingRow& other : settingsTable()) {
            if (other.flag != nullptr) {
                EXPECT_EQ(settings.options.*other.flag, &other == &row ? flipped : defaults.*other.flag)
                    << row.key << " " << other.key;
            }
        }
    }
}

TEST_F(SettingsFile, AnyRateThatADeviceMightTakeIsKept) {
    for (const int rate :
         {9600, 2400, 1200, 4800, 19200, 38400, 57600, 115200, 31250, 24, 96, 1, 4'000'000}) {
        EXPECT_EQ(readEntry("Baud=" + std::to_string(rate)).Baud, rate);
    }
}

TEST_F(SettingsFile, WhatIsNoRateFallsBackTo9600) {
    for (const std::string rate : {"0", "-1", "00", "fast", "4000001", "", "baud 9600"}) {
        EXPECT_EQ(readEntry("Baud=" + rate).Baud, 9600) << rate;
    }
}

TEST_F(SettingsFile, TheFileTypeIsZeroToThree) {
    for (const auto& [text, type] : {std::pair{"0", 0}, {"3", 3}, {"4", 0}, {"-1", 0}, {"x", 0}, {"1", 1}}) {
        EXPECT_EQ(readEntry(std::string("DataFileType = ") + text).DataFileType, type) << text;
    }
}

TEST_F(SettingsFile, TheWorksheetDialectIsReadWhenPresent) {
    EXPECT_EQ(readEntry("WksDialect=0").WksDialect, 0);
    EXPECT_EQ(readEntry("WksDialect=1").WksDialect, 1);
    EXPECT_EQ(readEntry("WksDialect=7").WksDialect, 0);
    EXPECT_EQ(readEntry("WksDialect=").WksDialect, std::nullopt);
}

TEST_F(SettingsFile, EarlierCopiesAreKeptForThirtyDaysUnlessTheFileSaysOtherwise) {
    for (const auto& [text, days] : {std::pair{"", 30},
                                     {"EarlierCopies=0", 0},
                                     {"EarlierCopies=365", 365},
                                     {"EarlierCopies=-1", 30},
                                     {"EarlierCopies=True", 30},
                                     {"EarlierCopies=/7", 30},
                                     {"EarlierCopies= 7 days", 7}}) {
        EXPECT_EQ(readEntry(text).EarlierCopies, days) << text;
    }
}

TEST_F(SettingsFile, NumbersBeyondSixteenBitsAreOverflows) {
    for (const std::string line : {"Port=40000", "DataFileType=99999", "WksDialect=70000"}) {
        EXPECT_EQ(errorOf(line), 6) << line;
    }
}

TEST_F(SettingsFile, AFlagThatIsNoneIsATypeError) {
    EXPECT_EQ(errorOf("AutoStart=maybe"), 13);
}

TEST_F(SettingsFile, TheDownloadPathIsTrimmedAndKeepsItsCharacters) {
    EXPECT_EQ(readEntry("DownloadPath=\"  /home/\xE2\x98\x83  \"").DownloadPath, "/home/\xE2\x98\x83");
}

TEST_F(SettingsFile, KeysAreFoundInAnyCase) {
    ASSERT_NE(findSetting("settings", "BAUD"), nullptr);
    EXPECT_EQ(findSetting("settings", "BAUD")->key, "Baud");
    EXPECT_EQ(findSetting("OnExit", "Baud"), nullptr);
}

TEST_F(SettingsFile, EveryRowHasExactlyOnePlaceAndNoKeyTwice) {
    for (const SettingRow& row : settingsTable()) {
        const int places = (row.path != nullptr) + (row.number != nullptr) + (row.flag != nullptr) +
                           (row.optionalNumber != nullptr) + (row.limit != nullptr) +
                           (row.wideNumber != nullptr) + (row.text != nullptr);
        EXPECT_EQ(places, 1) << row.key;
        EXPECT_EQ(findSetting(row.section, row.key), &row);
    }
}

// --- [Ports]

TEST_F(SettingsFile, PortsAreGivenDevices) {
    given("[Ports]\r\nCOM7=/dev/serial/by-id/x\r\ncom300 = \"/dev/\xC3\xA9\"\r\nCOM7=/dev/second\r\n");
    EXPECT_THAT(readPortDevices(ini),
                ElementsAre(Pair("COM300", "/dev/\xC3\xA9"), Pair("COM7", "/dev/serial/by-id/x")));
}

TEST_F(SettingsFile, TheFirstAndTheLastPortAreGivenDevices) {
    given("[Ports]\r\nCOM1=/dev/first\r\nCOM32767=/dev/last\r\n");
    EXPECT_THAT(readPortDevices(ini), ElementsAre(Pair("COM1", "/dev/first"), Pair("COM32767", "/dev/last")));
}

TEST_F(SettingsFile, WhatIsNoPortIsLeftOut) {
    given("[Ports]\r\nCOM0=/a\r\nCOM=/a\r\nCOM-1=/a\r\nCOM1x=/a\r\nCOM32768=/a\r\nLPT1=/a\r\nCOM5=\r\nx\r\n");
    EXPECT_TRUE(readPortDevices(ini).empty());
    EXPECT_TRUE(box.shown.empty());
}

// --- Saving

class SettingsSaved : public SettingsFile {
  protected:
    RunOverrides overrides_;
    IniSettingsStore store_{ini, overrides_};
};

TEST_F(SettingsSaved, AnEntryReplacesItsLine) {
    given("[Settings]\r\nDataFileType = 0\r\n; end\r\n");
    store_.put("Settings", "DataFileType", "2");
    EXPECT_EQ(contents(), "[Settings]\r\nDataFileType=2\r\n; end\r\n");
}

TEST_F(SettingsSaved, TheDownloadPathKeepsItsCharacters) {
    given("[Settings]\r\nDownloadPath=\r\n");
    store_.put("Settings", "DownloadPath", "/home/\xE2\x98\x83");
    EXPECT_EQ(read(contents()).DownloadPath, "/home/\xE2\x98\x83");
}

TEST_F(SettingsSaved, WhatTheCommandLineSaidIsNotWritten) {
    const std::string before = "[Settings]\r\nPort=1\r\nBaud=1200\r\n";
    given(before);
    overrides_.port = "COM3";
    overrides_.baud = 2400;
    overrides_.folder = "/x";
    overrides_.fileType = 3;
    overrides_.autoStart = true;
    overrides_.stayInFolder = true;
    for (const char* key : {"Port", "Baud", "DownloadPath", "DataFileType", "AutoStart", "StayInFolder"}) {
        store_.put("Settings", key, "9");
    }
    EXPECT_EQ(contents(), before);
    store_.put("Settings", "AutoHide", "True");
    store_.put("Other", "Port", "9");
    EXPECT_EQ(contents(), before + "AutoHide=True\r\n[Other]\r\nPort=9\r\n");
}

TEST_F(SettingsSaved, AFullDiskIsAnErrorAndTheOldFileStands) {
    given("[Settings]\r\nPort=1\r\n");
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    EXPECT_THROW(store_.put("Settings", "Port", "2"), RunTimeError);
    EXPECT_EQ(contents(), "[Settings]\r\nPort=1\r\n");
}

}  // namespace
}  // namespace velmora
