// A settings store in memory.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "server/settings_store.h"

namespace velmora::test {

class RecordingStore : public SettingsStore {
  public:
    void put(const std::string& section, const std::string& key, const std::string& value) override {
        if (failure) {
            throw RunTimeError(*failure);
        }
        entries.push_back("[" + section + "] " + key + "=" + value);
    }
    std::vector<std::string> entries;
    std::optional<ErrorNumber> failure;
};

}  // namespace velmora::test
