#include "doctor/cause.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "arguments/usage_error.h"
#include "illness.h"
#include "support/known_ill_lines.h"

namespace velmora {
namespace {

std::string contentsOf(const std::string& path) {
    std::ifstream file(VELMORA_SOURCE_DIR "/" + path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string document() {
    return contentsOf("docs/cable-doctor.md");
}

/// The rows of the document's table that begins with some columns.
std::set<std::string> rowsBelow(const std::string& columns) {
    std::istringstream text(document());
    std::string line;
    while (std::getline(text, line) && line != columns) {
    }
    std::getline(text, line);
    std::set<std::string> rows;
    while (std::getline(text, line) && !line.empty()) {
        rows.insert(line);
    }
    return rows;
}

std::string row(const std::string& wrong, Cause cause) {
    const CauseWords& words = wordsOf(cause);
    return "| " + wrong + " | " + std::string(words.finding) + " | " + std::string(words.advice) + " |";
}

/// The name of an illness without its value: "rate" of "rate=RATE".
std::string nameOf(const std::string& illness) {
    return illness.substr(0, illness.find('='));
}

/// The names of all illnesses, as the cable lists them to one who names another.
std::set<std::string> namesOfAllIllnesses() {
    std::string list;
    try {
        tools::readIllness("--ill", "flu");
    } catch (const UsageError& error) {
        list = error.what();
    }
    list.erase(0, list.find("rate="));
    list.replace(list.find(" or "), 4, ", ");
    std::set<std::string> names;
    std::istringstream words(list);
    for (std::string word; words >> word;) {
        std::erase_if(word, [](char letter) { return letter == ',' || letter == '.'; });
        names.insert(nameOf(word));
    }
    return names;
}

TEST(CauseTest, EachStandsInItsPlaceWithANameOfItsOwn) {
    std::set<std::string_view> names;
    for (const CauseWords& words : causes()) {
        EXPECT_EQ(&wordsOf(words.cause), &words);
        EXPECT_TRUE(names.insert(words.name).second) << words.name;
        EXPECT_TRUE(words.finding.ends_with('.') && words.advice.ends_with('.')) << words.name;
    }
}

TEST(CauseTest, TheDocumentHasTheWordsOfEach) {
    const std::string text = document();
    for (const CauseWords& words : causes()) {
        std::string row = "| `" + std::string(words.name) + "` | " + std::string(words.finding) + " | ";
        row += std::string(words.advice) + " |\n";
        EXPECT_NE(text.find(row), std::string::npos) << row;
    }
}

TEST(CauseTest, TheDocumentTellsOfEachIllLineThatIsExamined) {
    std::set<std::string> rows;
    for (const test::KnownIllLines& lines : test::knownIllLines()) {
        std::string illnesses;
        for (const std::string_view illness : lines.illnesses) {
            illnesses += (illnesses.empty() ? "`" : ", `") + std::string(illness) + "`";
        }
        rows.insert(row(illnesses, lines.cause));
    }
    EXPECT_EQ(rowsBelow("| Illness | Finding | What helps |"), rows);
}

TEST(CauseTest, TheDocumentTellsOfWhatIsNoIllnessOfTheCable) {
    std::set<std::string> rows;
    for (const test::OtherCause& other : test::kOtherCauses) {
        rows.insert(row(std::string(other.arrangement), other.cause) + " `" + std::string(other.test) +
                    "` |");
    }
    EXPECT_EQ(rowsBelow("| What is wrong | Finding | What helps | Test |"), rows);
}

TEST(CauseTest, EachIsShownByATestThatIsThere) {
    const std::string tests =
        contentsOf("tests/e2e/cable_doctor_test.cpp") + contentsOf("tests/doctor/line_doctor_test.cpp");
    std::set<Cause> shown;
    for (const test::KnownIllLines& lines : test::knownIllLines()) {
        shown.insert(lines.cause);
    }
    for (const test::OtherCause& other : test::kOtherCauses) {
        shown.insert(other.cause);
        std::string definition = "(" + std::string(other.test) + ")";
        definition.replace(definition.find('.'), 1, ", ");
        EXPECT_NE(tests.find(definition), std::string::npos) << definition;
    }
    EXPECT_EQ(shown.size(), causes().size());
}

TEST(CauseTest, EveryIllnessOfTheCableIsExamined) {
    std::set<std::string> examined;
    for (const test::KnownIllLines& lines : test::knownIllLines()) {
        for (const std::string_view illness : lines.illnesses) {
            examined.insert(nameOf(std::string(illness)));
        }
    }
    EXPECT_EQ(examined, namesOfAllIllnesses());
}

}  // namespace
}  // namespace velmora
