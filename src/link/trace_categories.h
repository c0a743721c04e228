// The list of trace categories that a user switches on and off.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A list of categories, filled as they are met. The second entry is kept for "DATA" and the third for
/// "ERROR", so that frames and errors are switched at the same place whatever is met first; the others take
/// the first place free.
class TraceCategories {
  public:
    static constexpr std::size_t kDataEntry = 1;
    static constexpr std::size_t kErrorEntry = 2;

    struct Entry {
        std::string name;  ///< in capitals; empty while nothing was met for this place
        bool enabled = false;
    };

    /// `enableNew`: whether a category is on when it is first met.
    explicit TraceCategories(bool enableNew) : entries_(kErrorEntry + 1), enableNew_(enableNew) {}

    /// The place of a category, which is entered when it is met for the first time.
    std::size_t meet(std::string_view category);
    /// Whether a category is on; enters it when it is new.
    bool enabled(std::string_view category) { return entries_[meet(category)].enabled; }
    /// Switches an entry; `index` is below entries().size().
    void enable(std::size_t index, bool on) { entries_[index].enabled = on; }
    /// Switches a category, met or not.
    void enable(std::string_view category, bool on) { enable(meet(category), on); }

    const std::vector<Entry>& entries() const { return entries_; }

  private:
    std::size_t place(const std::string& name);

    std::vector<Entry> entries_;
    bool enableNew_;
};

}  // namespace velmora
