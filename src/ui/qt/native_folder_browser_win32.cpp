#include <QEvent>
#include <QObject>

#include "ui/qt/native_folder_browser.h"
#include "ui/win32/c_sh_folder.h"

namespace velmora {
namespace {

/// Cancels the dialog when the window goes: the dialog runs a message loop of its own, which the toolkit
/// does not end with the program.
class CancelWithWindow : public QObject {
  public:
    explicit CancelWithWindow(cSHFolder& folder) : folder_(folder) {}

    bool eventFilter(QObject* window, QEvent* event) override {
        // A spontaneous one comes from the system, which hides a minimised window and shows it again.
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            folder_.Cancel();
        }
        return QObject::eventFilter(window, event);
    }

  private:
    cSHFolder& folder_;
};

}  // namespace

std::string browseForFolderOver(QWidget& window, const FolderQuestion& question) {
    cSHFolder folder;
    CancelWithWindow cancel(folder);
    window.installEventFilter(&cancel);
    return folderBrowser(reinterpret_cast<WindowHandle>(window.winId()), folder)(question);
}

}  // namespace velmora
