#include "startup/comms_link.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <random>
#include <stdexcept>

#include "base/run_time_error.h"
#include "link/server_state.h"
#include "startup/default_ini.h"
#include "support/ini_rig.h"
#include "support/recording_form.h"

namespace velmora {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;

const std::string kBox = "Please report this error to the issue page of the Velmora project!";

class Startup : public ::testing::Test, protected test::IniRig {
  protected:
    Startup() {
        memory.addFolder("/home/.config");
        memory.addFolder("/home/docs");
    }
    /// A file that is long enough to be kept, with these lines.
    void givenIni(const std::string& lines) {
        memory.addFile(kPath, lines + "\r\n; " + std::string(100, '.') + "\r\n");
    }
    void givenSetting(const std::string& line) { givenIni("[Settings]\r\nPort=1\r\n" + line); }
    StartupReport start(const std::string& commandLine = {}) { return link_.Main(commandLine); }
    void expectFailure(const StartupReport& report, const std::string& step, int number) {
        EXPECT_EQ(report.outcome, StartupOutcome::Failed);
        EXPECT_EQ(report.step, step);
        EXPECT_EQ(report.number, number);
        ASSERT_FALSE(box.shown.empty());
        EXPECT_EQ(box.shown.back().icon, BoxIcon::Critical);
        EXPECT_EQ(box.shown.back().title, "Oops, Velmora Error");
        EXPECT_EQ(box.shown.back().text,
                  "Error " + std::to_string(number) + " in " + step + ":\n" + kBox + "\n" + report.detail);
        EXPECT_EQ(form_.calls.back(), "unload");
        EXPECT_THAT(form_.calls, Not(Contains("show")));
    }
    void failAt(const std::string& call, const std::function<void()>& failure) {
        form_.onCall = [call, failure](const std::string& made) {
            if (made == call) {
                failure();
            }
        };
    }

    test::RecordingForm form_;
    std::vector<std::string> told_;
    Crc crc_;
    Strings strings_;
    TransferSettings transfer_;
    RunOverrides overrides_;
    CommsLink link_{{&files,
                     rules,
                     ini,
                     box,
                     form_,
                     crc_,
                     strings_,
                     transfer_,
                     {"/home/.config", "/home/docs"},
                     [this](const std::string& line) { told_.push_back(line); }},
                    overrides_};
};

// --- The whole road

TEST_F(Startup, RunsItsStepsInOrder) {
    givenSetting("");
    failAt("setState", [&] { EXPECT_TRUE(crc_.loaded()); });
    EXPECT_EQ(start().outcome, StartupOutcome::Running);
    EXPECT_THAT(form_.calls, ElementsAre("load", "setVersionTexts", "setState", "loadWindowPos", "show",
                                         "applyAutoStart"));
    EXPECT_THAT(box.shown, IsEmpty());
}

TEST_F(Startup, ShowsTheVersion) {
    start();
    EXPECT_EQ(form_.versionTexts, "beta3|build 1");
}

TEST_F(Startup, DebugModeNeedsTheWholeCommandLine) {
    for (const std::string line : {"-debug", "-DEBUG", "-Debug"}) {
        start(line);
        EXPECT_TRUE(form_.debugMode) << line;
    }
    for (const std::string line : {"", "-debug ", "-debug x", "debug", "--debug"}) {
        start(line);
        EXPECT_FALSE(form_.debugMode) << line;
    }
}

TEST_F(Startup, ReadsTheTexts) {
    givenIni("[DisplayStrings]\r\nOffline=\"gone\",\"fishing\"\r\n[Settings]\r\nPort=1\r\n");
    start();
    EXPECT_EQ(strings_.DisplayStrings[Offline], (DisplayText{"gone", "fishing"}));
}

// --- load_INIfile

TEST_F(Startup, AMissingFileIsWritten) {
    start();
    EXPECT_EQ(contents(), defaultIni());
    EXPECT_EQ(link_.iniPath(), kPath);
    EXPECT_THAT(memory.paths(), ElementsAre(kPath));
    EXPECT_THAT(told_, ElementsAre(std::string("Wrote the default settings to ") + kPath));
}

TEST_F(Startup, AMissingApplicationDataFolderIsMade) {
    CommsLink link(
        {&files, rules, ini, box, form_, crc_, strings_, transfer_, {"/new/.config", "/home/docs"}},
        overrides_);
    EXPECT_EQ(link.Main("").outcome, StartupOutcome::Running);
    EXPECT_EQ(memory.content("/new/.config/Velmora.ini"), defaultIni());
}

TEST_F(Startup, AFileOf99BytesIsReplaced) {
    memory.addFile(kPath, std::string(99, ';'));
    start();
    EXPECT_EQ(contents(), defaultIni());
}

TEST_F(Startup, AShortFileWithAnEntryIsKeptBesideTheDefaultOne) {
    const std::string kept = std::string(kPath) + ".old";
    memory.addFile(kPath, "[Settings]\r\nPort=7\r\n");
    EXPECT_EQ(start().outcome, StartupOutcome::Running);
    EXPECT_EQ(contents(), defaultIni());
    EXPECT_EQ(memory.content(kept), "[Settings]\r\nPort=7\r\n");
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text,
              std::string(kPath) +
                  " has less than 100 bytes and is replaced by the default file; it is kept as " + kept);
}

TEST_F(Startup, AShortFileWithoutAnEntryIsNotKept) {
    for (const std::string text : {"", "[Settings]\r\n", " ; Port=7\r\n"}) {
        memory.addFile(kPath, text);
        start();
        EXPECT_THAT(memory.paths(), ElementsAre(kPath)) << text;
    }
    EXPECT_THAT(box.shown, IsEmpty());
}

TEST_F(Startup, AShortFileThatCannotBeKeptStays) {
    memory.addFile(kPath, "[Settings]\r\nPort=7\r\n");
    files.failAfterBytes(10, ErrorNumber::DiskFull);
    expectFailure(start(), "load_INIfile", 61);
    EXPECT_EQ(contents(), "[Settings]\r\nPort=7\r\n");
}

TEST_F(Startup, AFileOf100BytesIsKept) {
    memory.addFile(kPath, std::string(100, ';'));
    start();
    EXPECT_EQ(contents(), std::string(100, ';'));
}

TEST_F(Startup, AFullDiskWhileWritingTheDefaultsIsReported) {
    memory.addFile(kPath, "[Settings]");
    files.failAfterBytes(10, ErrorNumber::DiskFull);
    expectFailure(start(), "load_INIfile", 61);
    EXPECT_EQ(contents(), "[Settings]");
}

TEST_F(Startup, AFolderInTheFilesPlaceIsReported) {
    memory.addFolder(kPath);
    expectFailure(start(), "load_INIfile", 75);
    EXPECT_THAT(memory.paths(), IsEmpty());
}

TEST_F(Startup, AnUnreadableFileIsReported) {
    givenSetting("");
    files.failAtCall(test::FileCall::Open, 1, ErrorNumber::PathFileAccess);
    expectFailure(start(), "get_Messages", 75);
}

// --- get_Settings

TEST_F(Startup, HandsTheSettingsOn) {
    givenSetting(
        "AutoStart=True\r\nAutoSave=no\r\nDataFileType=2\r\nWksDialect=1\r\n[OnExit]\r\nAskUser=1\r\n"
        "[Ports]\r\nCOM7=/dev/x\r\n");
    start();
    EXPECT_TRUE(form_.serverOptions.AutoStart);
    EXPECT_FALSE(form_.serverOptions.AutoSave);
    EXPECT_TRUE(form_.serverOptions.AskUser);
    EXPECT_EQ(transfer_.DataFileType, 2);
    EXPECT_EQ(link_.settings().WksDialect, 1);
    EXPECT_THAT(form_.portDevices, ElementsAre(Pair("COM7", "/dev/x")));
}

TEST_F(Startup, AnExistingDownloadFolderIsUsed) {
    memory.addFolder("/data/psion");
    givenSetting("DownloadPath= /data/psion ");
    start();
    EXPECT_EQ(transfer_.DownloadPath, "/data/psion");
    EXPECT_THAT(box.shown, IsEmpty());
    EXPECT_FALSE(memory.folderExists("/home/docs/Psion Files"));
}

TEST_F(Startup, WhatAKilledRunLeftIsRemoved) {
    givenSetting("DownloadPath=/files");
    memory.addFile("/files/.velmora-a1b2c3.tmp", "half a sheet");
    memory.addFile("/files/Memo.odb", "x");
    memory.addFile("/home/.config/.velmora-d4e5f6.tmp", "half a file");
    start();
    EXPECT_FALSE(memory.fileExists("/files/.velmora-a1b2c3.tmp"));
    EXPECT_FALSE(memory.fileExists("/home/.config/.velmora-d4e5f6.tmp"));
    EXPECT_TRUE(memory.fileExists("/files/Memo.odb"));
}

TEST_F(Startup, AFinalSeparatorGoes) {
    memory.addFolder("/data");
    for (const std::string path : {"/data\\", "/data/"}) {
        givenSetting("DownloadPath=" + path);
        start();
        EXPECT_EQ(transfer_.DownloadPath, "/data") << path;
    }
}

TEST_F(Startup, TheRootFolderStaysOne) {
    givenSetting("DownloadPath=/");
    start();
    EXPECT_EQ(transfer_.DownloadPath, "/");
}

TEST_F(Startup, WithoutADownloadFolderTheDocumentsFolderGetsOne) {
    givenSetting("DownloadPath=");
    start();
    EXPECT_EQ(transfer_.DownloadPath, "/home/docs/Psion Files");
    EXPECT_TRUE(memory.folderExists("/home/docs/Psion Files"));
    EXPECT_THAT(box.shown, IsEmpty());
}

TEST_F(Startup, AMissingDownloadFolderIsReplacedWithAWarning) {
    givenSetting("DownloadPath=/nowhere/\xC3\xBC\xE2\x98\x83\\");
    EXPECT_EQ(start().outcome, StartupOutcome::Running);
    EXPECT_EQ(transfer_.DownloadPath, "/home/docs/Psion Files");
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.shown[0].title, "Velmora Warning");
    EXPECT_EQ(box.shown[0].text,
              "The downloadpath specified in Velmora.INI does not exist:\n   /nowhere/\xFC?\n"
              "Velmora is using 'My Files\\Psion Files' instead!\n   /home/docs/Psion Files");
}

TEST_F(Startup, AFolderThatCannotBeMadeIsReported) {
    givenSetting("");
    // The first folder made is that of the configuration file.
    files.failAtCall(test::FileCall::CreateFolder, 1, ErrorNumber::PathFileAccess);
    expectFailure(start(), "get_Settings", 75);
}

TEST_F(Startup, ABadValueIsReportedWithItsStep) {
    givenSetting("AutoStart=maybe");
    const StartupReport report = start();
    expectFailure(report, "get_Settings", 13);
    EXPECT_EQ(report.detail, "Type mismatch: [Settings] AutoStart=maybe");
}

TEST_F(Startup, ANumberThatDoesNotFitIsReportedWithItsStep) {
    givenSetting("DataFileType=40000");
    expectFailure(start(), "get_Settings", 6);
    givenIni("[Settings]\r\nPort=40000\r\n");
    expectFailure(start(), "init_Ports", 6);
}

// --- init_Ports

TEST_F(Startup, AConfiguredPortIsSetUpAndLeftAlone) {
    givenIni("[Settings]\r\nPort=7\r\nBaud=2400\r\n");
    start();
    EXPECT_EQ(form_.scriptedPort.number, 7);
    EXPECT_EQ(form_.scriptedPort.settings, "2400,N,8,1");
    EXPECT_EQ(form_.current, Offline);
    EXPECT_FALSE(form_.serverOptions.AutoSelectPort);
    EXPECT_THAT(form_.checked, IsEmpty());
}

TEST_F(Startup, AConfiguredRateNeedNotBeOneOfTheOrganisers) {
    givenIni("[Settings]\r\nPort=7\r\nBaud=115200\r\n");
    start();
    EXPECT_EQ(form_.scriptedPort.settings, "115200,N,8,1");
}

TEST_F(Startup, WithoutAPortTheFirstFreeOneIsTaken) {
    for (const std::string port : {"Port=0", "Port=-5", ""}) {
        givenIni("[Settings]\r\n" + port + "\r\n");
        form_.checked.clear();
        form_.freePort = 3;
        start();
        EXPECT_THAT(form_.checked, ElementsAre(1, 2, 3));
        EXPECT_EQ(form_.checkFlags, 0);
        EXPECT_EQ(form_.scriptedPort.number, 3);
        EXPECT_EQ(form_.current, WaitLink);
        EXPECT_TRUE(form_.serverOptions.AutoSelectPort);
        EXPECT_THAT(form_.calls, Contains("ShowClear"));
        EXPECT_THAT(form_.warnings, IsEmpty());
    }
}

TEST_F(Startup, TheSearchEndsAtPort64) {
    form_.freePort = 64;
    start();
    EXPECT_EQ(form_.current, WaitLink);
    EXPECT_EQ(form_.scriptedPort.number, 64);
}

TEST_F(Startup, AFailureTellsWhetherItWasThePorts) {
    failAt("load", [] { throw CommError(kCommFailed, "device gone", "open"); });
    EXPECT_TRUE(start().portFailed);
    failAt("load", [] { throw RunTimeError(ErrorNumber::DiskFull); });
    EXPECT_FALSE(start().portFailed);
}

TEST_F(Startup, TheSearchEndsWhenTheProgramIsToldToEnd) {
    givenIni("[Settings]\r\nPort=0\r\n");
    form_.endsAfterChecks = 3;
    const StartupReport report = start();
    EXPECT_EQ(report.outcome, StartupOutcome::Abandoned);
    EXPECT_EQ(report.number, 0) << "it is no failure";
    EXPECT_THAT(form_.checked, ElementsAre(1, 2, 3));
    EXPECT_THAT(form_.calls, ElementsAre("load", "setVersionTexts", "unload"));
    EXPECT_THAT(form_.warnings, IsEmpty());
}

TEST_F(Startup, WithoutAFreePortThereIsNone) {
    form_.freePort = 65;
    start();
    EXPECT_EQ(form_.checked.size(), 64U);
    EXPECT_EQ(form_.current, NoPort);
    EXPECT_EQ(form_.scriptedPort.number, 1);
    EXPECT_FALSE(form_.serverOptions.AutoSelectPort);
    EXPECT_THAT(form_.warnings, ElementsAre(Pair("No port selected!", "")));
    EXPECT_THAT(form_.calls, Not(Contains("ShowClear")));
}

// --- Failures of the other steps

TEST_F(Startup, EveryStepIsNamed) {
    const std::pair<const char*, const char*> steps[] = {
        {"load", "load_Form"}, {"setState", "init_Ports"}, {"loadWindowPos", "get_WindowPos"}};
    for (const auto& [call, step] : steps) {
        form_.calls.clear();
        failAt(call, [] { throw RunTimeError(ErrorNumber::OutOfMemory); });
        expectFailure(start(), step, 7);
    }
}

TEST_F(Startup, APortErrorKeepsItsNumber) {
    failAt("setState", [] { throw CommError(kCommInvalidSettings, "Invalid port settings", "Settings"); });
    expectFailure(start(), "init_Ports", 380);
}

TEST_F(Startup, ErrorsWithoutANumberGetOne) {
    failAt("load", [] { throw std::bad_alloc(); });
    expectFailure(start(), "load_Form", 7);
    failAt("load", [] { throw std::runtime_error("odd"); });
    const StartupReport report = start();
    expectFailure(report, "load_Form", 57);
    EXPECT_EQ(report.detail, "odd");
}

TEST_F(Startup, AReasonInUtf8IsShownInTheLettersOfTheBox) {
    failAt("load", [] { throw std::runtime_error("caf\xC3\xA9"); });
    start();
    EXPECT_THAT(box.shown.back().text, EndsWith("\ncaf\xE9"));
    failAt("load", [] { throw std::runtime_error("caf\xE9"); });
    start();
    EXPECT_THAT(box.shown.back().text, EndsWith("\ncaf\xE9"));
}

TEST_F(Startup, AReasonInTheLettersOfTheBoxStaysAsItIs) {
    const test::PlainPathRules windows('\\');
    CommsLink link({&files, windows, ini, box, form_, crc_, strings_, transfer_, {"C:\\data", "C:\\docs"}},
                   overrides_);
    failAt("load", [] { throw std::runtime_error("caf\xC3\xA9"); });
    link.Main("");
    EXPECT_THAT(box.shown.back().text, EndsWith("\ncaf\xC3\xA9"));
}

TEST_F(Startup, WithoutAReasonTheBoxEndsBeforeIt) {
    failAt("load", [] { throw std::runtime_error(""); });
    start();
    EXPECT_THAT(box.shown.back().text, EndsWith(kBox));
}

TEST_F(Startup, APortOfTheRunThatHasNoNumberAtAllIsNoPort) {
    for (const int number : {0, 32'768}) {
        form_.portNumbers["/dev/odd"] = number;
        overrides_.port = "/dev/odd";
        expectFailure(start(), "init_Ports", 68);
    }
}

TEST_F(Startup, TheFirstAndTheLastNumberArePorts) {
    for (const int number : {1, 32'767}) {
        form_.portNumbers["/dev/odd"] = number;
        overrides_.port = "/dev/odd";
        EXPECT_EQ(start().outcome, StartupOutcome::Running);
        EXPECT_EQ(form_.scriptedPort.number, number);
    }
}

TEST_F(Startup, ErrorsOfShowingComeThrough) {
    failAt("show", [] { throw RunTimeError(ErrorNumber::OutOfMemory); });
    EXPECT_THROW(start(), RunTimeError);
}

TEST_F(Startup, WithoutAFileLayerAComponentIsMissing) {
    CommsLink link(
        {nullptr, rules, ini, box, form_, crc_, strings_, transfer_, {"/home/.config", "/home/docs"}},
        overrides_);
    EXPECT_EQ(link.Main("").outcome, StartupOutcome::Failed);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].title, "Oops, Velmora Error");
    EXPECT_EQ(box.shown[0].text,
              "A component is missing!\n\nPlease download 'Microsoft Scripting Runtime' from the Velmora "
              "homepage\nor directly from Microsoft, install it and re-run Velmora.");
    EXPECT_THAT(form_.calls, IsEmpty());
}

// --- What the command line says instead

TEST_F(Startup, AnotherConfigurationFileMayBeNamed) {
    memory.addFolder("/current");
    overrides_.configPath = "new.ini";
    start();
    EXPECT_EQ(link_.iniPath(), "/current/new.ini");
    EXPECT_EQ(memory.content("/current/new.ini"), defaultIni());
    EXPECT_FALSE(memory.fileExists(kPath));
}

TEST_F(Startup, ThePortAndRateOfTheRunAreUsedAsTheyAre) {
    form_.portNumbers["/dev/pts/5"] = 37;
    overrides_.port = "/dev/pts/5";
    overrides_.baud = 115200;
    start();
    EXPECT_EQ(form_.scriptedPort.number, 37);
    EXPECT_EQ(form_.scriptedPort.settings, "115200,N,8,1");
    EXPECT_EQ(form_.current, Offline);
    EXPECT_THAT(form_.checked, IsEmpty());
    EXPECT_EQ(contents(), defaultIni());
}

TEST_F(Startup, WhatTheRunOverridesCannotFailIt) {
    memory.addFolder("/current/demo");
    givenIni(
        "[Settings]\r\nPort=99999\r\nBaud=99999\r\nAutoStart=maybe\r\nDataFileType=99999\r\n"
        "StayInFolder=maybe\r\n");
    form_.portNumbers["/dev/pts/5"] = 37;
    overrides_.port = "/dev/pts/5";
    overrides_.baud = 9600;
    overrides_.fileType = 1;
    overrides_.autoStart = true;
    overrides_.stayInFolder = true;
    EXPECT_EQ(start().outcome, StartupOutcome::Running);
    EXPECT_EQ(form_.scriptedPort.number, 37);
    EXPECT_EQ(transfer_.DataFileType, 1);
}

TEST_F(Startup, APathInAFailureReadsAsItIs) {
    memory.addFolder("/current/\xC3\xBC.ini");
    overrides_.configPath = "\xC3\xBC.ini";
    start();
    ASSERT_FALSE(box.shown.empty());
    EXPECT_THAT(box.shown.back().text, ::testing::EndsWith("/current/\xFC.ini"));
}

TEST_F(Startup, APortOfTheRunThatDoesNotExistIsReported) {
    overrides_.port = "COM0";
    expectFailure(start(), "init_Ports", 68);
}

TEST_F(Startup, TheFolderAndFileTypeOfTheRunAreUsed) {
    memory.addFolder("/current/demo");
    givenSetting("DownloadPath=/nowhere\r\nDataFileType=1\r\nAutoStart=False");
    overrides_.folder = "demo/";
    overrides_.fileType = 3;
    overrides_.autoStart = true;
    start();
    EXPECT_EQ(transfer_.DownloadPath, "/current/demo");
    EXPECT_EQ(transfer_.DataFileType, 3);
    EXPECT_TRUE(form_.serverOptions.AutoStart);
    EXPECT_THAT(box.shown, IsEmpty());
}

TEST_F(Startup, StayingInTheFolderIsAskedForByTheFileOrTheRun) {
    start();
    EXPECT_FALSE(transfer_.StayInFolder);
    givenSetting("StayInFolder=True");
    start();
    EXPECT_TRUE(transfer_.StayInFolder);
    givenSetting("StayInFolder=False");
    overrides_.stayInFolder = true;
    start();
    EXPECT_TRUE(transfer_.StayInFolder);
}

TEST_F(Startup, AFileTypeOfTheRunOutsideTheFourIsTheFirst) {
    overrides_.fileType = 4;
    start();
    EXPECT_EQ(transfer_.DataFileType, 0);
}

// --- Files that are no configuration files

TEST_F(Startup, AStrangeFileStartsWithDefaultsAndStaysAsItIs) {
    std::mt19937 random(11);
    std::string noise(200'000, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
    const std::string strange[] = {noise, std::string(10'000'000, '\n'), std::string(10'000'000, '='),
                                   "[Settings\r\nPort=5\r\n" + std::string(100, ' '), std::string(200, '[')};
    for (const std::string& bytes : strange) {
        memory.addFile(kPath, bytes);
        form_.freePort = 2;
        EXPECT_EQ(start().outcome, StartupOutcome::Running);
        EXPECT_EQ(form_.scriptedPort.number, 2);
        EXPECT_EQ(transfer_.DownloadPath, "/home/docs/Psion Files");
        ASSERT_TRUE(contents() == bytes);
    }
}

}  // namespace
}  // namespace velmora
