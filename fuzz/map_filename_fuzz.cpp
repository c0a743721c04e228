// Maps any bytes as a name: the result is empty, or an absolute path whose folder exists. By the rules of
// this system on a real folder tree and by those of Windows on one in memory.
#include <cstdint>
#include <string>

#include "platform/posix/posix_files.h"
#include "platform/posix/posix_paths.h"
#include "platform/windows_paths.h"
#include "require.h"
#include "services/tools.h"
#include "support/memory_files.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using fuzz::require;

/// A folder tree, the rules of its system and the mapping between.
struct Setting {
    Setting(Files& itsFiles, const PathRules& itsRules, const std::string& downloadFolder)
        : files(itsFiles), rules(itsRules) {
        settings.DownloadPath = downloadFolder;
        const std::string sub = rules.join(downloadFolder, "Sub");
        files.createFolder(sub);
        for (const char* name : {"Memo.txt", "Longer file name.txt", "MEMO.ODB"}) {
            files.open(rules.join(downloadFolder, name), OpenMode::Create);
            files.open(rules.join(sub, name), OpenMode::Create);
        }
    }
    void check(std::string_view name, bool resolveExisting, bool allowWildcards) const {
        const std::string path = tools.map_FileName(name, resolveExisting, allowWildcards);
        if (path.empty()) {
            return;
        }
        require(path.find('\0') == std::string::npos);
        require(path == rules.absolute(path));
        require(files.folderExists(rules.parentFolder(path)));
        const std::string last = rules.lastComponent(path);
        require(!last.empty() && last != "." && last != "..");
        require(allowWildcards || last.find('*') == std::string::npos);
        if (resolveExisting && !allowWildcards && files.fileExists(path)) {
            require(files.storedPath(path) == path);
        }
        tools.displayName(path);
    }

    Files& files;
    const PathRules& rules;
    TransferSettings settings;
    Tools tools{files, rules, settings};
};

/// Everything that the runs share, made once.
struct Trees {
    test::TempFolder folder;
    PosixFiles posixFiles{folder.path()};
    PosixPaths posixPaths{folder.path()};
    Setting posix{posixFiles, posixPaths, folder.path("psion")};

    test::MemoryFiles memoryFiles{'\\'};
    WindowsPaths windowsPaths{"C:\\Velmora"};
    Setting windows{memoryFiles, windowsPaths, "C:\\Psion"};
};

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const velmora::Trees trees;
    if (size == 0) {
        return 0;
    }
    const std::string name(reinterpret_cast<const char*>(data) + 1, size - 1);
    const bool resolveExisting = (data[0] & 1) != 0;
    const bool allowWildcards = (data[0] & 2) != 0;
    trees.posix.check(name, resolveExisting, allowWildcards);
    trees.windows.check(name, resolveExisting, allowWildcards);
    // A displayed name may be any bytes that a folder holds.
    trees.posix.tools.displayName(name);
    trees.windows.tools.displayName(name);
    return 0;
}
