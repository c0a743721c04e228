#include "ui/help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>
#include <string>

#include "support/memory_files.h"
#include "support/slash_path_rules.h"

namespace velmora {
namespace {

using testing::HasSubstr;

constexpr HelpTopic kTopics[] = {HelpTopic::MainWindow, HelpTopic::Transfers, HelpTopic::Monitor,
                                 HelpTopic::Setup,      HelpTopic::Folder,    HelpTopic::About};

/// What links call a heading: small letters and digits, with "-" for blanks.
std::string anchorOf(const std::string& heading) {
    std::string anchor;
    for (const char letter : heading) {
        if (letter == ' ' || letter == '-') {
            anchor += '-';
        } else if (std::isalnum(static_cast<unsigned char>(letter)) != 0) {
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        }
    }
    return anchor;
}

std::set<std::string> anchorsOf(const std::string& document) {
    std::ifstream page(document);
    std::set<std::string> anchors;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with('#')) {
            anchors.insert(anchorOf(line.substr(line.find(' ') + 1)));
        }
    }
    return anchors;
}

/// Windows' paths, as far as the documents' folder takes.
class DrivePathRules : public test::SlashPathRules {
  public:
    bool hasDrives() const override { return true; }
};

class HelpTest : public testing::Test {
  protected:
    std::string show(HelpTopic topic, const PathRules& system, const std::string& programs) {
        const Help help(files, system, programs, [this](const std::string& path, std::string_view anchor) {
            opened = path + "#" + std::string(anchor);
            return answer;
        });
        return help.show(topic);
    }

    test::MemoryFiles files;
    test::SlashPathRules rules;
    DrivePathRules drives;
    std::string opened;
    std::string answer;
};

TEST_F(HelpTest, EachTopicIsAHeadingOfADocument) {
    for (const HelpTopic topic : kTopics) {
        const HelpPlace place = helpPlace(topic);
        const auto anchors = anchorsOf(VELMORA_DOCS_DIR "/" + std::string(place.page) + ".md");
        EXPECT_TRUE(anchors.contains(std::string(place.anchor))) << place.page << "#" << place.anchor;
    }
}

TEST_F(HelpTest, TheInstalledPageIsOpenedAtTheTopic) {
    files.addFile("/usr/share/doc/velmora/docs/user-guide.html");
    EXPECT_EQ(show(HelpTopic::Setup, rules, "/usr/bin"), "");
    EXPECT_EQ(opened, "/usr/share/doc/velmora/docs/user-guide.html#settings");
}

TEST_F(HelpTest, OnWindowsThePagesStandBesideTheProgram) {
    files.addFile("/Velmora/docs/user-guide.html");
    EXPECT_EQ(show(HelpTopic::Transfers, drives, "/Velmora"), "");
    EXPECT_EQ(opened, "/Velmora/docs/user-guide.html#what-was-transferred");
}

TEST_F(HelpTest, WhatIsBuiltHasItsPagesBesideItsPrograms) {
    files.addFile("/velmora/build/documents/user-guide.html");
    EXPECT_EQ(show(HelpTopic::MainWindow, rules, "/velmora/build/bin"), "");
    EXPECT_EQ(opened, "/velmora/build/documents/user-guide.html#the-window");
}

TEST_F(HelpTest, DocumentsOfWhichNoPagesWereMadeAreOpenedAsTheyAre) {
    files.addFile("/opt/share/doc/velmora/docs/user-guide.md");
    EXPECT_EQ(show(HelpTopic::Monitor, rules, "/opt/bin"), "");
    EXPECT_EQ(opened, "/opt/share/doc/velmora/docs/user-guide.md#the-protocol-monitor");
}

TEST_F(HelpTest, WithoutPagesItIsSaidWhereTheyAreToBeHad) {
    const std::string told = show(HelpTopic::Monitor, rules, "/usr/bin");
    EXPECT_THAT(told, HasSubstr("/usr/share/doc/velmora/docs"));
    EXPECT_THAT(told, HasSubstr("velmora-doc"));
    EXPECT_THAT(show(HelpTopic::Monitor, drives, "/Velmora"), HasSubstr("/Velmora/docs"));
    EXPECT_EQ(opened, "");
}

TEST_F(HelpTest, WhyThePageCannotBeOpenedIsPassedOn) {
    files.addFile("/usr/share/doc/velmora/docs/user-guide.html");
    answer = "No program opens it.";
    EXPECT_EQ(show(HelpTopic::Folder, rules, "/usr/bin"), answer);
}

}  // namespace
}  // namespace velmora
