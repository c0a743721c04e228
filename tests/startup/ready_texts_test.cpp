#include "startup/ready_texts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "link/server_state.h"
#include "startup/default_ini.h"
#include "startup/messages.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

using ::testing::HasSubstr;
using ::testing::UnorderedElementsAreArray;

constexpr const char* kReady = "/languages/Velmora.xx.ini";

std::string readyFile(const std::string& language) {
    std::ifstream file(VELMORA_SOURCE_DIR "/packaging/languages/Velmora." + language + ".ini",
                       std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class TakenTexts : public ::testing::Test, protected test::IniRig {
  protected:
    void ready(const std::string& contents) { memory.addFile(kReady, contents); }
    std::string take() { return takeTexts(profiles, files, rules, kReady, kPath); }
    Strings messages() {
        Strings strings;
        get_Messages(ini, strings);
        return strings;
    }
};

TEST_F(TakenTexts, ReplaceTextsAndNothingElse) {
    given("; mine\r\n[Settings]\r\nPort=7\r\n\r\n[InfoStrings]\r\nFiles=\"Files\"\r\nInUse=\"busy\"\r\n");
    ready("[Settings]\r\nPort=1\r\n[InfoStrings]\r\nFiles=\"Dateien\"\r\nInUse=\"belegt\"\r\n");
    take();
    EXPECT_EQ(
        contents(),
        "; mine\r\n[Settings]\r\nPort=7\r\n\r\n[InfoStrings]\r\nFiles=\"Dateien\"\r\nInUse=\"busy\"\r\n");
}

TEST_F(TakenTexts, KeepTheirQuotesAndBlanks) {
    given(defaultIni());
    ready(
        "[DisplayStrings]\r\nWaitLink=\"Warte auf Anruf\",\" \"\r\n[ErrorMessages]\r\nLineDown=\" weg! "
        "\"\r\n");
    take();
    EXPECT_EQ(messages().DisplayStrings[WaitLink], (DisplayText{"Warte auf Anruf", " "}));
    EXPECT_EQ(messages().LineDown, " weg! ");
}

TEST_F(TakenTexts, LeaveTheFileAsItWasBesideIt) {
    given(defaultIni());
    ready("[InfoStrings]\r\nSent=\"Gesendet\"\r\n");
    EXPECT_EQ(take(), std::string(kPath) + ".old");
    const std::string first = contents();
    EXPECT_EQ(memory.content(std::string(kPath) + ".old"), defaultIni());
    EXPECT_EQ(take(), std::string(kPath) + ".old2");
    EXPECT_EQ(memory.content(std::string(kPath) + ".old2"), first);
    EXPECT_EQ(memory.content(std::string(kPath) + ".old"), defaultIni());
}

class ReadyTexts : public TakenTexts, public ::testing::WithParamInterface<const char*> {};

TEST_P(ReadyTexts, HaveEachTextAndNoOther) {
    given(readyFile(GetParam()));
    std::vector<std::string> wanted;
    for (const MessageKey& message : messageKeys()) {
        wanted.push_back(std::string(message.section) + '.' + std::string(message.key));
    }
    std::vector<std::string> found;
    for (const char* section : {"DisplayStrings", "InfoStrings", "Dialogs", "ErrorMessages", "Settings"}) {
        ini.setSectionName(section);
        for (const auto& [key, value] : ini.GetSectEntriesEx()) {
            found.push_back(std::string(section) + '.' + key);
        }
    }
    EXPECT_THAT(found, UnorderedElementsAreArray(wanted));
}

TEST_P(ReadyTexts, FitWhereTheyAreShown) {
    given(readyFile(GetParam()));
    const Strings strings = messages();
    constexpr std::size_t kColumns = 16;
    for (const int state :
         {Offline, WaitLink, Connect, FileAccess, Upload, Downld, SendDir, SendMenu, Error}) {
        EXPECT_LE(strings.DisplayStrings[state].line1.size(), kColumns)
            << strings.DisplayStrings[state].line1;
        EXPECT_LE(strings.DisplayStrings[state].line2.size(), kColumns)
            << strings.DisplayStrings[state].line2;
    }
    for (const int state : {Welcome, OnExit}) {
        EXPECT_LE(strings.DisplayStrings[state].line2.size(), kColumns)
            << "line 1 scrolls, and only one does";
    }
    for (const DisplayText& text : strings.DisplayStrings) {
        EXPECT_EQ(text.line1.find(','), std::string::npos) << "line 2 is looked for behind it";
    }
    constexpr std::size_t kHeading = 12;
    for (const std::string& heading :
         {strings.Files, strings.Bytes, strings.Received, strings.Sent, strings.Error}) {
        EXPECT_LE(heading.size(), kHeading) << heading;
    }
}

TEST_P(ReadyTexts, AreTakenOverIntoTheDefaultFile) {
    const std::string made = readyFile(GetParam());
    given(made);
    const Strings wanted = messages();
    given(defaultIni());
    ready(made);
    take();
    const Strings taken = messages();
    EXPECT_EQ(taken.DisplayStrings, wanted.DisplayStrings);
    EXPECT_EQ(taken.UserInterrupt, wanted.UserInterrupt);
    EXPECT_EQ(taken.FolderCaption, wanted.FolderCaption);
    EXPECT_EQ(taken.Received, wanted.Received);
    EXPECT_THAT(contents(), HasSubstr("AutoSave=True"));
}

INSTANTIATE_TEST_SUITE_P(Languages, ReadyTexts, ::testing::Values("en", "de", "es", "fr", "it", "nl"),
                         [](const auto& given) { return std::string(given.param); });

}  // namespace
}  // namespace velmora
