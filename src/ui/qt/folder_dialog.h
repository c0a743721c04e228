// A folder dialog of our own, for desktops without one.
#pragma once

#include <QDialog>
#include <QString>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora {

/// The folders in a folder under a prompt, a path box that is checked, a status line, an upper bound. A
/// double click or the right arrow key enters a folder, the left one and Backspace leave it. Use once.
class FolderDialog : public QDialog {
    Q_OBJECT

  public:
    struct Options {
        QString prompt;
        QString root;  ///< empty: everything
        bool statusLine = false;
        bool files = false;  ///< files are shown and may be chosen
        bool pathBox = false;
        bool resizable = false;  ///< and a folder can be made
    };

    FolderDialog(Options options, QWidget* owner);

    /// Enters a folder, or selects a file where files are shown.
    void select(const QString& path);
    void setStatusText(const QString& text);
    void setOkEnabled(bool on);
    /// What is selected or typed, with its whole path; the folder that was entered last without either.
    QString chosenPath() const;
    void accept() override;

    /// What is wrong with a path that is no folder, for its user.
    static QString faultOf(const QString& path);

  Q_SIGNALS:
    void selectionMoved();
    void validationFailed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeList();
    void makePathBox();
    void arrange();
    void enter(const QString& folder);
    void enterSelected();
    void leave();
    void showSelected();
    void setSelected(const QString& path);
    void offerFolder();
    bool makeFolder(const QString& path);
    bool mayBeChosen(const QString& path) const;
    bool insideRoot(const QString& path) const;

    const Options options_;
    QString folder_;    // the whole path of what is listed
    QString selected_;  // the whole path
    bool okAllowed_ = true;
    bool making_ = false;  // the path may be that of a folder yet to be made
    QListWidget* const lstFolders;
    QLabel* const lblPath;
    QLineEdit* const txtPath;
    QLabel* const lblFault;
    QLabel* const lblStatus;
    QPushButton* pbOK = nullptr;
};

}  // namespace velmora
