#include "ui/dropped_files.h"

#include <algorithm>
#include <memory>

#include "base/ascii.h"
#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "spreadsheet/whole_file.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestBase = 8;
constexpr std::size_t kLongestExtension = 4;

// The letters of Windows-1252 from 0xC0 on without their accents; "?" for what is none.
constexpr std::string_view kWithoutAccents =
    "AAAAAAACEEEEIIII"
    "DNOOOOO?OUUUUYTs"
    "aaaaaaaceeeeiiii"
    "dnooooo?ouuuuyty";

char withoutAccent(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0xC0 ? c : kWithoutAccents[code - 0xC0];
}

/// The first letters and digits of a text, so many at most.
std::string lettersAndDigits(std::string_view text, std::size_t count) {
    std::string kept;
    for (const char each : text) {
        const char c = withoutAccent(each);
        if ((isLetter(c) || isDigit(c)) && kept.size() < count) {
            kept += c;
        }
    }
    return kept;
}

struct NameParts {
    std::string base;
    std::string extension;  ///< with its "."; empty when there is none
};

NameParts partsOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos) {
        return {std::string(name), {}};
    }
    return {std::string(name.substr(0, dot)), std::string(name.substr(dot))};
}

/// All bytes of a file.
std::string contentsOf(File& file) {
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    bytes.resize(file.read(bytes.data(), bytes.size()));
    return bytes;
}

}  // namespace

std::string typableName(std::string_view name) {
    const NameParts parts = partsOf(name);
    std::string base = lettersAndDigits(parts.base, kLongestBase);
    if (base.empty() || isDigit(base.front())) {
        base = ("F" + base).substr(0, kLongestBase);
    }
    const std::string extension = lettersAndDigits(parts.extension, kLongestExtension);
    return extension.empty() ? base : base + "." + extension;
}

std::vector<DroppedFile> DroppedFiles::copy(const std::vector<std::string>& paths, const Ask& ask) {
    std::vector<DroppedFile> results;
    bool skipAll = false;
    const Ask askOnce = [&](const Question& question) {
        const NameTaken answer = ask(question);
        skipAll = answer == NameTaken::SkipAll;
        return answer;
    };
    for (const std::string& path : paths) {
        if (skipAll) {
            results.push_back({path, {}, {}, DroppedFile::Fate::Skipped});
        } else {
            results.push_back(copyOne(path, &path != &paths.back(), askOnce));
        }
    }
    return results;
}

/// Where the Organiser finds a name; empty when there is no such place.
std::string DroppedFiles::placeOf(const std::string& name) const {
    const std::string path = names_.map_FileName(name, true, false);
    // A system keeps some names for its devices.
    return path.empty() ? names_.map_FileName("F" + name, true, false) : path;
}

bool DroppedFiles::isTaken(const std::string& path) const {
    return files_.fileExists(path) || files_.folderExists(path);
}

/// The name with the first number from 2 on that no other has.
std::string DroppedFiles::freeName(const std::string& name) const {
    const NameParts parts = partsOf(name);
    for (int number = 2;; ++number) {
        const std::string digits = std::to_string(number);
        const std::string base = parts.base.substr(0, kLongestBase - digits.size());
        std::string other = base + digits + parts.extension;
        if (!isTaken(placeOf(other))) {
            return other;
        }
    }
}

DroppedFile DroppedFiles::copyOne(const std::string& source, bool more, const Ask& ask) {
    using Fate = DroppedFile::Fate;
    DroppedFile result{source};
    if (files_.folderExists(source)) {
        result.fate = Fate::Folder;
        return result;
    }
    const std::string given = names_.displayName(source);
    const std::string name = typableName(given);
    result.path = placeOf(name);
    if (result.path.empty()) {
        result.fate = Fate::NoPlace;
        return result;
    }
    const auto itself = files_.resolvedPath(source);
    if (files_.fileExists(result.path) && itself && itself == files_.resolvedPath(result.path)) {
        result.fate = Fate::AlreadyThere;
        return result;
    }
    if (isTaken(result.path)) {
        const std::string other = freeName(name);
        // What is no file can only keep its name.
        const NameTaken answer = files_.fileExists(result.path)
                                     ? ask({result.path, rules_.lastComponent(placeOf(other)), more})
                                     : NameTaken::OtherName;
        if (answer == NameTaken::Skip || answer == NameTaken::SkipAll) {
            result.fate = Fate::Skipped;
            return result;
        }
        if (answer == NameTaken::OtherName) {
            result.path = placeOf(other);
        }
    }
    result.renamed = upperCase(names_.displayName(result.path)) != upperCase(given);
    try {
        result.fate = put(source, result.path);
    } catch (const RunTimeError& error) {
        result.fate = Fate::Failed;
        result.why = error.what();
    }
    return result;
}

DroppedFile::Fate DroppedFiles::put(const std::string& source, const std::string& path) {
    const std::unique_ptr<File> file = files_.open(source, OpenMode::Read);
    if (file->size() > kLargestFile) {
        return DroppedFile::Fate::TooLarge;
    }
    const std::string bytes = contentsOf(*file);
    if (files_.fileExists(path)) {
        keepEarlier_(path);
    }
    writeWholeFile(files_, rules_, path, bytes);
    return DroppedFile::Fate::Copied;
}

}  // namespace velmora
