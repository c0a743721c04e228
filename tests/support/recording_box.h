// A message box that remembers what it said.
#pragma once

#include <string>
#include <vector>

#include "base/message_box.h"

namespace velmora::test {

class RecordingBox : public MessageBox {
  public:
    struct Shown {
        BoxIcon icon;
        std::string title;
        std::string text;
    };
    void inform(BoxIcon icon, const std::string& title, const std::string& text) override {
        shown.push_back({icon, title, text});
    }
    bool askYesNo(BoxIcon icon, const std::string& title, const std::string& text, bool, bool) override {
        shown.push_back({icon, title, text});
        return answer;
    }
    void withdraw(const std::string&) override {}

    std::vector<Shown> shown;
    bool answer = false;
};

}  // namespace velmora::test
