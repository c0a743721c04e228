// The main window.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "server/main_view.h"
#include "server/server_controller.h"
#include "ui/qt/growing_window.h"

class QAbstractButton;
class QCloseEvent;
class QGridLayout;
class QLabel;
class QPushButton;
class QResizeEvent;
class QShowEvent;

namespace velmora {

class AlertArea;
class Announcer;
class DebugSwitch;
class ElidedLabel;
class LcdDisplay;
class MessageLabel;
class NameImage;
class WarningSign;

/// Shows what the server controller tells it, and hands over what the user does. It decides nothing.
class frmMain : public GrowingWindow, public MainView {
    Q_OBJECT

  public:
    /// What the user does with the window; each may be missing.
    struct Actions {
        std::function<void()> pbStartStop_Click;
        std::function<void()> pbSetup_Click;
        std::function<void()> pbFolder_Click;
        std::function<void()> pbHide_Click;
        std::function<void()> pbShutDown_Click;
        std::function<void()> pbTransfers_Click;
        std::function<void()> pbOpenFolder_Click;
        std::function<void()> pbAbout_Click;
        std::function<void()> lblDebug_DblClick;
        /// The window is about to close; false keeps it open.
        std::function<bool(CloseReason)> queryUnload;
        /// The window has closed.
        std::function<void()> closed;
        /// The window appeared, was resized, minimised or restored.
        std::function<void(bool minimised)> resized;
    };

    explicit frmMain(QWidget* parent = nullptr);

    void setActions(Actions actions) { actions_ = std::move(actions); }

    /// What the program calls itself in full, for a pointer that rests on the version.
    void setFullVersion(const std::string& version);
    /// Names the profile behind each title of the window; in the system's encoding.
    void setProfile(const std::string& name);
    /// The folder that files are saved to and loaded from; in the system's encoding.
    void showFolder(const std::string& path);

    /// A sentence under the messages that says what to do about the warning; it goes with the messages.
    /// In the system's encoding.
    void showAdvice(const std::string& text);

    /// Has minimise() hide the window instead, whenever `when` says so; restore() brings it back.
    void hideInsteadOfMinimising(std::function<bool()> when) { hides_ = std::move(when); }
    /// The button that starts and stops the server, for what stands in for it.
    const QAbstractButton& startStopButton() const;

    /// Has a screen reader speak what the window does not show, sentences of the core in the user's language.
    /// Words are Windows-1252 bytes.
    void say(const std::string& words);

    // MainView
    void setDisplayLine(int line, const std::string& text) override;
    void showStatus(const std::string& text) override;
    void showReport(const std::string&) override {}
    void showState(std::int32_t state) override { Q_EMIT stateShown(state); }
    void showMessages(const MessageLines& messages) override;
    std::string statsText(StatsLabel label) const override;
    void setStatsText(StatsLabel label, const std::string& text) override;
    void setHeading(StatsHeading heading, const std::string& text) override;
    void showStatistics() override;
    void setWarningCaption(const std::string& text) override;
    void setVersion(const std::string& version, const std::string& build) override;
    void showDebugLabel(bool visible) override;
    void setButtonEnabled(MainButton button, bool enabled) override;
    void setButtonCaption(MainButton button, const std::string& caption) override;
    using QWidget::setFocus;
    void setFocus(MainButton button) override;
    void setCaption(const std::string& caption) override;
    bool isVisible() const override { return QWidget::isVisible(); }
    bool isMinimised() const override { return isMinimized(); }
    void minimise() override;
    void restore() override;
    void bringToFront() override;
    void close() override;

  Q_SIGNALS:
    /// What the display says, as one line.
    void statusShown(const QString& status);
    /// The server's state (ServerState).
    void stateShown(std::int32_t state);
    /// startStopButton() has another caption, or can be pressed or no longer.
    void startStopChanged();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    static void call(const std::function<void()>& action);
    void makeDisplay();
    void makeMessages();
    void makeStatistics();
    void makeButtons();
    QGridLayout* arrangeStatistics();
    void arrange();
    void layOutMessages();
    void layOutAdvice(int width);
    int messageWidth();
    static QString withKey(const std::string& caption);
    void nameCounters();
    void tellWhereHideGoes();
    void announceMessages();
    QLabel* counter(StatsLabel label) const;
    QPushButton* button(MainButton button) const;
    void tellOf(MainButton changed);

    Actions actions_;
    bool closingByProgram_ = false;
    std::function<bool()> hides_;
    bool putAway_ = false;  // hidden by minimise()
    QString profile_;       // empty without one

    NameImage* imgProgName;
    QLabel* tlProgVers;
    DebugSwitch* lblDebug;
    LcdDisplay* imgBGround;
    Announcer* announcer_;
    AlertArea* messageArea_;
    WarningSign* warningSign_;
    QLabel* tlWarning;
    std::array<MessageLabel*, 3> tlBottomText{};
    MessageLines messages_;
    QLabel* advice_;
    QString adviceText_;  // whole; empty without any
    std::array<QLabel*, 4> tlStatLabel{};
    QLabel* tlBytesRecv;
    QLabel* tlBytesSent;
    QLabel* tlFilesRecv;
    QLabel* tlFilesSent;
    QPushButton* pbStartStop;
    QPushButton* pbSetup;
    QPushButton* pbFolder;
    QPushButton* pbHide;
    QPushButton* pbShutDown;
    QPushButton* pbTransfers;
    QPushButton* pbAbout;
    ElidedLabel* lblFolder;
    QPushButton* pbOpenFolder;
};

}  // namespace velmora
