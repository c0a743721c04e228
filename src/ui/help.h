// The guide on this machine, opened where it helps.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "base/files.h"
#include "base/path_rules.h"

namespace velmora {

/// What help is asked for.
enum class HelpTopic { MainWindow, Transfers, Monitor, Setup, Folder, About };

/// A heading of a document.
struct HelpPlace {
    std::string_view page;    ///< of docs/, without its ending
    std::string_view anchor;  ///< what links call the heading
};

/// Where a topic is written about.
HelpPlace helpPlace(HelpTopic topic);

/// Finds the installed pages and has them opened. Paths are in the system's encoding.
class Help {
  public:
    /// Hands a page over to the desktop; why it cannot, empty when it was. Must not wait for the reader.
    using Open = std::function<std::string(const std::string& path, std::string_view anchor)>;

    /// `programFolder`: where the program lies, from which the documents are found. What is passed must
    /// outlive it.
    Help(const Files& files, const PathRules& rules, std::string programFolder, Open open)
        : files_(files), rules_(rules), programFolder_(std::move(programFolder)), open_(std::move(open)) {}

    /// Opens the guide at a topic; a sentence for the user when that cannot be, else empty.
    std::string show(HelpTopic topic) const;

  private:
    std::string documentFolder() const;

    const Files& files_;
    const PathRules& rules_;
    std::string programFolder_;
    Open open_;
};

}  // namespace velmora
