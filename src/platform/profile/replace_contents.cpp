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

void replaceContents(Files& files, const PathRules& rules, const std::string& path, std::string_view contents,
                     const FileEdit& edit) {
    if (files.folderExists(path)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
    const std::string target = rules.absolute(files.followLinks(path));
    const std::string temporary = files.createTemporaryFile(rules.parentFolder(target));
    try {
        const auto file = files.open(temporary, OpenMode::Create);
        file->write(contents);
        file->close();
        if (!edit || edit(temporary)) {
            files.replaceFile(temporary, target);
        } else {
            deleteQuietly(files, temporary);
        }
    } catch (...) {
        deleteQuietly(files, temporary);
        throw;
    }
}

}  // namespace velmora
