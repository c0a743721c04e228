// What the files of a folder hold, reckoned without the server's own code.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::simulation {

/// The forms of files.
enum class Form { Records, Procedure, Block, Bytes, Lines, Sheet, Other };

/// A file's bytes and what they mean.
struct FileContent {
    std::string bytes;
    Form form = Form::Other;
    int variety = 0;                   ///< DataFileType, block type or worksheet format
    bool ownExtension = false;         ///< records that are lines as they are, whatever DataFileType says
    std::vector<std::string> records;  ///< records or lines; of a sheet the same file with its cells in order
};

/// A file as `count` of its messages leave it.
FileContent recordsContent(const std::vector<std::string>& records, std::size_t count, int dataFileType,
                           bool ownExtension);
FileContent procedureContent(const std::vector<std::string>& lines, std::size_t chunks);
FileContent blockContent(std::string_view data, int type, std::size_t chunks, bool complete);

/// Lines of a text file as they are loaded.
std::vector<std::string> linesOf(std::string_view text);

/// The part of `bytes` that the first `count` messages carry.
std::string_view carried(std::string_view bytes, std::size_t count);
/// How many messages carry so many bytes.
std::size_t messagesFor(std::size_t bytes);

/// The path in the download folder of a name in capitals.
std::string pathOf(const std::string& name);

}  // namespace velmora::simulation
