// Choosing the download folder.
#pragma once

#include <functional>
#include <string>

#include "base/message_box.h"
#include "server/main_view.h"
#include "server/settings_store.h"
#include "services/strings.h"
#include "services/transfer_settings.h"

namespace velmora {

/// What a folder dialog asks. Texts are Windows-1252 bytes, paths in the system's encoding.
struct FolderQuestion {
    std::string caption;
    /// Shown above the tree. The default is German whatever language the rest speaks, and is kept so.
    std::string prompt = "W\xE4hlen Sie einen Ordner aus";
    std::string startFolder;
    /// What the user asks for help with; may be missing. A dialog of the system has help of its own.
    std::function<void()> help = {};
};

/// Asks for a folder; empty when the user cancels.
using BrowseForFolder = std::function<std::string(const FolderQuestion&)>;

/// The pbFolder button: asks, beginning at the current folder; takes the answer over and saves it as
/// DownloadPath. A cancel changes nothing. A folder that cannot be saved is used all the same, and the user
/// is told. The focus goes back to pbStartStop.
void chooseDownloadFolder(const BrowseForFolder& browse, const Strings& strings, TransferSettings& transfer,
                          SettingsStore& settings, MainView& view, MessageBox& box);

}  // namespace velmora
