// Transfers as the services ask for them.
#pragma once

#include <string>
#include <string_view>

#include "services/file_name_mapper.h"
#include "transfers/transfer.h"

namespace velmora {

/// The transfer of the file at `path`, which the Organiser called `asked`; an empty path is a refused name.
inline Transfer namedTransfer(const FileNameMapper& names, std::string_view asked, const std::string& path,
                              TransferDirection direction, TransferKind kind) {
    Transfer transfer;
    transfer.name = path.empty() ? std::string(asked) : names.displayName(path);
    transfer.path = path;
    transfer.direction = direction;
    transfer.kind = kind;
    return transfer;
}

}  // namespace velmora
