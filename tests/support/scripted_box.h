// Message boxes that a test answers.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/message_box.h"

namespace velmora::test {

class ScriptedBox : public MessageBox {
  public:
    struct Shown {
        BoxIcon icon;
        std::string title;
        std::string text;
        bool defaultYes = false;
        bool foreground = false;
    };

    void inform(BoxIcon icon, const std::string& title, const std::string& text) override {
        informed.push_back({icon, title, text});
    }
    bool askYesNo(BoxIcon icon, const std::string& title, const std::string& text, bool defaultYes,
                  bool foreground) override {
        asked.push_back({icon, title, text, defaultYes, foreground});
        if (whileAsking) {
            whileAsking();
        }
        return !std::exchange(withdrawn_, false) && answer;
    }
    /// Withdraws the question that waits; like a box on the screen, it is then answered with No.
    void withdraw(const std::string& text) override {
        withdrawn.push_back(text);
        withdrawn_ = true;
    }

    bool answer = true;
    /// Runs while a question waits for its answer.
    std::function<void()> whileAsking;
    std::vector<Shown> asked;
    std::vector<Shown> informed;
    std::vector<std::string> withdrawn;

  private:
    bool withdrawn_ = false;
};

}  // namespace velmora::test
