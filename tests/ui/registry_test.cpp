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

class WindowSize : public WindowPosition {
  protected:
    /// The window at the next start, after one of a size that closed at a place.
    FakeWindow next(const Extent& size, std::int32_t x = 0, std::int32_t y = 0) {
        FakeWindow old;
        old.grown = size;
        old.x = x;
        old.y = y;
        registry_.SaveWindowPos(old);
        registry_.SaveWindowSize(old);
        return reopened();
    }
    FakeWindow reopened() {
        FakeWindow window;
        window.grown = {5000, 5000};
        registry_.LoadWindowSize(window);
        registry_.LoadWindowPos(window);
        return window;
    }
};

TEST_F(WindowSize, TheFirstStartIsAsSmallAsCanBe) {
    EXPECT_EQ(reopened().grown, Extent());
}

TEST_F(WindowSize, ASizeComesBackOnTheAxisThatGrew) {
    EXPECT_EQ(next({9000, 8000}).grown, (Extent{9000, 8000}));
    EXPECT_EQ(next({9000, 0}).grown, (Extent{9000, 0}));
    EXPECT_EQ(next({0, 8000}).grown, (Extent{0, 8000}));
    EXPECT_EQ(next({0, 0}).grown, Extent());
}

TEST_F(WindowSize, ASizeOfALargerScreenIsCutToThisOneAndStandsOnIt) {
    store_.values = {{"XPos", std::uint32_t{10'000}},
                     {"YPos", std::uint32_t{9000}},
                     {"Width", std::uint32_t{40'000}},
                     {"Height", std::uint32_t{30'000}}};
    const FakeWindow window = reopened();
    EXPECT_EQ(window.grown, (Extent{14'000, 11'000}));
    EXPECT_EQ(window.x, 15'360 - 14'000);
    EXPECT_EQ(window.y, 11'520 - 11'000);
}

TEST_F(WindowSize, AGrownWindowThatReachesBeyondThisScreenStandsFlushWithItsEdge) {
    store_.values = {
        {"XPos", std::uint32_t{8000}}, {"YPos", std::uint32_t{9000}}, {"Width", std::uint32_t{9000}}};
    const FakeWindow window = reopened();
    EXPECT_EQ(window.x, 15'360 - 9000);
    // As small as it can be in height, it stands where it stood.
    EXPECT_EQ(window.y, 9000);
}

TEST_F(WindowSize, WhatIsNoSizeIsNone) {
    for (const char* text : {"", "abc", "-9000", "&hFFFFFF6A", "99999999999"}) {
        store_.values["Width"] = std::string(text);
        store_.values["Height"] = std::string(text);
        EXPECT_EQ(reopened().grown, Extent()) << text;
    }
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
