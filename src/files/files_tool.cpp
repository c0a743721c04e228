#include "files/files_tool.h"

#include <ostream>

#include "files/command_line.h"
#include "files/file_access.h"

namespace velmora {

int runFilesTool(const std::vector<std::string>& arguments, Files& files, const PathRules& rules,
                 std::istream& in, std::ostream& out, std::ostream& err) {
    return runProgram("velmora-files", out, err, [&] {
        const FilesCommandLine line = readFilesCommandLine(arguments);
        Remarks remarks(err);
        if (!line.command(FileAccess(files, rules, in, out, remarks))) {
            return kStatusFailed;
        }
        return line.strict && remarks.any() ? kStatusLeftOut : kStatusDone;
    });
}

}  // namespace velmora
