// Readers over bytes, for tests.
#pragma once

#include <memory>
#include <string>

#include "support/memory_files.h"

namespace velmora::test {

/// Runs a reader (a callable that takes a File&) over the bytes.
template <typename Reader>
auto readSample(const std::string& content, Reader reader) {
    MemoryFiles files;
    files.addFile("/sample", content);
    const std::unique_ptr<File> file = files.open("/sample", OpenMode::Read);
    return reader(*file);
}

/// Runs a reader over every prefix of a good file: none may fail, whatever the sheet.
template <typename Reader>
void readEveryPrefix(const std::string& content, Reader reader) {
    for (std::size_t length = 0; length <= content.size(); ++length) {
        readSample(content.substr(0, length), reader);
    }
}

}  // namespace velmora::test
