// The dialog about the program.
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <string>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace velmora {

/// Says what the program is, and hands over what belongs to a report of a fault.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    /// What the dialog's buttons are for.
    struct Actions {
        /// The report, UTF-8; `capture` is the path of the one that was saved for it, empty without one.
        std::function<std::string(const QString& capture)> report;
        /// The bytes of a capture for the report.
        std::function<std::string()> capture;
    };

    /// `program`: name and whole version; `text`: all else that is said of it.
    frmAbout(const QString& program, const QString& text, Actions actions, QWidget* parent = nullptr);

    /// What the Help button and F1 do; without it there is no such button.
    void offerHelp(const std::function<void()>& help);
    /// Saves the capture that goes with the report; false when it cannot be, which a box has told.
    bool saveCaptureTo(const QString& path);

  private:
    QHBoxLayout* makeButtons();
    void copyDetails();
    void saveCaptureAs();
    void captureSaved(const QString& path);
    void tell(const QString& words);

    Actions actions_;
    QString savedCapture_;
    QLabel* lblTold = nullptr;
    QPushButton* pbHelp = nullptr;
};

}  // namespace velmora
