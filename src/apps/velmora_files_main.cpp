// velmora-files: the server's conversions on files.
#include <iostream>
#include <string>
#include <vector>

#include "files/files_tool.h"
#include "platform/binary_streams.h"
#include "platform/console_output.h"
#include "platform/native.h"

int main(int argc, char** argv) {
    const auto console = velmora::showOnConsole(velmora::PrintedText::System);
    velmora::useBinaryStandardStreams();
    velmora::NativeFiles files(velmora::NativeFolders().temporary());
    const velmora::NativePaths paths(velmora::currentFolder());
    return velmora::runFilesTool({argv + 1, argv + argc}, files, paths, std::cin, std::cout, std::cerr);
}
