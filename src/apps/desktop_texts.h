// The ready-made texts that the setup dialog offers.
#pragma once

#include <QStringList>
#include <QWidget>
#include <string>
#include <vector>

#include "apps/platform_parts.h"
#include "startup/run_overrides.h"

namespace velmora {

/// Finds the files of texts that came with the program, and takes one over into the user's configuration. The
/// platform must outlive it.
class DesktopTexts {
  public:
    DesktopTexts(PlatformParts& platform, const RunOverrides& overrides);

    /// What the languages of the files call themselves.
    QStringList names() const;
    /// Takes the texts of one of them over, and says in a box over the window what came of it.
    void take(int index, QWidget& window);

  private:
    /// A file of texts, and the language that they are in.
    struct Ready {
        std::string path;
        QString language;
    };

    PlatformParts& platform_;
    std::string configuration_;
    std::vector<Ready> ready_;
};

}  // namespace velmora
