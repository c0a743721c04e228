// velmora-files: the server's conversions on files.
#include <iostream>
#include <string>
#include <vector>

#include "files/files_tool.h"
#include "platform/known_folders.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_paths.h"

int main(int argc, char** argv) {
    velmora::PosixFiles files(velmora::KnownFolders(velmora::processEnvironment()).temporary());
    const velmora::PosixPaths paths(velmora::currentFolder());
    return velmora::runFilesTool({argv + 1, argv + argc}, files, paths, std::cin, std::cout, std::cerr);
}
