#include "server/status_line.h"

#include "base/byte_text.h"

namespace velmora {

namespace {

bool endsSentence(const std::string& text) {
    return std::string_view(".!?:").find(text.back()) != std::string_view::npos;
}

bool beginsSmall(const std::string& text) {
    const std::string first = text.substr(0, 1);
    return upperCase(first) != first;
}

}  // namespace

std::string joinDisplayLines(std::string_view line1, std::string_view line2) {
    const std::string first = trimBlanks(line1);
    const std::string second = trimBlanks(line2);
    if (first.empty() || second.empty()) {
        return first + second;
    }
    return first + (endsSentence(first) || beginsSmall(second) ? " " : ". ") + second;
}

std::string joinFileName(std::string_view activity, std::string_view fileName) {
    return trimBlanks(activity) + ": " + trimBlanks(fileName);
}

}  // namespace velmora
