#include "ui/registry.h"

#include <gtest/gtest.h>

#include <map>

#include "support/window_places.h"

namespace velmora {
namespace {

class MemoryStore : public WindowPositionStore {
  public:
    std::optional<StoredValue> read(const std::string& name) override {
        const auto value = values.find(name);
        return value == values.end() || broken ? std::nullopt : std::optional(value->second);
    }
    bool write(const std::string& name, const StoredValue& value) override {
        if (!broken) {
            values[name] = value;
        }
        return !broken;
    }
    void deleteAll() override { values.clear(); }

    std::map<std::string, StoredValue> values;
    bool broken = false;
};

using test::FakeWindow;
using test::kCentredLeft;
using test::kCentredTop;

class WindowPosition : public ::testing::Test {
  protected:
    FakeWindow load() {
        FakeWindow window;
        registry_.LoadWindowPos(window);
        return window;
    }
    FakeWindow loadText(const std::string& text) {
        store_.values["XPos"] = text;
        return load();
    }
    MemoryStore store_;
    Registry registry_{store_};
};

TEST_F(WindowPosition, TheFirstStartIsCentred) {
    const FakeWindow window = load();
    EXPECT_EQ(window.x, kCentredLeft);
    EXPECT_EQ(window.y, kCentredTop);
}

class WindowPlaceRow : public WindowPosition, public ::testing::WithParamInterface<test::WindowPlace> {};

TEST_P(WindowPlaceRow, StandsAsTheTableSays) {
    const FakeWindow window = restarted(registry_, GetParam());
    EXPECT_EQ(window.x, GetParam().nextX);
    EXPECT_EQ(window.y, GetParam().nextY);
}

INSTANTIATE_TEST_SUITE_P(All, WindowPlaceRow, ::testing::ValuesIn(test::windowPlaces()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(WindowPosition, StaleValuesAreDeletedFirst) {
    store_.values["Old"] = std::string("x");
    test::restarted(registry_, {"", 1, 2, 1, 2});
    EXPECT_EQ(store_.values.size(), 2U);
}

TEST_F(WindowPosition, AMinimisedWindowIsSavedWhereItStandsOtherwise) {
    FakeWindow window;
    window.x = -32'000;
    window.normalX = 90;
    window.minimised = true;
    registry_.SaveWindowPos(window);
    EXPECT_EQ(load().x, 90);
}

TEST_F(WindowPosition, FailuresAreSilent) {
    store_.broken = true;
    EXPECT_EQ(test::restarted(registry_, {"", 5, 6, 5, 6}).x, kCentredLeft);
}

TEST_F(WindowPosition, TextsAreReadToo) {
    EXPECT_EQ(loadText("120").x, 120);
    EXPECT_EQ(loadText("-120").x, -120);
    EXPECT_EQ(loadText("&h00000010").x, 16);
    EXPECT_EQ(loadText(std::string("12\0zz", 5)).x, 12);
}

TEST_F(WindowPosition, APlaceOnAVeryWideScreenIsReadWhole) {
    EXPECT_EQ(loadText("60000").x, 60'000);
    EXPECT_EQ(loadText("-40000").x, -40'000);
    EXPECT_EQ(loadText("&h0000EA60").x, 60'000);
    registry_.RegWriteValue("XPos", std::uint32_t{60'000});
    EXPECT_EQ(load().x, 60'000);
}

TEST_F(WindowPosition, WhatIsNoNumberIsCentred) {
    for (const std::string text : {"", "abc", "12x", "99999999999", "&h", "&h123456789"}) {
        EXPECT_EQ(loadText(text).x, kCentredLeft) << text;
    }
}

TEST_F(WindowPosition, ANumberReadsAsHexadecimalText) {
    registry_.RegWriteValue("n", std::uint32_t{0xFFFFFF6A});
    EXPECT_EQ(registry_.RegReadValue("n"), "&hFFFFFF6A");
    registry_.RegWriteValue("n", std::uint32_t{10});
    EXPECT_EQ(registry_.RegReadValue("n"), "&h0000000A");
    EXPECT_EQ(registry_.RegReadValue("missing"), std::nullopt);
}

}  // namespace
}  // namespace velmora
