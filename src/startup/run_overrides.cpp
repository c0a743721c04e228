#include "startup/run_overrides.h"

#include <algorithm>
#include <array>

#include "base/byte_text.h"

namespace velmora {
namespace {

std::optional<std::string> text(const std::optional<std::int32_t>& number) {
    return number ? std::optional(std::to_string(*number)) : std::nullopt;
}

std::optional<std::string> text(const std::optional<bool>& flag) {
    return flag ? std::optional<std::string>(*flag ? "True" : "False") : std::nullopt;
}

std::optional<std::string> withoutText(const std::optional<std::string>& value) {
    return value ? std::optional<std::string>("") : std::nullopt;
}

}  // namespace

std::optional<GivenValue> givenValue(const RunOverrides& overrides, std::string_view section,
                                     std::string_view key) {
    struct Row {
        std::string_view key;
        const char* option;
        std::optional<std::string> value;
    };
    const std::array<Row, 7> rows = {{{"DOWNLOADPATH", "--folder", overrides.folder},
                                      {"PORT", "--port", overrides.port},
                                      // Another port has another adapter.
                                      {"PORTIDENTITY", "--port", withoutText(overrides.port)},
                                      {"BAUD", "--baud", text(overrides.baud)},
                                      {"DATAFILETYPE", "--file-type", text(overrides.fileType)},
                                      {"STAYINFOLDER", "--stay-in-folder", text(overrides.stayInFolder)},
                                      {"AUTOSTART", "program", text(overrides.autoStart)}}};
    const std::string wanted = upperCase(key);
    const auto* row = std::ranges::find(rows, wanted, &Row::key);
    if (upperCase(section) != "SETTINGS" || row == rows.end() || !row->value) {
        return std::nullopt;
    }
    return GivenValue{row->option, *row->value};
}

bool isOverridden(const RunOverrides& overrides, std::string_view section, std::string_view key) {
    return givenValue(overrides, section, key).has_value();
}

}  // namespace velmora
