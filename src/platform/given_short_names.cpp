#include "platform/given_short_names.h"

#include "platform/short_names.h"

namespace velmora {

std::vector<std::string> GivenShortNames::give(const std::string& folder,
                                               const std::vector<std::string>& sortedNames,
                                               const std::vector<std::string>& kept) {
    Given& given = folders_[folder];
    std::vector<std::string> settled = kept;
    settled.resize(sortedNames.size());
    for (std::size_t i = 0; i < sortedNames.size(); ++i) {
        const auto before = given.shortNames.find(sortedNames[i]);
        if (before != given.shortNames.end()) {
            settled[i] = before->second;
        } else if (given.names.count(settled[i]) != 0) {
            settled[i].clear();
        }
    }
    std::vector<std::string> reserved;
    for (const auto& [shortName, name] : given.names) {
        reserved.push_back(shortName);
    }
    std::vector<std::string> result = shortNames(sortedNames, settled, reserved);
    for (std::size_t i = 0; i < sortedNames.size(); ++i) {
        if (mayBeMadeUp(result[i]) && given.shortNames.try_emplace(sortedNames[i], result[i]).second) {
            given.names.emplace(result[i], sortedNames[i]);
        }
    }
    return result;
}

std::optional<std::string> GivenShortNames::nameOf(const std::string& folder,
                                                   std::string_view shortName) const {
    const std::optional<std::string> inCapitals = ownShortName(shortName);
    const auto given = folders_.find(folder);
    if (!inCapitals || given == folders_.end()) {
        return std::nullopt;
    }
    const auto name = given->second.names.find(*inCapitals);
    return name == given->second.names.end() ? std::nullopt : std::optional(name->second);
}

}  // namespace velmora
