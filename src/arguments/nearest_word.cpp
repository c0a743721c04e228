#include "arguments/nearest_word.h"

#include <algorithm>
#include <cstddef>

namespace velmora {
namespace {

/// How many letters must be left out, added, changed or swapped with their neighbour to make one word of the
/// other (optimal string alignment).
std::size_t editDistance(std::string_view from, std::string_view to) {
    using Row = std::vector<std::size_t>;
    Row beforeLast(to.size() + 1);
    Row last(to.size() + 1);
    for (std::size_t j = 0; j <= to.size(); ++j) {
        last[j] = j;
    }
    for (std::size_t i = 1; i <= from.size(); ++i) {
        Row row(to.size() + 1, i);
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t changed = last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            row[j] = std::min({changed, last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1]) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
        beforeLast = std::move(last);
        last = std::move(row);
    }
    return last[to.size()];
}

}  // namespace

std::string nearestWord(std::string_view typed, const std::vector<std::string>& words) {
    constexpr std::size_t kLettersForEachMistake = 3;
    constexpr std::size_t kShortestBeginning = 4;  // "--" and two letters, or half a command
    std::string nearest;
    std::size_t least = typed.size() / kLettersForEachMistake + 1;
    for (const std::string& word : words) {
        const bool begun = typed.size() >= kShortestBeginning && word.starts_with(typed);
        const std::size_t distance = begun ? 1 : editDistance(typed, word);
        if (distance < least) {
            least = distance;
            nearest = word;
        }
    }
    return nearest;
}

}  // namespace velmora
