#include "spreadsheet/number_locale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {
namespace {

constexpr NumberLocale kEnglish{'.', ','};
constexpr NumberLocale kGerman{',', '.'};
constexpr NumberLocale kFrench{',', '\xA0'};
constexpr NumberLocale kNoGroups{'.', '\0'};

TEST(LocaleNumber, TakesNumbersAsAWhole) {
    const struct {
        const char* text;
        double value;
    } rows[] = {
        {"0", 0},
        {"12", 12},
        {"-12.5", -12.5},
        {"+3", 3},
        {".5", 0.5},
        {"5.", 5},
        {"1E3", 1000},
        {"1.5e-3", 0.0015},
        {"25D-1", 2.5},
        {"1,234", 1234},
        {"1,234,567.5", 1234567.5},
        {"-1,234", -1234},
        {"1E+20", 1e20},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(localeNumber(row.text, kEnglish), row.value) << row.text;
    }
}

TEST(LocaleNumber, RefusesEveryOtherText) {
    for (const char* text : {"",       "-",        ".",    "abc", "12abc", "1 2", "nan", "inf", "infinity",
                             "0x10",   "&H10",     "1E",   "1E+", "1.2.3", "--1", "1-",  "1,5", "12,34",
                             "1,2345", "1234,567", ",123", "1,",  "1E999", "$5",  "50%"}) {
        EXPECT_EQ(localeNumber(text, kEnglish), std::nullopt) << text;
    }
}

TEST(LocaleNumber, FollowsTheSignsOfTheLocale) {
    EXPECT_EQ(localeNumber("1.234,5", kGerman), 1234.5);
    EXPECT_EQ(localeNumber("0,5", kGerman), 0.5);
    EXPECT_EQ(localeNumber("1.5", kGerman), std::nullopt) << "no group of three";
    EXPECT_EQ(localeNumber("1\xA0"
                           "234,5",
                           kFrench),
              1234.5);
    EXPECT_EQ(localeNumber("1 234,5", kFrench), 1234.5) << "users type an ordinary blank";
    EXPECT_EQ(localeNumber("1,234", kNoGroups), std::nullopt);
    EXPECT_EQ(localeNumber("1234.5", kNoGroups), 1234.5);
}

TEST(LocaleNumber, ReadsBackWhatWasWritten) {
    for (const NumberLocale& locale : {kEnglish, kGerman, kFrench, kNoGroups}) {
        for (const double value : {0.0, 0.5, -1.25, 1234567.0, 1e20, -1.5e-7, 123456.789}) {
            EXPECT_EQ(localeNumber(localeNumberText(value, locale), locale), value);
        }
    }
    EXPECT_EQ(localeNumberText(-1.5, kGerman), "-1,5");
    EXPECT_EQ(localeNumberText(HUGE_VAL, kGerman), "ERR");
}

TEST(NumberLocaleOf, TakesTheSignsOfTheSystem) {
    EXPECT_EQ(numberLocaleOf({L'.', L',', true}), kEnglish);
    EXPECT_EQ(numberLocaleOf({L',', L'.', true}), kGerman);
    EXPECT_EQ(numberLocaleOf({L'.', L',', false}), kNoGroups) << "a separator without groups";
}

TEST(NumberLocaleOf, EveryBlankThatDoesNotBreakIsTheOneByte) {
    EXPECT_EQ(numberLocaleOf({L',', L'\x00A0', true}), kFrench);
    EXPECT_EQ(numberLocaleOf({L',', L'\x202F', true}), kFrench) << "the narrow one";
}

TEST(NumberLocaleOf, ATypographicApostropheIsThePlainOne) {
    EXPECT_EQ(numberLocaleOf({L'.', L'\x2019', true}), (NumberLocale{'.', '\''}));
}

TEST(NumberLocaleOf, ASignWithoutAByteIsAsGoodAsNone) {
    EXPECT_EQ(numberLocaleOf({L'\x066B', L'\x066C', true}), kNoGroups) << "Arabic";
    EXPECT_EQ(numberLocaleOf({L'\0', L'\0', true}), kNoGroups);
}

TEST(NumberLocaleOf, TheSameSignTwiceIsTheDecimalSign) {
    EXPECT_EQ(numberLocaleOf({L',', L',', true}), (NumberLocale{',', '\0'}));
}

TEST(NamedNumberLocale, KnowsTheCommonLanguages) {
    EXPECT_EQ(namedNumberLocale("C"), kNoGroups);
    EXPECT_EQ(namedNumberLocale("de_DE"), kGerman);
    EXPECT_EQ(namedNumberLocale("de-DE"), kGerman);
    EXPECT_EQ(namedNumberLocale("de"), kGerman);
    EXPECT_EQ(namedNumberLocale("en_GB.UTF-8"), kEnglish);
    EXPECT_EQ(namedNumberLocale("fr_FR.UTF-8"), kFrench);
    EXPECT_EQ(namedNumberLocale("de_CH"), (NumberLocale{'.', '\''}));
}

#ifndef _WIN32

// Windows knows every language itself. Here few systems have locales by the name of a language alone.
TEST(NamedNumberLocale, ReadsWhatTheReadersOfEachLanguageWrite) {
    const std::pair<const char*, std::vector<const char*>> rows[] = {
        {"1.234,5", {"da", "de", "el", "es", "id", "is", "it", "nl", "pt", "tr"}},
        {"1'234.5", {"de_CH", "de_LI"}},
        {"1 234,5",
         {"de_AT", "pt_PT", "bg", "cs", "fi", "fr", "hu", "nb", "no", "pl", "ru", "sk", "sv", "uk"}},
        {"1,234.5", {"es_MX", "en", "ja", "ko", "zh"}},
        {"1234.5", {"C", "POSIX"}},
    };
    for (const auto& [text, names] : rows) {
        for (const char* name : names) {
            const std::optional<NumberLocale> locale = namedNumberLocale(name);
            ASSERT_TRUE(locale) << name;
            EXPECT_EQ(localeNumber(text, *locale), 1234.5) << name;
        }
    }
}

#endif

TEST(NamedNumberLocale, SaysWhenANameIsUnknown) {
    EXPECT_EQ(namedNumberLocale("qq_QQ"), std::nullopt);
    EXPECT_EQ(namedNumberLocale("decimal"), std::nullopt);
}

TEST(NamedNumberLocale, TheUsersOwnIsAlwaysThere) {
    EXPECT_TRUE(namedNumberLocale("").has_value());
}

}  // namespace
}  // namespace velmora
