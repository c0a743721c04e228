// Folder listings: the names of a folder's files as the Organiser reads them, one a line.
#pragma once

#include <string>

#include "base/files.h"
#include "base/path_rules.h"

namespace velmora {

enum class ListedNames {
    Short,  ///< 8.3 names, with ">" for "~", which the Organiser cannot type
    Long,   ///< names as stored, in Windows-1252
};

/// Writes the names of the files (not folders) of `pattern`'s folder that match its last component, a
/// pattern as of likeMatches compared in capitals, into the empty file `listing`, each ended by CR LF.
///
/// Short: a file whose short name does not match but whose long name does is listed by its long name.
/// In both, a long name that the Organiser could not open its file by is never written: the short name stands
/// for it. Such is a name without a Windows-1252 form, one that the mapping of names changes (a "%" or ">",
/// a blank at an end), one that reads as a pattern or a drive, holds a line end, or is taken for another that
/// differs only by case. A file that cannot be opened by its short name either is left out.
/// Writes in batches; no more than one batch is held, whatever the size of the folder.
void writeFolderListing(const Files& files, const PathRules& rules, const std::string& pattern,
                        ListedNames names, File& listing);

}  // namespace velmora
