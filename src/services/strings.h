// The message catalogue: every text that the server shows. Texts are Windows-1252 bytes.
#pragma once

#include <array>
#include <string>

namespace velmora {

/// A pair of texts for the Organiser's two-line display; an empty line leaves that line unchanged.
struct DisplayText {
    std::string line1;
    std::string line2;

    friend bool operator==(const DisplayText&, const DisplayText&) = default;
};

/// The catalogue. A new one holds the built-in defaults; start-up overrides them from the configuration
/// file. Names are those of the keys.
struct Strings {
    static constexpr int kDisplayCount = 15;

    Strings();

    /// Indexed by the server's state; 2 and 13 are empty.
    std::array<DisplayText, kDisplayCount> DisplayStrings;
    /// Indexed 1 to 6 by port status; 1 is empty.
    std::array<std::string, 7> PortStatus;

    // Captions of the statistics.
    std::string Files = "Files";
    std::string Bytes = "Bytes";
    std::string Received = "Received";
    std::string Sent = "Sent";
    std::string Error = "Error";

    // Folder dialog.
    std::string FolderCaption = "Select folder";
    std::string DownloadPath = "Select the folder for up/downloading files:";

    // Errors and questions.
    std::string BadBlockFile = "Invalid file";
    std::string BadBootFile = "Invalid boot file";
    std::string FileNotFound = "File not found";
    std::string TooManyErrors = "Too many send errors";
    std::string UserInterrupt = "Transaction in progress! Do you really want to stop the server?";
    std::string LineDown = "Lost contact to Organiser!";
    std::string OnExitAskText = "EXIT requested by Organiser, stop server?";
    std::string OnShutdownAskText = "SHUTDOWN requested by Organiser, terminate Velmora?";

    // Fixed texts.
    static constexpr const char* kDLPathNotFound1 =
        "The downloadpath specified in Velmora.INI does not exist:";
    static constexpr const char* kDLPathNotFound2 = "Velmora is using 'My Files\\Psion Files' instead!";
};

}  // namespace velmora
