// Message boxes of a program that has nobody to ask.
#pragma once

#include <functional>
#include <string>

#include "base/message_box.h"

namespace velmora {

/// Prints what a box would have said; every question is answered with No.
class NoUserBox : public MessageBox {
  public:
    /// `errors` takes one line in the system's encoding without its line end.
    explicit NoUserBox(std::function<void(const std::string& line)> errors);

    void inform(BoxIcon icon, const std::string& title, const std::string& text) override;
    bool askYesNo(BoxIcon icon, const std::string& title, const std::string& text, bool defaultYes,
                  bool foreground) override;
    /// No question ever waits.
    void withdraw(const std::string&) override {}

  private:
    std::function<void(const std::string& line)> errors_;
};

}  // namespace velmora
