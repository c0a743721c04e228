// What Velmora says of itself, and what a user sends along when he tells of a fault.
#pragma once

#include <string>
#include <vector>

namespace velmora {

// All texts are UTF-8.

/// A name and what it stands for: a place and its path, a fact and its words.
struct NamedText {
    std::string name;
    std::string text;
};

/// The licence, the libraries with theirs, and the places, a line each. `toolkit`: the version of it that
/// runs.
std::string aboutText(const std::string& toolkit, const std::vector<NamedText>& places);

/// A report of the program as it runs.
struct Report {
    std::string program;                  ///< name and whole version
    std::vector<NamedText> facts;         ///< those without a text are left out
    std::string ports;                    ///< a table
    std::string settings;                 ///< a table
    std::vector<std::string> trace = {};  ///< the newest lines, masked
};

/// The report as a plain text for a mail, with "~" wherever it would name the user's home, a path in the
/// system's encoding.
std::string reportText(const Report& report, const std::string& home);

}  // namespace velmora
