#include "link/trace_categories.h"

#include "base/byte_text.h"

namespace velmora {

std::size_t TraceCategories::meet(std::string_view category) {
    const std::string name = upperCase(category);
    const std::size_t index = place(name);
    if (index == entries_.size()) {
        entries_.emplace_back();
    }
    Entry& entry = entries_[index];
    if (entry.name != name) {
        entry.name = name;
        entry.enabled = enableNew_;
    }
    return index;
}

/// Where a name stands or would be entered; the size of the list when it needs a new place.
std::size_t TraceCategories::place(const std::string& name) {
    if (name == "DATA") {
        return kDataEntry;
    }
    if (name == "ERROR") {
        return kErrorEntry;
    }
    std::size_t index = 0;
    while (index < entries_.size()) {
        const bool kept = index == kDataEntry || index == kErrorEntry;
        if (!kept && (entries_[index].name == name || entries_[index].name.empty())) {
            break;
        }
        ++index;
    }
    return index;
}

}  // namespace velmora
