#include "ui/registry_win32.h"

#include <gtest/gtest.h>

#include "platform/win32/registry_functions.h"
#include "support/window_places.h"

namespace velmora {
namespace {

using test::FakeWindow;

constexpr const char* kTestKey = "SOFTWARE\\Quillbrook\\VelmoraTests\\Position";
constexpr const char* kTestKeyAbove = "SOFTWARE\\Quillbrook\\VelmoraTests";

class RegistryPosition : public ::testing::Test {
  protected:
    RegistryPosition() { store_.deleteAll(); }
    ~RegistryPosition() override {
        store_.deleteAll();
        RegDeleteSettingsKey(kTestKeyAbove);
    }

    RegistryStore store_{kTestKey};
    Registry registry_{store_};
};

TEST(SettingsKey, AProfileHasAKeyOfItsOwn) {
    EXPECT_EQ(settingsKeyOf({}), "SOFTWARE\\Quillbrook\\Velmora");
    EXPECT_EQ(settingsKeyOf("attic"), "SOFTWARE\\Quillbrook\\Velmora-attic");
}

TEST_F(RegistryPosition, TheFirstStartIsCentred) {
    FakeWindow window;
    registry_.LoadWindowPos(window);
    EXPECT_EQ(window.x, test::kCentredLeft);
    EXPECT_EQ(window.y, test::kCentredTop);
}

class RegistryPlaceRow : public RegistryPosition, public ::testing::WithParamInterface<test::WindowPlace> {};

TEST_P(RegistryPlaceRow, StandsAsTheTableSays) {
    const FakeWindow window = restarted(registry_, GetParam());
    EXPECT_EQ(window.x, GetParam().nextX);
    EXPECT_EQ(window.y, GetParam().nextY);
}

INSTANTIATE_TEST_SUITE_P(All, RegistryPlaceRow, ::testing::ValuesIn(test::windowPlaces()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(RegistryPosition, IsStoredAsTheValuesThatWindowsProgramsExpect) {
    FakeWindow window;
    window.x = -150;
    window.y = -300;
    registry_.SaveWindowPos(window);
    DWORD type = 0;
    std::uint32_t left = 0;
    DWORD size = sizeof(left);
    ASSERT_EQ(RegGetValueA(HKEY_CURRENT_USER, kTestKey, "XPos", RRF_RT_REG_DWORD, &type, &left, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(static_cast<std::int32_t>(left), -150);
    char top[8] = "?";
    size = sizeof(top);
    ASSERT_EQ(RegGetValueA(HKEY_CURRENT_USER, kTestKey, "YPos", RRF_RT_REG_SZ, &type, top, &size),
              ERROR_SUCCESS);
    EXPECT_STREQ(top, "");
}

TEST_F(RegistryPosition, StaleValuesAreDeletedFirst) {
    EXPECT_TRUE(store_.write("Old", std::string("x")));
    FakeWindow window;
    registry_.SaveWindowPos(window);
    EXPECT_EQ(store_.read("Old"), std::nullopt);
    EXPECT_EQ(registry_.RegReadValue("XPos"), "&h0000004D");
}

TEST_F(RegistryPosition, DeletingWhatIsNotThereIsSilent) {
    EXPECT_NO_THROW(store_.deleteAll());
    EXPECT_EQ(store_.read("XPos"), std::nullopt);
}

}  // namespace
}  // namespace velmora
