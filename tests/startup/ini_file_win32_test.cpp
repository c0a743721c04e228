#include <gtest/gtest.h>

#include "platform/known_folders.h"
#include "platform/profile/text_profile_files.h"
#include "platform/profile/win32_profile_files.h"
#include "platform/win32/win32_files.h"
#include "platform/windows_paths.h"
#include "startup/default_ini.h"
#include "startup/ini_file.h"
#include "support/recording_box.h"
#include "support/temp_folder.h"
#include "support/win_ini_section.h"

namespace velmora {
namespace {

class Win32IniFile : public ::testing::Test {
  protected:
    test::TempFolder folder_;
    Win32Files files_{folder_.path()};
    WindowsPaths rules_{currentFolder()};
    Win32ProfileFiles profiles_{files_, rules_};
    TextProfileFiles ours_{files_, rules_, PathEncoding::Windows1252};
    test::RecordingBox box_;
    clsIniFile ini_{profiles_, rules_, box_, windowsFolder()};
};

TEST_F(Win32IniFile, TheDefaultFileReadsAlikeByTheSystemAndByOurOwnReader) {
    const std::string path = folder_.write("Velmora.ini", defaultIni());
    ini_.setIniFile(path);
    clsIniFile own(ours_, rules_, box_);
    own.setIniFile(path);
    int entries = 0;
    for (const char* section :
         {"Settings", "OnExit", "DisplayStrings", "InfoStrings", "Dialogs", "ErrorMessages"}) {
        ini_.setSectionName(section);
        own.setSectionName(section);
        EXPECT_TRUE(ini_.SectExist(section)) << section;
        EXPECT_EQ(ini_.GetSectEntries(), own.GetSectEntries()) << section;
        for (const auto& [key, value] : own.GetSectEntriesEx()) {
            EXPECT_EQ(ini_.GetString(key, "-"), own.GetString(key, "-")) << key;
            ++entries;
        }
    }
    EXPECT_GT(entries, 40);
    EXPECT_EQ(ini_.GetSections(), own.GetSections());
    ini_.setSectionName("Settings");
    EXPECT_EQ(ini_.GetInt("Baud", 0), 9600);
    EXPECT_TRUE(ini_.GetBool("AutoSave", false));
}

TEST_F(Win32IniFile, SavedSettingsComeBackAndTheTextsOfTheFileStay) {
    ini_.setIniFile(folder_.write("Velmora.ini", defaultIni()));
    ini_.setSectionName("ErrorMessages");
    const std::string messages = ini_.GetSectEntries();
    ini_.setSectionName("Settings");
    ini_.PutInt("Port", 7);
    ini_.PutInt("DataFileType", 3);
    ini_.PutBool("AutoStart", true);
    ini_.PutPath("DownloadPath", "C:\\Psion \xFC");
    ini_.FlushCache();
    EXPECT_EQ(ini_.GetInt("Port", 0), 7);
    EXPECT_EQ(ini_.GetInt("DataFileType", 0), 3);
    EXPECT_TRUE(ini_.GetBool("AutoStart", false));
    EXPECT_EQ(ini_.GetPath("DownloadPath", ""), "C:\\Psion \xFC");
    ini_.setSectionName("ErrorMessages");
    EXPECT_EQ(ini_.GetSectEntries(), messages);
    EXPECT_NE(profiles_.text(ini_.IniFile()).find("; Baud: Baud rate (transfer speed)"), std::string::npos);
}

TEST_F(Win32IniFile, TheSystemProfileIsUsedAndTheOwnFileComesBack) {
    const test::WinIniSection section("VelmoraIniFileTest");
    if (!section.isWritable()) {
        GTEST_SKIP() << "win.ini cannot be written here";
    }
    const std::string path = folder_.write("Velmora.ini", "[Settings]\r\nPort=3\r\n");
    ini_.setIniFile(path);
    ini_.setUseWinINI(true);
    ini_.setSectionName(section.name());
    EXPECT_EQ(ini_.BaseName(), "win");
    EXPECT_EQ(ini_.PrivPath(), windowsFolder());
    ini_.PutInt("Port", 9);
    EXPECT_EQ(ini_.GetInt("Port", 0), 9);
    EXPECT_TRUE(ini_.SectExist(section.name()));
    ini_.DeleteSection();
    EXPECT_EQ(ini_.GetInt("Port", -1), -1);
    ini_.setUseWinINI(false);
    ini_.setSectionName("Settings");
    EXPECT_EQ(ini_.IniFile(), path);
    EXPECT_EQ(ini_.GetInt("Port", 0), 3);
    EXPECT_TRUE(box_.shown.empty());
}

}  // namespace
}  // namespace velmora
