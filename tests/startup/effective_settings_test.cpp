#include "startup/effective_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "startup/settings.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

class EffectiveSettingsTest : public ::testing::Test, protected test::IniRig {
  protected:
    EffectiveSettingsTest() { memory.addFolder("/psion"); }

    std::vector<EffectiveSetting> effective() {
        return effectiveSettings(ini, files, rules, "/home/Documents", overrides);
    }
    /// Value and source of a key, "COM7" of [Ports] too.
    std::string of(const std::string& key) {
        const auto settings = effective();
        const auto found = std::ranges::find(settings, key, &EffectiveSetting::key);
        return found == settings.end() ? "nothing" : found->value + " (" + found->source + ")";
    }
    /// The file has this line and enough besides to be no stump.
    void givenLine(const std::string& line) {
        given("[Settings]\r\n" + line + "\r\n;" + std::string(100, ' ') + "\r\n");
    }
    RunOverrides overrides;
};

TEST_F(EffectiveSettingsTest, WithoutAFileEverySettingHasItsDefaultAndNothingIsMade) {
    ini.setIniFile(kPath);
    const auto settings = effective();
    ASSERT_EQ(settings.size(), settingsTable().size());
    for (const EffectiveSetting& setting : settings) {
        EXPECT_EQ(setting.source, "default") << setting.key;
    }
    EXPECT_EQ(of("Port"), "-1 (default)");
    EXPECT_EQ(of("DownloadPath"), "/home/Documents/Psion Files (default)");
    EXPECT_FALSE(memory.fileExists(kPath));
    EXPECT_FALSE(memory.folderExists("/home/Documents/Psion Files"));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(EffectiveSettingsTest, TheSectionsHaveTheOrderOfTheFile) {
    givenLine("[Ports]\r\nCOM7=/dev/x");
    std::vector<std::string> sections;
    for (const EffectiveSetting& setting : effective()) {
        if (sections.empty() || sections.back() != setting.section) {
            sections.push_back(setting.section);
        }
    }
    EXPECT_THAT(sections, ::testing::ElementsAre("Settings", "OnExit", "Ports"));
}

TEST_F(EffectiveSettingsTest, AnEntryOfTheFileCountsAsItIsRead) {
    givenLine(
        "DOWNLOADPATH=/psion/\r\nPort=7\r\nBaud=fast\r\nAutoHide=yes\r\nWksDialect=1\r\n[Ports]\r\ncom7=/dev/"
        "x");
    EXPECT_EQ(of("DownloadPath"), "/psion (file)");
    EXPECT_EQ(of("Port"), "7 (file)");
    EXPECT_EQ(of("Baud"), "9600 (file)");
    EXPECT_EQ(of("AutoHide"), "True (file)");
    EXPECT_EQ(of("WksDialect"), "1 (file)");
    EXPECT_EQ(of("COM7"), "/dev/x (file)");
    EXPECT_EQ(of("AutoSave"), "True (default)");
}

TEST_F(EffectiveSettingsTest, EverySettingIsShownAsTheFileWouldHaveIt) {
    overrides.autoStart = false;
    givenLine("StayInFolder=on\r\nAutoSave=no\r\nPortIdentity=0403:6001:A\r\nWksDialect=\r\nEarlierCopies=7");
    EXPECT_EQ(of("StayInFolder"), "True (file)");
    EXPECT_EQ(of("AutoSave"), "False (file)");
    EXPECT_EQ(of("AutoStart"), "False (program)");
    EXPECT_EQ(of("PortIdentity"), "0403:6001:A (file)");
    EXPECT_EQ(of("WksDialect"), " (file)");
    EXPECT_EQ(of("EarlierCopies"), "7 (file)");
}

TEST_F(EffectiveSettingsTest, AFolderThatIsNotThereGivesWayToTheUsualOne) {
    givenLine("DownloadPath=/gone");
    EXPECT_EQ(of("DownloadPath"), "/home/Documents/Psion Files (default)");
}

TEST_F(EffectiveSettingsTest, WhatTheCommandLineSaysIsNamedByItsOption) {
    givenLine("Port=7\r\nPortIdentity=0403:6001:A\r\nBaud=none");
    overrides.port = "/dev/ttyUSB3";
    overrides.baud = 1200;
    overrides.folder = "/psion";
    overrides.fileType = 2;
    overrides.stayInFolder = true;
    overrides.autoStart = true;
    EXPECT_EQ(of("Port"), "/dev/ttyUSB3 (--port)");
    EXPECT_EQ(of("PortIdentity"), " (--port)");
    EXPECT_EQ(of("Baud"), "1200 (--baud)");
    EXPECT_EQ(of("DownloadPath"), "/psion (--folder)");
    EXPECT_EQ(of("DataFileType"), "2 (--file-type)");
    EXPECT_EQ(of("StayInFolder"), "True (--stay-in-folder)");
    EXPECT_EQ(of("AutoStart"), "True (program)");
}

TEST_F(EffectiveSettingsTest, AStumpThatAStartWouldReplaceCountsAsNone) {
    given("[Settings]\r\nPort=7\r\n");
    EXPECT_EQ(of("Port"), "-1 (default)");
    EXPECT_EQ(contents(), "[Settings]\r\nPort=7\r\n");
}

TEST_F(EffectiveSettingsTest, AValueThatFailsTheStartFailsHere) {
    givenLine("AutoHide=perhaps");
    EXPECT_THROW(effective(), RunTimeError);
}

TEST_F(EffectiveSettingsTest, TheTableHasTheSourceFirst) {
    EXPECT_EQ(printedSettings(
                  {{"Settings", "Port", "7", "file"}, {"Settings", "DownloadPath", "/a b", "--folder"}}),
              "file      [Settings] Port=7\n"
              "--folder  [Settings] DownloadPath=/a b\n");
}

}  // namespace
}  // namespace velmora
