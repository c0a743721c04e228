// velmora-files: the server's conversions on files.
#include <iostream>
#include <string>
#include <vector>

#include "apps/console.h"
#include "files/files_tool.h"
#include "platform/binary_streams.h"
#include "platform/console_output.h"
#include "platform/native.h"

int main(int argc, char** argv) {
    const auto console = velmora::showOnConsole(velmora::PrintedText::System);
    velmora::useBinaryStandardStreams();
    velmora::NativeFiles files(velmora::NativeFolders().temporary());
    const velmora::NativePaths paths(velmora::currentFolder());
    std::vector<std::string> arguments;
    try {
        arguments = velmora::systemArguments(argc, argv);
    } catch (const velmora::ArgumentError& error) {
        std::cerr << "velmora-files: " << error.what() << '\n';
        return 2;
    }
    return velmora::runFilesTool(arguments, files, paths, std::cin, std::cout, std::cerr);
}
