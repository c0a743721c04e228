#include "ui/about_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::HasSubstr;
using testing::Not;

Report exampleReport() {
    Report report;
    report.program = "Velmora 0.1.0 (1a2b3c4)";
    report.facts = {{"System", "Debian GNU/Linux 12"}, {"Capture", ""}};
    report.ports = "COM5  /dev/ttyUSB0\n";
    report.settings = "file  [Settings] DownloadPath=/home/anna/Psion\n";
    return report;
}

TEST(AboutText, LicencesAndPlacesStandInIt) {
    const std::string text = aboutText("6.4.2", {{"Settings", "/home/anna/.config/Velmora.ini"}});
    EXPECT_THAT(text, HasSubstr("MIT licence"));
    EXPECT_THAT(text, HasSubstr("Qt 6.4.2: LGPL 3\n"));
    EXPECT_THAT(text, HasSubstr("Settings: /home/anna/.config/Velmora.ini\n"));
}

TEST(ReportText, FactsPortsSettingsAndTraceFollowEachOther) {
    Report report = exampleReport();
    report.trace = {"19:39:35.02\trecv \tCONNECT"};
    EXPECT_EQ(reportText(report, "/home/anna"),
              "Velmora 0.1.0 (1a2b3c4)\n"
              "System: Debian GNU/Linux 12\n"
              "\nPorts\nCOM5  /dev/ttyUSB0\n"
              "\nSettings\nfile  [Settings] DownloadPath=~/Psion\n"
              "\nTrace, contents masked\n19:39:35.02\trecv \tCONNECT\n");
}

TEST(ReportText, TheHomeIsNamedNowhere) {
    Report report = exampleReport();
    report.facts = {{"Home", "/home/anna"}, {"File", "/home/anna/x, \"/HOME/ANNA/y\""}};
    report.trace = {"file \t/home/anna/Psion/MEMO.odb was cut"};
    EXPECT_THAT(reportText(report, "/home/anna/"), Not(HasSubstr("anna")));
    EXPECT_THAT(reportText(report, "/home/anna"), HasSubstr("File: ~/x, \"~/y\"\n"));
}

TEST(ReportText, AnotherHomeThatBeginsAlikeStays) {
    Report report = exampleReport();
    report.facts = {{"File", "/home/annabel/x"}, {"Twin", "/home/anna-2/x"}};
    EXPECT_THAT(reportText(report, "/home/anna"), HasSubstr("File: /home/annabel/x\nTwin: /home/anna-2/x\n"));
}

TEST(ReportText, SeparatorsOfWindowsArePathsToo) {
    Report report = exampleReport();
    report.facts = {{"File", "C:\\Users\\Anna\\x"}, {"Page", "c:/users/anna/y"}};
    EXPECT_THAT(reportText(report, "C:\\Users\\Anna"), HasSubstr("File: ~\\x\nPage: ~/y\n"));
}

TEST(ReportText, ARootIsNobodysHome) {
    for (const char* home : {"", "/", "C:\\"}) {
        EXPECT_THAT(reportText(exampleReport(), home), HasSubstr("DownloadPath=/home/anna/Psion"));
    }
}

#ifndef _WIN32
TEST(ReportText, LettersThatTheTraceEscapesAreFoundToo) {
    Report report = exampleReport();
    report.facts = {{"File", "/home/j\xC3\xB6rg/x"}};
    report.trace = {"file \t/home/j<F6>rg/x", "file \t/home/j<C3><B6>rg/y"};
    const std::string text = reportText(report, "/home/j\xC3\xB6rg");
    EXPECT_THAT(text, HasSubstr("File: ~/x\n"));
    EXPECT_THAT(text, HasSubstr("file \t~/x\nfile \t~/y\n"));
}
#endif

}  // namespace
}  // namespace velmora
