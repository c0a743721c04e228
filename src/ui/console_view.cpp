#include "ui/console_view.h"

#include <utility>

#include "base/byte_text.h"
#include "base/system_text.h"

namespace velmora {

namespace {

std::string visibleText(const MessageLines& messages) {
    std::string text;
    for (const MessageLine& line : messages.lines) {
        const std::string part = line.visible ? trimBlanks(line.text) : std::string();
        text += (text.empty() || part.empty() ? "" : " ") + part;
    }
    return text;
}

}  // namespace

ConsoleView::ConsoleView(PrintLine output, PrintLine errors, ProgramCalls program)
    : output_(std::move(output)), errors_(std::move(errors)), program_(std::move(program)) {}

void ConsoleView::showStatus(const std::string& text) {
    if (!program_.statusWanted || program_.statusWanted()) {
        output_(toSystemText(text));
    }
}

void ConsoleView::showReport(const std::string& line) {
    output_(toSystemText(showControls(line)));
}

void ConsoleView::showState(std::int32_t state) {
    if (program_.stateChanged) {
        program_.stateChanged(state);
    }
}

void ConsoleView::showMessages(const MessageLines& messages) {
    std::string text = visibleText(messages);
    if (text == message_) {
        return;
    }
    message_ = std::move(text);
    if (!message_.empty()) {
        (messages.warning ? errors_ : output_)(toSystemText(message_));
    }
}

std::string ConsoleView::statsText(StatsLabel label) const {
    return stats_[static_cast<std::size_t>(label)];
}

void ConsoleView::setStatsText(StatsLabel label, const std::string& text) {
    stats_[static_cast<std::size_t>(label)] = text;
}

void ConsoleView::close() {
    if (program_.close) {
        program_.close();
    }
}

}  // namespace velmora
