// The main window's position between runs, in the toolkit's settings.
#pragma once

#include <QSettings>
#include <optional>
#include <string>

#include "ui/qt/growing_window.h"
#include "ui/registry.h"

namespace velmora {

/// The values in the user's settings, for systems without a registry: a file in the configuration folder.
class QtPositionStore : public WindowPositionStore {
  public:
    /// On the settings that a program has under an organisation's name.
    QtPositionStore(const QString& organisation, const QString& program);
    /// On a settings file of one's own.
    explicit QtPositionStore(const QString& iniFile);

    std::optional<StoredValue> read(const std::string& name) override;
    bool write(const std::string& name, const StoredValue& value) override;
    void deleteAll() override { settings_.clear(); }

  private:
    QSettings settings_;
};

/// A window's place on the primary screen, 15 twips to a device-independent pixel. Its place is that of its
/// frame. The window must outlive it.
class QtWindowGeometry : public WindowGeometry {
  public:
    explicit QtWindowGeometry(GrowingWindow& window) : window_(window) {}

    std::int32_t left() const override;
    std::int32_t top() const override;
    std::int32_t width() const override;
    std::int32_t height() const override;
    void setLeft(std::int32_t left) override;
    void setTop(std::int32_t top) override;
    std::int32_t screenWidth() const override;
    std::int32_t screenHeight() const override;
    Extent grownSize() const override;
    void setGrownSize(const Extent& size) override;
    Extent largestSize() const override;
    void normalise() override;

  private:
    GrowingWindow& window_;
};

/// Whether programs place their windows on this desktop; on some only the desktop does.
bool desktopPlacesByProgram();

}  // namespace velmora
