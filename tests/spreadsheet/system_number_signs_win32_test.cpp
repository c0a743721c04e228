#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

#include "spreadsheet/number_locale.h"
#include "spreadsheet/system_number_signs.h"

namespace velmora {
namespace {

/// One of the user's settings, changed for the time of a test.
class ChangedSetting {
  public:
    ChangedSetting(LCTYPE type, const char* value) : type_(type), before_(setting(type)) {
        changed_ = SetLocaleInfoA(LOCALE_USER_DEFAULT, type, value) != FALSE && setting(type) == value;
    }
    ~ChangedSetting() { SetLocaleInfoA(LOCALE_USER_DEFAULT, type_, before_.c_str()); }
    ChangedSetting(const ChangedSetting&) = delete;
    ChangedSetting& operator=(const ChangedSetting&) = delete;

    bool changed() const { return changed_; }

    static std::string setting(LCTYPE type) {
        std::array<char, 16> text{};
        GetLocaleInfoA(LOCALE_USER_DEFAULT, type, text.data(), static_cast<int>(text.size()));
        return text.data();
    }

  private:
    LCTYPE type_;
    std::string before_;
    bool changed_ = false;
};

TEST(SystemNumberSigns, OfTheUserAreThoseOfTheControlPanel) {
    const auto signs = systemNumberSigns("");
    ASSERT_TRUE(signs.has_value());
    EXPECT_EQ(std::string(1, static_cast<char>(signs->decimal)),
              ChangedSetting::setting(LOCALE_SDECIMAL).substr(0, 1));
}

TEST(SystemNumberSigns, FollowAChangeInTheControlPanel) {
    const ChangedSetting decimal(LOCALE_SDECIMAL, ",");
    const ChangedSetting thousands(LOCALE_STHOUSAND, ".");
    const ChangedSetting grouping(LOCALE_SGROUPING, "3;0");
    ASSERT_TRUE(decimal.changed() && thousands.changed() && grouping.changed());
    EXPECT_EQ(namedNumberLocale(""), (NumberLocale{',', '.'}));
    EXPECT_EQ(namedNumberLocale("en_US"), (NumberLocale{'.', ','})) << "a named locale is as it is known";
}

TEST(SystemNumberSigns, AUserWithoutGroupsHasNoSeparator) {
    const ChangedSetting grouping(LOCALE_SGROUPING, "0");
    ASSERT_TRUE(grouping.changed());
    EXPECT_EQ(namedNumberLocale("").value_or(NumberLocale{}).thousandsSeparator, '\0');
}

TEST(SystemNumberSigns, TheSameSignTwiceIsTheDecimalSign) {
    const ChangedSetting decimal(LOCALE_SDECIMAL, ",");
    const ChangedSetting thousands(LOCALE_STHOUSAND, ",");
    ASSERT_TRUE(decimal.changed() && thousands.changed());
    EXPECT_EQ(namedNumberLocale(""), (NumberLocale{',', '\0'}));
}

TEST(SystemNumberSigns, OfANamedLocaleAreKnown) {
    const auto german = systemNumberSigns("de_DE.UTF-8");
    ASSERT_TRUE(german.has_value());
    EXPECT_EQ(german->decimal, L',');
    EXPECT_EQ(german->thousands, L'.');
    EXPECT_TRUE(german->groups);
}

TEST(SystemNumberSigns, OfALocaleWithoutANumberAreItsOwn) {
    const LCID number = LocaleNameToLCID(L"en-DE", 0);
    if (number != LOCALE_CUSTOM_UNSPECIFIED) {
        GTEST_SKIP() << "this system gives it the number " << number;
    }
    const auto signs = systemNumberSigns("en_DE.UTF-8");
    ASSERT_TRUE(signs.has_value());
    EXPECT_EQ(signs->decimal, L',');
    EXPECT_EQ(signs->thousands, L'.');
}

TEST(SystemNumberSigns, OfAnUnknownNameAreNothing) {
    EXPECT_FALSE(systemNumberSigns("C").has_value());
    EXPECT_FALSE(systemNumberSigns("qq_QQ").has_value());
    EXPECT_FALSE(systemNumberSigns("en_QQ").has_value());
    EXPECT_FALSE(systemNumberSigns(".UTF-8").has_value());
    EXPECT_FALSE(systemNumberSigns("no such locale").has_value());
}

}  // namespace
}  // namespace velmora
