// The toolkit's file dialog with what choosing a folder needs on top.
#pragma once

#include <QFileDialog>

class QLabel;
class QPushButton;

namespace velmora {

/// Prompt above the folders, status line below, a path box that is checked, an upper bound. Use once.
class FolderDialog : public QFileDialog {
    Q_OBJECT

  public:
    struct Options {
        QString prompt;
        QString root;  ///< empty: everything
        bool statusLine = false;
        bool files = false;  ///< files are shown and may be chosen
        bool pathBox = false;
        bool resizable = false;
    };

    FolderDialog(Options options, QWidget* owner);

    void setStatusText(const QString& text);
    void setOkEnabled(bool on);
    /// What is selected, with its whole path.
    QString chosenPath() const;
    void accept() override;

    /// What is wrong with a path that is no folder, for its user.
    static QString faultOf(const QString& path);

  Q_SIGNALS:
    void selectionMoved();
    void validationFailed();

  private:
    void addRows();
    void selectionChanged();
    bool mayBeChosen(const QString& path) const;
    bool insideRoot(const QString& path) const;

    const Options options_;
    bool okAllowed_ = true;
    QLabel* const lblStatus;
    QLabel* const lblFault;
    QPushButton* pbOK = nullptr;
};

}  // namespace velmora
