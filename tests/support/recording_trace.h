// A trace that only remembers.
#pragma once

#include <string>
#include <vector>

#include "link/trace.h"

namespace velmora::test {

class RecordingTrace : public Trace {
  public:
    struct Entry {
        std::string categories;
        std::string label;
        std::string data;
    };
    void trace(std::string_view categories, std::string_view label, std::string_view data) override {
        entries.push_back({std::string(categories), std::string(label), std::string(data)});
    }
    /// The first entry with this label, or null.
    const Entry* find(std::string_view label) const {
        for (const Entry& entry : entries) {
            if (entry.label == label) {
                return &entry;
            }
        }
        return nullptr;
    }
    std::vector<Entry> entries;
};

}  // namespace velmora::test
