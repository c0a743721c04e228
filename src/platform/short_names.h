// Short names in the 8.3 form, for files that their file system keeps none for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The name in capitals if it is a valid 8.3 name as it stands: one to eight characters, then at most one "."
/// with one to three more, ASCII letters, digits and ! # $ & ' ( ) - @ ^ _ ` { } ~. ("%" is not among them:
/// the Organiser has no way to name it.)
std::optional<std::string> ownShortName(std::string_view name);

/// The short name of each name of a folder, at the same position. The names must be distinct and sorted by
/// their bytes; then the result depends on nothing else.
///
/// A valid 8.3 name keeps itself in capitals; of several that differ only by case the first does, or none
/// where another is what a name in capitals from the Organiser becomes (a capital, then small letters): the
/// capitals would mean the one to some and the other to the rest. Every other name gets up to six characters
/// of its own, "~" and a number from 1 on, and up to three characters of its extension; blanks and all dots
/// but the last are dropped and what 8.3 does not allow becomes "_". A longer number takes the room of
/// characters ("ABCDE~10"). No two short names are equal. Beyond 9,999,999 equal beginnings the short name is
/// empty. Takes time in proportion to the number of names.
///
/// `kept`: the short names that are settled already, in capitals, at the same positions, as a file system may
/// keep some itself; empty where there is none. They are taken as they are. Nothing at all when none is.
/// `reserved`: short names that no other name may get.
std::vector<std::string> shortNames(const std::vector<std::string>& sortedNames,
                                    const std::vector<std::string>& kept = {},
                                    const std::vector<std::string>& reserved = {});

/// Whether a name can be one that shortNames made up: a short name with a "~". Spares the work of looking for
/// any other.
bool mayBeMadeUp(std::string_view name);

}  // namespace velmora
