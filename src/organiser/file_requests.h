// The requests that the services FTRAN and FILE share: one operation byte and its argument a message.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora {

/// How a file is opened on the server.
enum class FileMode : std::uint8_t {
    Read = 0,
    Create = 1,     ///< made, or replaced
    Replace = 2,    ///< replaced; it must exist
    CreateNew = 3,  ///< made; it must not exist
    Append = 4,     ///< kept and written to; it must exist
};

enum FileOperation : char { kOpen = 0, kClose = 1, kWrite = 2, kRead = 3, kSeek = 4 };

/// The open request. `kind` is the file type (FTRAN) or the kind of access (FILE).
std::string openRequest(FileMode mode, int kind, std::string_view name);
/// The read request for at most `maximum` (1 to 255) bytes.
std::string readRequest(std::size_t maximum);

/// What is known of a transfer to the server that broke off.
struct WriteState {
    bool opened = false;    ///< the server answered the open request
    bool sentData = false;  ///< at least one message of data is on its way
};

/// Writes one message after the other and closes the file. `unit` names what a message is.
void writeAndClose(OrganiserLink& link, Progress& progress, std::string_view what,
                   const std::vector<std::string>& messages, std::string_view unit, WriteState& state);
/// Reads messages until the server ends the link at the end of the file.
std::vector<std::string> readToEnd(OrganiserLink& link, Progress& progress, std::string_view what,
                                   std::size_t maximum, std::string_view unit);

}  // namespace velmora
