#include "ui/help.h"

namespace velmora {

HelpPlace helpPlace(HelpTopic topic) {
    switch (topic) {
        case HelpTopic::MainWindow:
            return {"user-guide", "the-window"};
        case HelpTopic::Transfers:
            return {"user-guide", "what-was-transferred"};
        case HelpTopic::Monitor:
            return {"user-guide", "the-protocol-monitor"};
        case HelpTopic::Setup:
            return {"user-guide", "settings"};
        case HelpTopic::Folder:
            return {"user-guide", "the-download-folder"};
        case HelpTopic::About:
            return {"user-guide", "about-velmora"};
    }
    return {"user-guide", ""};  // unreachable: every topic is above
}

/// Where packages put the documents.
std::string Help::documentFolder() const {
    if (rules_.hasDrives()) {
        return rules_.join(programFolder_, "docs");
    }
    std::string folder = rules_.parentFolder(programFolder_);
    for (const char* part : {"share", "doc", "velmora", "docs"}) {
        folder = rules_.join(folder, part);
    }
    return folder;
}

std::string Help::show(HelpTopic topic) const {
    const HelpPlace place = helpPlace(topic);
    const std::string built = rules_.join(rules_.parentFolder(programFolder_), "documents");
    // Where no pages were made of them, the documents are installed as they are written.
    for (const std::string& folder : {documentFolder(), built}) {
        for (const char* ending : {".html", ".md"}) {
            const std::string page = rules_.join(folder, std::string(place.page) + ending);
            if (files_.fileExists(page)) {
                return open_(page, place.anchor);
            }
        }
    }
    return "The guide is not installed: it should be in " + documentFolder() +
           ". On Debian and Ubuntu it comes with the package velmora-doc, on Windows with the installer.";
}

}  // namespace velmora
