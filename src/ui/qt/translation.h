// The windows in the user's language.
#pragma once

#include <QLocale>
#include <QTranslator>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The languages that the desktop is set to, the one that is liked best first (BCP 47).
std::vector<std::string> desktopLanguages();

/// All texts of the windows, and those of the toolkit that they show, in one language for as long as this
/// lives, and numbers as that language writes them. Windows that are there already keep their texts.
class Translation {
  public:
    /// `language`: a code of knownLanguages().
    explicit Translation(std::string_view language);
    ~Translation();
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;

  private:
    QLocale before_;  // the numbers' signs
    QTranslator toolkit_;
    QTranslator own_;
};

}  // namespace velmora
