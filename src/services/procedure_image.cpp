#include "services/procedure_image.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "services/block_file.h"
#include "services/line_reader.h"
#include "services/two_byte_number.h"

namespace velmora {
namespace {

constexpr int kProcedureType = 1;
/// Stands for a blank in procedure texts.
constexpr char kIndent = '\x07';

}  // namespace

void buildProcedureImage(File& source, File& image) {
    constexpr std::size_t kLargestSource = kLargestBlockFile - kProcedureHeaderLength;
    std::string lines;
    std::string line;
    LineReader reader(source);
    while (!reader.atEnd()) {
        if (!reader.readLine(line, kLargestSource) || lines.size() + line.size() + 1 > kLargestSource) {
            throw RunTimeError(ErrorNumber::Overflow, "procedure above 64 KiB");
        }
        std::replace(line.begin(), line.end(), kIndent, ' ');
        lines += line;
        lines += '\0';
    }
    std::string header = blockHeader(kProcedureType);
    header.replace(kImageMark, 2, imageLengthField(kProcedureHeaderLength + lines.size()));
    image.write(header + twoBytes(0) + twoBytes(lines.size()) + lines);
}

std::string procedureText(std::string_view record) {
    std::string text;
    for (const char c : record) {
        if (c == '\0') {
            text += "\r\n";
        } else {
            text += c;
        }
    }
    return text;
}

}  // namespace velmora
