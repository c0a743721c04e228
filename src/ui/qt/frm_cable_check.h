// The check of a cable, over the setup dialog.
#pragma once

#include <QDialog>
#include <string>

#include "serial/mode_string.h"
#include "ui/cable_check.h"

class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;

namespace velmora {

/// Shows a CableCheck: a row for each step as soon as it is done, then the cause and what helps. The check
/// begins once the dialog is on the screen. Closing the dialog ends it.
class frmCableCheck : public QDialog {
    Q_OBJECT

  public:
    /// `port` is the device as messages call it, `settings` what the server is to use.
    frmCableCheck(const std::string& port, const LineSettings& settings, CableCheck::Examine examine,
                  QWidget* parent = nullptr);

    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void build(const std::string& port, const LineSettings& settings);
    QHBoxLayout* makeButtons();
    void check();
    void showState();
    void showSteps();
    void stopOrCheckAgain();
    void stop();
    void copyLine() const;
    bool running() const { return check_.state() == CableCheck::State::Running; }

    CableCheck check_;
    bool shownOnce_ = false;
    bool stopping_ = false;  // the check has been told to end
    bool closing_ = false;   // once the check has ended

    QTableWidget* tblSteps = nullptr;
    QProgressBar* pbrBusy = nullptr;
    QLabel* lblResult = nullptr;
    QLabel* lblAdvice = nullptr;
    QPushButton* pbStop = nullptr;
    QPushButton* pbCopy = nullptr;
    QPushButton* pbClose = nullptr;
};

}  // namespace velmora
