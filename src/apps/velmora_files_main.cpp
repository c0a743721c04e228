// velmora-files: the server's conversions on files.
#include <iostream>

#include "apps/console.h"
#include "arguments/program.h"
#include "files/files_tool.h"
#include "platform/binary_streams.h"
#include "platform/console_output.h"
#include "platform/file_size_limit.h"
#include "platform/native.h"

int main(int argc, char** argv) {
    using namespace velmora;
    openStandardStreams();
    outliveFileSizeLimit();
    const auto console = showOnConsole(PrintedText::System);
    useBinaryStandardStreams();
    return runProgram("velmora-files", std::cout, std::cerr, [argc, argv] {
        NativeFiles files(NativeFolders().temporary());
        const NativePaths paths(currentFolder());
        return runFilesTool(systemArguments(argc, argv), files, paths, std::cin, std::cout, std::cerr);
    });
}
