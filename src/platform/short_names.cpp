#include "platform/short_names.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>

namespace velmora {
namespace {

constexpr std::size_t kBaseLength = 8;
constexpr std::size_t kExtensionLength = 3;
constexpr std::size_t kMostDigits = 7;

char capital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c;
}

bool isAllowed(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
           (c != '\0' && std::string_view("!#$&'()-@^_`{}~").find(c) != std::string_view::npos);
}

bool isContinuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Capitals without blanks and dots, "_" for each character that is not allowed, cut to a length.
std::string squeezed(std::string_view text, std::size_t length) {
    std::string out;
    for (const char c : text) {
        if (c == ' ' || c == '.' || isContinuationByte(c)) {
            continue;
        }
        if (out.size() == length) {
            break;
        }
        out += isAllowed(c) ? capital(c) : '_';
    }
    return out;
}

/// Whether the Organiser's name in capitals becomes this one before it is looked for.
bool isReCased(std::string_view name) {
    return !name.empty() &&
           std::none_of(name.begin() + 1, name.end(), [](char c) { return c >= 'A' && c <= 'Z'; }) &&
           !(name[0] >= 'a' && name[0] <= 'z');
}

/// The parts of a generated name around its "~" and number.
struct Parts {
    std::string base;
    std::string extension;
};

Parts partsOf(std::string_view name) {
    const std::size_t firstOther = name.find_first_not_of(". ");
    const std::size_t lastDot = name.rfind('.');
    const bool hasExtension =
        lastDot != std::string_view::npos && firstOther != std::string_view::npos && lastDot > firstOther;
    const std::string_view base = hasExtension ? name.substr(0, lastDot) : name;
    Parts parts{squeezed(base, kBaseLength - 2), {}};
    if (hasExtension) {
        const std::string extension = squeezed(name.substr(lastDot + 1), kExtensionLength);
        parts.extension = extension.empty() ? "" : "." + extension;
    }
    return parts;
}

/// Hands out numbers. One count serves all names that share the characters left beside the same number of
/// digits, so that no search runs over numbers that are already given.
class Numbering {
  public:
    explicit Numbering(const std::unordered_set<std::string>& taken) : taken_(taken) {}

    std::string next(const Parts& parts) {
        unsigned first = 1;
        for (std::size_t digits = 1; digits <= kMostDigits; ++digits, first *= 10) {
            const std::string stem = parts.base.substr(0, kBaseLength - 1 - digits) + "~";
            unsigned& used = used_[stem + parts.extension][digits - 1];
            while (used < first * 9) {
                std::string name = stem + std::to_string(first + used) + parts.extension;
                ++used;
                if (taken_.count(name) == 0) {
                    return name;
                }
            }
        }
        return {};
    }

  private:
    struct Counts {
        unsigned& operator[](std::size_t i) { return counts[i]; }
        std::array<unsigned, kMostDigits> counts{};
    };
    const std::unordered_set<std::string>& taken_;
    std::unordered_map<std::string, Counts> used_;
};

/// Gives those names of `result` that are still empty the names that are their own, and takes these.
void giveOwnNames(const std::vector<std::string>& sortedNames, std::vector<std::string>& result,
                  std::unordered_set<std::string>& taken) {
    std::unordered_map<std::string, std::string*> owners;
    for (std::size_t i = 0; i < sortedNames.size(); ++i) {
        const std::optional<std::string> name = ownShortName(sortedNames[i]);
        if (!name || !result[i].empty() || taken.count(*name) != 0) {
            continue;
        }
        const auto [owner, isFirst] = owners.try_emplace(*name, &result[i]);
        if (!isFirst && isReCased(sortedNames[i])) {
            owner->second = nullptr;
        }
    }
    for (const auto& [name, owner] : owners) {
        taken.insert(name);
        if (owner != nullptr) {
            *owner = name;
        }
    }
}

}  // namespace

std::optional<std::string> ownShortName(std::string_view name) {
    const std::size_t dot = name.find('.');
    const std::string_view base = name.substr(0, dot);
    const std::string_view extension =
        dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
    if (base.empty() || base.size() > kBaseLength || extension.size() > kExtensionLength ||
        (dot != std::string_view::npos && extension.empty())) {
        return std::nullopt;
    }
    std::string own;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (i != dot && !isAllowed(name[i])) {
            return std::nullopt;
        }
        own += capital(name[i]);
    }
    return own;
}

std::vector<std::string> shortNames(const std::vector<std::string>& sortedNames,
                                    const std::vector<std::string>& kept,
                                    const std::vector<std::string>& reserved) {
    std::vector<std::string> result = kept;
    result.resize(sortedNames.size());
    std::unordered_set<std::string> taken(kept.begin(), kept.end());
    taken.insert(reserved.begin(), reserved.end());
    giveOwnNames(sortedNames, result, taken);
    Numbering numbering(taken);
    for (std::size_t i = 0; i < sortedNames.size(); ++i) {
        if (result[i].empty()) {
            result[i] = numbering.next(partsOf(sortedNames[i]));
        }
    }
    return result;
}

bool mayBeMadeUp(std::string_view name) {
    return name.find('~') != std::string_view::npos && ownShortName(name);
}

}  // namespace velmora
