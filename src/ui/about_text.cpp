#include "ui/about_text.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/ascii.h"
#include "base/byte_text.h"
#include "base/system_text.h"

namespace velmora {
namespace {

constexpr std::string_view kLicence =
    "Copyright (c) 2026 The Velmora developers\n"
    "Velmora is free software under the MIT licence: use it, copy it, change it and pass it on. It comes "
    "without any "
    "warranty.\n";

struct Library {
    std::string_view name;
    std::string_view licence;
};

constexpr Library kJson{"JSON for Modern C++", "MIT"};
constexpr Library kCompiler{"the runtime libraries of GCC", "GPL 3 with the GCC Runtime Library Exception"};
#ifdef _WIN32
constexpr std::array kLibraries{kJson, kCompiler,
                                Library{"the runtime of mingw-w64", "public domain and permissive licences"}};
constexpr std::string_view kMore = "Their texts are in the folder licences beside the program.\n";
#else
constexpr std::array kLibraries{kJson, kCompiler, Library{"libudev", "LGPL 2.1 or later"},
                                Library{"the GNU C library", "LGPL 2.1 or later"}};
constexpr std::string_view kMore;
#endif

/// A text in which paths of the same place read the same.
std::string compared(std::string_view text) {
    std::string plain = lowerCase(text);
    std::replace(plain.begin(), plain.end(), '\\', '/');
    return plain;
}

/// Whether a name may go on with this letter; "<" begins one that the trace has no character for.
bool belongsToAName(char letter) {
    return static_cast<unsigned char>(letter) >= 0x80 || isLetter(letter) || isDigit(letter) ||
           letter == '_' || letter == '-' || letter == '<';
}

/// Puts "~" for a folder and all that lies in it, however its separators and letters are written.
std::string withoutFolder(std::string text, std::string_view folder) {
    std::string sought = compared(folder);
    while (sought.ends_with('/')) {
        sought.pop_back();
    }
    constexpr std::size_t kShortest = 4;  // a root is nobody's home
    if (sought.size() < kShortest) {
        return text;
    }
    std::string plain = compared(text);
    for (std::size_t at = plain.find(sought); at != std::string::npos; at = plain.find(sought, at + 1)) {
        const std::size_t end = at + sought.size();
        if (end == plain.size() || !belongsToAName(plain[end])) {
            plain.replace(at, sought.size(), "~");
            text.replace(at, sought.size(), "~");
        }
    }
    return text;
}

}  // namespace

std::string aboutText(const std::string& toolkit, const std::vector<NamedText>& places) {
    std::string text(kLicence);
    text += "\nLibraries\n";
    text += "Qt " + toolkit + ": LGPL 3\n";
    for (const Library& library : kLibraries) {
        text += std::string(library.name) + ": " + std::string(library.licence) + "\n";
    }
    text += kMore;
    text += "\nPlaces\n";
    for (const NamedText& place : places) {
        text += place.name + ": " + place.text + "\n";
    }
    return text;
}

std::string reportText(const Report& report, const std::string& home) {
    std::string text = report.program + "\n";
    for (const NamedText& fact : report.facts) {
        if (!fact.text.empty()) {
            text += fact.name + ": " + fact.text + "\n";
        }
    }
    text += "\nPorts\n" + report.ports + "\nSettings\n" + report.settings;
    text += "\nTrace, contents masked\n";
    for (const std::string& line : report.trace) {
        text += line + "\n";
    }
    // The trace has what is not ASCII in a form of its own.
    for (const std::string& form : {utf8OfSystemText(home), hexEscaped(home), hexEscaped(shownText(home))}) {
        text = withoutFolder(std::move(text), form);
    }
    return text;
}

}  // namespace velmora
