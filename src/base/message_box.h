// Boxes that speak to the user. Texts are Windows-1252 bytes.
#pragma once

#include <string>

namespace velmora {

enum class BoxIcon { Information, Question, Exclamation, Critical };

/// Shows modal boxes. Timers tick while a box waits, so any handler of the program may run inside the calls.
class MessageBox {
  public:
    virtual ~MessageBox() = default;

    /// A box with an OK button.
    virtual void inform(BoxIcon icon, const std::string& title, const std::string& text) = 0;
    /// A box with Yes and No. `defaultYes`: which button the Enter key presses. `foreground`: whether the box
    /// is brought before other programs' windows. A program that has nobody to ask answers false.
    virtual bool askYesNo(BoxIcon icon, const std::string& title, const std::string& text, bool defaultYes,
                          bool foreground) = 0;
    /// Closes the question with this text, if it waits, as if it was answered with No.
    virtual void withdraw(const std::string& text) = 0;
};

}  // namespace velmora
