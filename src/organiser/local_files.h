// The user's own files, on the side of the Organiser.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The name of standard input and output.
constexpr std::string_view kStandardStream = "-";

/// A file of the user cannot be read, written or understood. The text is one sentence that names it.
class LocalFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A path as the system's own: in the program paths are UTF-8, as they were typed.
std::filesystem::path localPath(const std::string& path);

/// All bytes of a file. Throws LocalFileError.
std::string readLocalFile(const std::string& path);
/// The same; "-" is the stream. Throws LocalFileError.
std::string readLocalInput(const std::string& path, std::istream& standardInput);
/// What messages call an input.
std::string inputName(const std::string& path);
/// Makes or replaces a file. Throws LocalFileError.
void writeLocalFile(const std::string& path, std::string_view bytes);

/// The lines of a text without their ends (LF or CR LF); the last one may lack its end.
std::vector<std::string> splitLines(std::string_view text);
/// The lines with an end behind each: LF, or CR LF.
std::string joinLines(const std::vector<std::string>& lines, bool crLf);

/// Checks lines that are to be sent one a message: at most `longest` bytes, no zero byte. Throws
/// LocalFileError with the path and the line's number.
void checkLines(const std::string& path, const std::vector<std::string>& lines, std::size_t longest);

}  // namespace velmora
