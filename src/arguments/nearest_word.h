// What a mistyped word was meant to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The one of the words that `typed` is most likely meant to be: one that it begins, or one that a few
/// letters left out, added, changed or swapped make of it, fewer for short words. Empty when none comes near;
/// the first of equals.
std::string nearestWord(std::string_view typed, const std::vector<std::string>& words);

}  // namespace velmora
