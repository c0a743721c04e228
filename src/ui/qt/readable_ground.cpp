#include "ui/qt/readable_ground.h"

#include <algorithm>
#include <cmath>

namespace velmora {
namespace {

// Relative luminance and contrast as WCAG 2.1 defines them.
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

}  // namespace

QColor readableGround(const QColor& mark, const QColor& own) {
    // The same words stand beside in the desktop's own colour, so on a light one a mark only has to be seen:
    // bright colours are readable on black alone, which would shout there. On a dark one black is at home.
    constexpr double kVisible = 2.0;
    constexpr double kReadable = 4.5;
    const bool dark = contrast(own, Qt::white) > contrast(own, Qt::black);
    if (contrast(mark, own) >= (dark ? kReadable : kVisible)) {
        return own;
    }
    return contrast(mark, Qt::white) > contrast(mark, Qt::black) ? Qt::white : Qt::black;
}

}  // namespace velmora
