#include "spreadsheet/whole_file.h"

#include <memory>
#include <utility>

#include "base/run_time_error.h"

namespace velmora {
namespace {

/// A file that is deleted unless it is kept.
class TemporaryFile {
  public:
    TemporaryFile(Files& files, std::string path) : files_(files), path_(std::move(path)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!path_.empty()) {
            try {
                files_.deleteFile(path_);
            } catch (const RunTimeError&) {
                // The failure that led here is the one to report.
            }
        }
    }
    const std::string& path() const { return path_; }
    void kept() { path_.clear(); }

  private:
    Files& files_;
    std::string path_;
};

/// A new file in the folder of the one that a path leads to.
std::string temporaryBeside(Files& files, const PathRules& rules, const std::string& path) {
    return files.createTemporaryFile(rules.parentFolder(rules.absolute(files.followLinks(path))));
}

}  // namespace

void writeWholeFile(Files& files, const PathRules& rules, const std::string& path, std::string_view bytes) {
    if (path.empty()) {
        throw RunTimeError(ErrorNumber::BadFileName);
    }
    TemporaryFile temporary(files, temporaryBeside(files, rules, path));
    const std::unique_ptr<File> file = files.open(temporary.path(), OpenMode::ReadWrite);
    file->write(bytes);
    file->close();
    files.replaceFile(temporary.path(), files.storedPath(path));
    temporary.kept();
}

void checkWritable(Files& files, const PathRules& rules, const std::string& path) {
    if (path.empty()) {
        throw RunTimeError(ErrorNumber::BadFileName);
    }
    if (files.fileExists(path)) {
        files.open(path, OpenMode::ReadWrite)->close();
        files.deleteFile(temporaryBeside(files, rules, path));
        return;
    }
    try {
        files.open(path, OpenMode::CreateNew)->close();
    } catch (const RunTimeError& error) {
        // What has the name is no file: a folder, a device, a pipe, a link that leads nowhere.
        throw error.errorNumber() == ErrorNumber::FileAlreadyExists
            ? RunTimeError(ErrorNumber::PathFileAccess, path)
            : error;
    }
    files.deleteFile(path);
}

}  // namespace velmora
