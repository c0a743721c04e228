#include "startup/registry.h"

#include <gtest/gtest.h>

#include <map>

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

class FakeWindow : public WindowGeometry {
  public:
    std::int32_t left() const override { return x; }
    std::int32_t top() const override { return y; }
    std::int32_t width() const override { return 4000; }
    std::int32_t height() const override { return 3000; }
    void setLeft(std::int32_t left) override { x = left; }
    void setTop(std::int32_t top) override { y = top; }
    std::int32_t screenWidth() const override { return 15'360; }
    std::int32_t screenHeight() const override { return 11'520; }
    void normalise() override {
        x = minimised ? normalX : x;
        minimised = false;
    }

    std::int32_t x = 77;
    std::int32_t y = 77;
    std::int32_t normalX = 0;
    bool minimised = false;
};

constexpr std::int32_t kCentredLeft = (15'360 - 4000) / 2;
constexpr std::int32_t kCentredTop = (11'520 - 3000) / 2;
constexpr std::int32_t kFlushLeft = 15'360 - 4000;
constexpr std::int32_t kFlushTop = 11'520 - 3000;

class WindowPosition : public ::testing::Test {
  protected:
    /// Where a window that closed at (x, y) stands at the next start.
    FakeWindow restart(std::int32_t x, std::int32_t y) {
        FakeWindow old;
        old.x = x;
        old.y = y;
        registry_.SaveWindowPos(old);
        return load();
    }
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

TEST_F(WindowPosition, APlaceOnTheScreenComesBack) {
    const FakeWindow window = restart(1234, 567);
    EXPECT_EQ(window.x, 1234);
    EXPECT_EQ(window.y, 567);
}

TEST_F(WindowPosition, FarOffToTheLeftOrTopIsCentred) {
    EXPECT_EQ(restart(-300, 0).x, kCentredLeft);
    EXPECT_EQ(restart(-201, 0).x, kCentredLeft);
    EXPECT_EQ(restart(0, -201).y, kCentredTop);
}

TEST_F(WindowPosition, SlightlyOffTheScreenComesBack) {
    EXPECT_EQ(restart(-150, 0).x, -150);
    EXPECT_EQ(restart(-200, 0).x, -200);
    EXPECT_EQ(restart(0, -200).y, -200);
    EXPECT_EQ(restart(kFlushLeft + 200, 0).x, kFlushLeft + 200);
    EXPECT_EQ(restart(0, kFlushTop + 200).y, kFlushTop + 200);
}

TEST_F(WindowPosition, FarBeyondTheRightOrBottomStandsFlush) {
    EXPECT_EQ(restart(kFlushLeft + 500, 0).x, kFlushLeft);
    EXPECT_EQ(restart(kFlushLeft + 201, 0).x, kFlushLeft);
    EXPECT_EQ(restart(0, kFlushTop + 201).y, kFlushTop);
    EXPECT_EQ(restart(2'147'483'647, 0).x, kFlushLeft);
}

TEST_F(WindowPosition, OneAxisIsCentredWithoutTheOther) {
    const FakeWindow window = restart(-300, 40);
    EXPECT_EQ(window.x, kCentredLeft);
    EXPECT_EQ(window.y, 40);
}

TEST_F(WindowPosition, StaleValuesAreDeletedFirst) {
    store_.values["Old"] = std::string("x");
    restart(1, 2);
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
    EXPECT_EQ(restart(5, 6).x, kCentredLeft);
}

TEST_F(WindowPosition, TextsAreReadToo) {
    EXPECT_EQ(loadText("120").x, 120);
    EXPECT_EQ(loadText("-120").x, -120);
    EXPECT_EQ(loadText("&h00000010").x, 16);
    EXPECT_EQ(loadText(std::string("12\0zz", 5)).x, 12);
}

TEST_F(WindowPosition, WhatIsNoSixteenBitNumberIsCentred) {
    for (const std::string text :
         {"", "abc", "12x", "40000", "-40000", "99999999999", "&h", "&h123456789", "&h00009C40"}) {
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
