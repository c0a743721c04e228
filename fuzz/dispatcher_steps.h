// What an input of the dispatcher's fuzzer consists of: a byte for the settings, then steps, each a byte for
// its kind and what that kind reads. A name is a byte that chooses one, or kOtherName and a text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmora::fuzz {

enum Step : std::uint8_t {
    kOpenService,    ///< the link is new; which service
    kOpenFile,       ///< mode, kind, name
    kWrite,          ///< text
    kRead,           ///< maximum
    kSeek,           ///< mode, offset as text
    kCloseFile,      ///< nothing
    kSheet,          ///< format, with 128 for a save; name
    kSheetSize,      ///< columns, rows
    kCell,           ///< column, row, type, text
    kEndOfSheet,     ///< nothing
    kMessage,        ///< text
    kUnanswered,     ///< text; the answer is not acknowledged
    kLinkDown,       ///< nothing
    kStopInside,     ///< nothing: the user stops the server inside the next send
    kFailOperation,  ///< kind of file operation, how many succeed before it, error
    kDeleteFile,     ///< name: another program deletes the file
    kSteps,
};

/// The services by their choice, a name that is none among them.
inline const std::vector<std::string>& usualServices() {
    static const std::vector<std::string> names = {"FTRAN", "FILE",     "BOOT", "PLAN",     "PLANM", "TIME",
                                                   "GMT",   "TIMEINFO", "EXIT", "SHUTDOWN", "NONE"};
    return names;
}

/// The names that requests use most: files that are there (served_folder.h), others, patterns and folders.
inline const std::vector<std::string>& usualNames() {
    static const std::vector<std::string> names = {
        "A.ODB", "B.CSV", "C.OPL",   "D.OB3", "E.BIN", "F.WKS",    "F.DIF",   "F.TXT",
        "A",     "NEW",   "NEW.WKS", "*",     "*.*",   "SUB\\NEW", "C>1.OPL", "..\\A.ODB"};
    return names;
}
/// Any other choice is another name, too.
constexpr char kOtherName = '\xFF';

}  // namespace velmora::fuzz
