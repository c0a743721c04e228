#include "startup/ready_texts.h"

#include "platform/profile/replace_contents.h"
#include "startup/messages.h"

namespace velmora {
namespace {

/// Writes the contents of the file beside it; no earlier one is replaced.
std::string keepCopy(Files& files, const PathRules& rules, const std::string& path) {
    std::string kept = path + ".old";
    for (int number = 2; files.fileExists(kept); ++number) {
        kept = path + ".old" + std::to_string(number);
    }
    std::string contents(files.fileSize(path), '\0');
    contents.resize(files.open(path, OpenMode::Read)->read(contents.data(), contents.size()));
    replaceContents(files, rules, kept, contents);
    return kept;
}

}  // namespace

std::string takeTexts(ProfileFiles& profiles, Files& files, const PathRules& rules, const std::string& ready,
                      const std::string& path) {
    std::string kept = keepCopy(files, rules, path);
    for (const MessageKey& message : messageKeys()) {
        const std::string section(message.section);
        const std::string start = std::string(message.key) + '=';
        // The quotes go along: blanks at the ends of a text count.
        for (const std::string& line : profiles.getSection(section, ready)) {
            if (line.starts_with(start)) {
                profiles.writeString(section, std::string(message.key), line.substr(start.size()), path);
            }
        }
    }
    profiles.flush(path);
    return kept;
}

}  // namespace velmora
