// The debug window.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>

#include "ui/debug_log_model.h"

class QCheckBox;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace velmora {

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

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void appendLine(const std::string& line) override;
    void clearLog() override;
    void categoryChanged(std::size_t index) override;
    void build();
    void flush();

    DebugLogModel model_;
    QString waiting_;
    QTimer flushTimer_;
    QPlainTextEdit* txtLog = nullptr;
    std::array<QRadioButton*, 3> obShowWhat{};
    std::array<QCheckBox*, DebugLogModel::kCategories> chkShowWhat{};
    QCheckBox* chkLogToDisk = nullptr;
    QPushButton* cbClear = nullptr;
};

}  // namespace velmora
