// The debug window.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "ui/debug_log_model.h"
#include "ui/qt/log_lines.h"

class QAction;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QMenuBar;
class QPushButton;
class QRadioButton;

namespace velmora {

class LogView;

/// The protocol trace as a log with its filter. Lines are shown in batches, so that a busy link does not wait
/// for the screen.
class frmDebug : public QWidget, private DebugLogView {
    Q_OBJECT

  public:
    /// The clock must outlive the window.
    explicit frmDebug(const Clock& clock, QWidget* parent = nullptr);

    /// Where the trace goes.
    DebugLogModel& model() { return model_; }
    /// Shows the hidden window, hides the shown one.
    void toggle();
    /// Puts the lines on the screen that wait for the next batch.
    void showWaiting();
    /// Writes the whole log, hidden lines too, UTF-8 with this system's line ends. A failure is shown in a
    /// box and leaves the file that was there.
    bool saveTo(const QString& path);
    /// Offers to save what passed over the line; `capture` gives the bytes of the file. Without it there is
    /// no such entry.
    void offerCapture(std::function<std::string()> capture);
    /// Writes those bytes; a failure as with saveTo. Requires: they are offered.
    bool saveCaptureTo(const QString& path);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void appendLine(const std::string& line, bool polling) override;
    void clearLog() override;
    void categoryChanged(std::size_t index) override;
    void build();
    QMenuBar* buildMenus();
    void buildLog();
    QBoxLayout* buildFind();
    QBoxLayout* buildFilters();
    QBoxLayout* buildLastRow();
    QAction* addEntry(const QString& name, const QString& text, const QKeySequence& keys);

    void saveAs();
    void saveCaptureAs();
    void switchCategory(std::size_t index);
    void hidePolling(bool hidden);
    void showFailedSave(const QString& words);
    void copySelection();
    void copyAll();
    void showFind();
    void hideFind();
    void find(LogLines::Direction direction);
    void tellFound(const QString& words);

    std::function<std::string()> capture_;
    DebugLogModel model_;
    LogLines lines_;
    std::vector<LogLines::Line> waiting_;
    QTimer flushTimer_{this};
    bool toggled_ = false;  // the press that goes on has toggled its box
    QAction* mnuSaveCapture = nullptr;
    LogView* txtLog = nullptr;
    QWidget* findBar = nullptr;
    QLineEdit* txtFind = nullptr;
    QLabel* lblFound = nullptr;
    QCheckBox* chkFollow = nullptr;
    QCheckBox* chkHidePolling = nullptr;
    std::array<QRadioButton*, 3> obShowWhat{};
    std::array<QCheckBox*, DebugLogModel::kCategories> chkShowWhat{};
    QCheckBox* chkLogToDisk = nullptr;
    QPushButton* cbClear = nullptr;
};

}  // namespace velmora
