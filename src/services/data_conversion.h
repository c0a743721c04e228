// Data files: records of the Organiser as lines of comma- or semicolon-separated values, and back.
//
// A record is one text with a tab between its fields. Neither way is RFC 4180 to the letter: a quoted field
// opens only right behind a separator, so a quote at the start of a line is data.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The line (without its end) for a record: fields joined by `separator`; a field that holds the separator
/// or a double quote stands in double quotes, its own quotes doubled.
std::string record_ToLine(std::string_view record, char separator);

/// The record for a line (without its end). Empty fields at the end of the line are lost.
std::string line_ToRecord(std::string_view line, char separator);

}  // namespace velmora
