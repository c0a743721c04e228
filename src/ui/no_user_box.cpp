#include "ui/no_user_box.h"

#include <utility>

#include "base/byte_text.h"
#include "base/system_text.h"

namespace velmora {

namespace {

// A box's text may break its lines; a log has one line for one message.
std::string oneLine(const std::string& title, const std::string& text) {
    std::string line = title + ": ";
    for (const char byte : text) {
        const bool lineBreak = byte == '\r' || byte == '\n';
        if (!lineBreak) {
            line += byte;
        } else if (line.back() != ' ') {
            line += ' ';
        }
    }
    return toSystemText(trimRight(line));
}

}  // namespace

NoUserBox::NoUserBox(std::function<void(const std::string& line)> errors) : errors_(std::move(errors)) {}

void NoUserBox::inform(BoxIcon, const std::string& title, const std::string& text) {
    errors_(oneLine(title, text));
}

bool NoUserBox::askYesNo(BoxIcon, const std::string& title, const std::string& text, bool, bool) {
    errors_(oneLine(title, text) + " - nobody to ask, taken as No");
    return false;
}

}  // namespace velmora
