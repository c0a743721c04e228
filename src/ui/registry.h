// The main window's position between runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace velmora {

/// A stored value: a text (REG_SZ) or a 32-bit number (REG_DWORD).
using StoredValue = std::variant<std::string, std::uint32_t>;

/// Named values of this user and program, in the registry or an equivalent. Failures are silent: a value that
/// cannot be read is missing.
class WindowPositionStore {
  public:
    virtual ~WindowPositionStore() = default;

    virtual std::optional<StoredValue> read(const std::string& name) = 0;
    /// Whether the value is stored now.
    virtual bool write(const std::string& name, const StoredValue& value) = 0;
    /// Deletes all values.
    virtual void deleteAll() = 0;
};

/// How wide and high something is, in twips.
struct Extent {
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(const Extent&, const Extent&) = default;
};

/// Where the window and the screen are, in twips (1/1440 inch; 15 to a pixel at 96 dots an inch).
class WindowGeometry {
  public:
    virtual ~WindowGeometry() = default;

    virtual std::int32_t left() const = 0;
    virtual std::int32_t top() const = 0;
    virtual std::int32_t width() const = 0;
    virtual std::int32_t height() const = 0;
    virtual void setLeft(std::int32_t left) = 0;
    virtual void setTop(std::int32_t top) = 0;
    virtual std::int32_t screenWidth() const = 0;
    virtual std::int32_t screenHeight() const = 0;
    /// The size inside the frame that the user gave the window; 0 on an axis on which it is as small as it
    /// can be.
    virtual Extent grownSize() const = 0;
    virtual void setGrownSize(const Extent& size) = 0;
    /// The largest size inside the frame that the screen has room for.
    virtual Extent largestSize() const = 0;
    /// Makes the window neither minimised nor maximised, so that the other members tell its own place.
    virtual void normalise() = 0;
};

/// Saves and restores the window's position as the values "XPos" and "YPos", and as "Width" and "Height" the
/// size of one that the user made larger. The store must outlive it.
class Registry {
  public:
    explicit Registry(WindowPositionStore& store) : store_(store) {}

    /// Moves the window to its stored place. On an axis without one, or with one that is no whole number, it
    /// is centred. No other bounds apply to a window of its least size; a larger one that would reach more
    /// than 200 twips beyond the right or the lower edge of the screen stands flush with it.
    void LoadWindowPos(WindowGeometry& window);
    /// Gives the window its stored size, as far as the screen has room; to be done before its place is asked
    /// for.
    void LoadWindowSize(WindowGeometry& window);

    /// Stores the window's place, old values deleted first. A window that stands more than 200 twips off the
    /// screen is to be centred at the next start (left, top) or to stand flush with the edge (right, bottom).
    void SaveWindowPos(WindowGeometry& window);
    /// Stores the size that the user gave the window; on an axis on which it is as small as it can be, that
    /// it has none, so that it fits its contents at the next start too, whatever they are then.
    void SaveWindowSize(const WindowGeometry& window);

    /// A value as text: a text up to its first zero byte; a number as "&h" and eight hexadecimal digits, the
    /// most significant first. Nothing when it cannot be read.
    std::optional<std::string> RegReadValue(const std::string& name);
    bool RegWriteValue(const std::string& name, const StoredValue& value);
    void RegDeleteSettingsKey();

  private:
    std::optional<std::int32_t> readNumber(const std::string& name);
    void writePosition(const std::string& name, std::int32_t position, std::int32_t size,
                       std::int32_t screen);

    WindowPositionStore& store_;
};

}  // namespace velmora
