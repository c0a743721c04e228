#include "platform/profile/replace_contents.h"

#include "base/run_time_error.h"

namespace velmora {
namespace {

void deleteQuietly(Files& files, const std::string& path) {
    try {
        files.deleteFile(path);
    } catch (const RunTimeError&) {
        // The failure that led here is the one to report.
    }
}

}  // namespace

void replaceContents(Files& files, const PathRules& rules, const std::string& path,
                     std::string_view contents) {
    if (files.folderExists(path)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
    const std::string temporary = files.createTemporaryFile(rules.parentFolder(rules.absolute(path)));
    try {
        const auto file = files.open(temporary, OpenMode::Create);
        file->write(contents);
        file->close();
        files.replaceFile(temporary, path);
    } catch (...) {
        deleteQuietly(files, temporary);
        throw;
    }
}

}  // namespace velmora
