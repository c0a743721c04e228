#include "ui/no_user_box.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/system_text.h"

namespace velmora {
namespace {

TEST(NoUserBox, AnswersNoWhateverTheDefaultAndSaysWhatItWouldHaveAsked) {
    std::vector<std::string> errors;
    NoUserBox box([&](const std::string& line) { errors.push_back(line); });
    EXPECT_FALSE(box.askYesNo(BoxIcon::Question, "Velmora", "Stop?", true, true));
    EXPECT_FALSE(box.askYesNo(BoxIcon::Exclamation, "Velmora", "Really?", false, false));
    EXPECT_EQ(errors, (std::vector<std::string>{"Velmora: Stop? - nobody to ask, taken as No",
                                                "Velmora: Really? - nobody to ask, taken as No"}));
}

TEST(NoUserBox, PrintsAnInformationOnOneLineInTheSystemsEncoding) {
    std::vector<std::string> errors;
    NoUserBox box([&](const std::string& line) { errors.push_back(line); });
    box.inform(BoxIcon::Critical, "Velmora Warning",
               "Folder missing:\r\n   C:\\B\xFC"
               "cher\r\n");
    EXPECT_EQ(errors, std::vector<std::string>{toSystemText("Velmora Warning: Folder missing:    C:\\B\xFC"
                                                            "cher")});
}

}  // namespace
}  // namespace velmora
