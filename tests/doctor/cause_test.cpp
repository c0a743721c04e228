#include "doctor/cause.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace velmora {
namespace {

std::string document() {
    std::ifstream file(VELMORA_SOURCE_DIR "/docs/cable-doctor.md");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
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

}  // namespace
}  // namespace velmora
