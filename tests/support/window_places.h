// Where a window that closes at one place stands at the next start, for every store of positions.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "ui/registry.h"

namespace velmora::test {

/// A window of 4000 by 3000 twips, unless it has grown, on a screen of 1024 by 768 pixels.
class FakeWindow : public WindowGeometry {
  public:
    std::int32_t left() const override { return x; }
    std::int32_t top() const override { return y; }
    std::int32_t width() const override { return std::max(4000, grown.width); }
    std::int32_t height() const override { return std::max(3000, grown.height); }
    void setLeft(std::int32_t left) override { x = left; }
    void setTop(std::int32_t top) override { y = top; }
    std::int32_t screenWidth() const override { return 15'360; }
    std::int32_t screenHeight() const override { return 11'520; }
    Extent grownSize() const override { return grown; }
    void setGrownSize(const Extent& size) override { grown = size; }
    Extent largestSize() const override { return {14'000, 11'000}; }
    void normalise() override {
        x = minimised ? normalX : x;
        minimised = false;
    }

    Extent grown;
    std::int32_t x = 77;
    std::int32_t y = 77;
    std::int32_t normalX = 0;
    bool minimised = false;
};

constexpr std::int32_t kCentredLeft = (15'360 - 4000) / 2;
constexpr std::int32_t kCentredTop = (11'520 - 3000) / 2;
constexpr std::int32_t kFlushLeft = 15'360 - 4000;
constexpr std::int32_t kFlushTop = 11'520 - 3000;

struct WindowPlace {
    const char* name;
    std::int32_t x;  ///< where it closes
    std::int32_t y;
    std::int32_t nextX;  ///< where it stands next
    std::int32_t nextY;
};

inline std::vector<WindowPlace> windowPlaces() {
    return {
        {"OnTheScreenComesBack", 1234, 567, 1234, 567},
        {"InTheCornerComesBack", 0, 0, 0, 0},
        {"FarOffToTheLeftIsCentred", -300, 40, kCentredLeft, 40},
        {"JustTooFarOffToTheLeftIsCentred", -201, 0, kCentredLeft, 0},
        {"JustTooFarOffToTheTopIsCentred", 0, -201, 0, kCentredTop},
        {"SlightlyOffToTheLeftComesBack", -150, 0, -150, 0},
        {"AtTheMarginToTheLeftComesBack", -200, 0, -200, 0},
        {"AtTheMarginToTheTopComesBack", 0, -200, 0, -200},
        {"AtTheMarginToTheRightComesBack", kFlushLeft + 200, 0, kFlushLeft + 200, 0},
        {"AtTheMarginToTheBottomComesBack", 0, kFlushTop + 200, 0, kFlushTop + 200},
        {"FarBeyondTheRightStandsFlush", kFlushLeft + 500, 0, kFlushLeft, 0},
        {"JustTooFarBeyondTheRightStandsFlush", kFlushLeft + 201, 0, kFlushLeft, 0},
        {"JustTooFarBeyondTheBottomStandsFlush", 0, kFlushTop + 201, 0, kFlushTop},
        {"EndlesslyFarBeyondTheRightStandsFlush", 2'147'483'647, 0, kFlushLeft, 0},
        {"FarOffOnBothAxesIsCentred", -32'000, -32'000, kCentredLeft, kCentredTop},
    };
}

/// Where a window that closed at the place of a row stands at the next start.
inline FakeWindow restarted(Registry& registry, const WindowPlace& row) {
    FakeWindow old;
    old.x = row.x;
    old.y = row.y;
    registry.SaveWindowPos(old);
    FakeWindow next;
    registry.LoadWindowPos(next);
    return next;
}

}  // namespace velmora::test
