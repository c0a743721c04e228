#include "ui/qt/window_position.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWindow>

namespace velmora {
namespace {

constexpr int kTwipsPerPixel = 15;

/// A position between two pixels goes to the lower one, also left of the screen.
int pixels(std::int32_t twips) {
    const int whole = twips / kTwipsPerPixel;
    return twips % kTwipsPerPixel < 0 ? whole - 1 : whole;
}

QSize screenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize();
}

/// The toolkit's own frameGeometry() may be that of the time before the frame was known.
QSize framedSize(const QWidget& window) {
    const QWindow* shown = window.windowHandle();
    return shown != nullptr ? window.size().grownBy(shown->frameMargins()) : window.size();
}

}  // namespace

QtPositionStore::QtPositionStore(const QString& organisation, const QString& program)
    : settings_(organisation, program) {
    settings_.setFallbacksEnabled(false);
}

QtPositionStore::QtPositionStore(const QString& iniFile) : settings_(iniFile, QSettings::IniFormat) {}

// The settings file keeps numbers as text, a negative one as the 32-bit number that it is stored as.
std::optional<StoredValue> QtPositionStore::read(const std::string& name) {
    const QVariant value = settings_.value(QString::fromStdString(name));
    if (!value.isValid()) {
        return std::nullopt;
    }
    bool isNumber = false;
    const uint number = value.toUInt(&isNumber);
    if (isNumber) {
        return StoredValue(std::uint32_t{number});
    }
    return StoredValue(value.toString().toStdString());
}

bool QtPositionStore::write(const std::string& name, const StoredValue& value) {
    const auto* number = std::get_if<std::uint32_t>(&value);
    settings_.setValue(QString::fromStdString(name),
                       number != nullptr ? QVariant(uint{*number})
                                         : QVariant(QString::fromStdString(std::get<std::string>(value))));
    settings_.sync();
    return settings_.status() == QSettings::NoError;
}

std::int32_t QtWindowGeometry::left() const {
    return window_.x() * kTwipsPerPixel;
}

std::int32_t QtWindowGeometry::top() const {
    return window_.y() * kTwipsPerPixel;
}

std::int32_t QtWindowGeometry::width() const {
    return framedSize(window_).width() * kTwipsPerPixel;
}

std::int32_t QtWindowGeometry::height() const {
    return framedSize(window_).height() * kTwipsPerPixel;
}

void QtWindowGeometry::setLeft(std::int32_t left) {
    window_.move(pixels(left), window_.y());
}

void QtWindowGeometry::setTop(std::int32_t top) {
    window_.move(window_.x(), pixels(top));
}

std::int32_t QtWindowGeometry::screenWidth() const {
    return screenSize().width() * kTwipsPerPixel;
}

std::int32_t QtWindowGeometry::screenHeight() const {
    return screenSize().height() * kTwipsPerPixel;
}

Extent QtWindowGeometry::grownSize() const {
    return {window_.grownSize().width() * kTwipsPerPixel, window_.grownSize().height() * kTwipsPerPixel};
}

void QtWindowGeometry::setGrownSize(const Extent& size) {
    window_.setGrownSize({pixels(size.width), pixels(size.height)});
}

Extent QtWindowGeometry::largestSize() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize room = screen != nullptr ? screen->availableSize() : QSize();
    // A window that was never shown has no frame yet, and a title above all.
    const int title = window_.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window_);
    const QWindow* shown = window_.windowHandle();
    const QSize largest = room.shrunkBy(shown != nullptr ? shown->frameMargins() : QMargins(0, title, 0, 0));
    return {largest.width() * kTwipsPerPixel, largest.height() * kTwipsPerPixel};
}

// A desktop may take its time to give a window its own place and size back; both are known before.
void QtWindowGeometry::normalise() {
    const bool large = window_.isMaximized() || window_.isFullScreen();
    const QRect own = window_.normalGeometry();
    window_.setWindowState(Qt::WindowNoState);
    if (large && own.isValid()) {
        window_.setGeometry(own);
        window_.fit();
    }
}

bool desktopPlacesByProgram() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace velmora
