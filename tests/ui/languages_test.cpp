#include "ui/languages.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Languages, EnglishIsThereInEachBuild) {
    EXPECT_EQ(knownLanguages().front(), "en");
    EXPECT_EQ(bestLanguage({}), "en");
}

TEST(Languages, AnUnknownLanguageIsEnglish) {
    EXPECT_EQ(bestLanguage({"C"}), "en");
    EXPECT_EQ(bestLanguage({"tlh-AQ", ""}), "en");
    EXPECT_EQ(bestLanguage({"deutsch"}), "en");
}

TEST(Languages, EachCallsItselfByItsOwnName) {
    for (const std::string_view language : knownLanguages()) {
        EXPECT_NE(nativeName(language), "") << language;
    }
    EXPECT_EQ(nativeName("es"), "Español");
    EXPECT_EQ(nativeName("tlh"), "");
}

TEST(Languages, TheFirstKnownOneOfThoseWantedCounts) {
    EXPECT_EQ(bestLanguage({"en-GB", "de-DE"}), "en");
    if (knownLanguages().size() == 1) {
        GTEST_SKIP() << "this build has English only";
    }
    EXPECT_EQ(bestLanguage({"de-AT", "en"}), "de");
    EXPECT_EQ(bestLanguage({"pt-BR", "es-419"}), "es");
    EXPECT_EQ(bestLanguage({"NL_be"}), "nl");
}

}  // namespace
}  // namespace velmora
