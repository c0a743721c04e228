#include "server/message_lines.h"

namespace velmora {

void MessageLines::ShowText(const std::string& text1, const std::string& text2, const std::string& text3) {
    lines[0].text = text1;
    lines[1].text = text2;
    lines[2].text = text3;
    lines[1].twoLines = text3.empty();
    for (MessageLine& line : lines) {
        line.visible = true;
        line.centred = true;
    }
    warning = false;
}

void MessageLines::ShowWarning(const std::string& text2, const std::string& text3) {
    warning = true;
    lines[0].visible = false;
    lines[1].text = text2;
    lines[2].text = text3;
    lines[1].twoLines = text3.empty();
    for (MessageLine* line : {&lines[1], &lines[2]}) {
        line->visible = true;
        line->centred = false;
    }
}

void MessageLines::ShowClear() {
    warning = false;
    for (MessageLine& line : lines) {
        line.visible = false;
    }
}

}  // namespace velmora
