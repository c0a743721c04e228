// The window of transfers.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "ui/qt/transfer_table.h"

class QAction;
class QLabel;
class QMenu;
class QTableView;

namespace velmora {

/// A table of all transfers, the latest on top, with what one does with their files. A window of its own
/// beside the main one.
class frmTransfers : public QWidget {
    Q_OBJECT

  public:
    /// What is done with a file at a path in the system's encoding; why it cannot be, empty when it was.
    struct Actions {
        std::function<QString(const std::string& path)> open;
        std::function<QString(const std::string& path)> showInFolder;
    };

    /// The list must outlive the window.
    frmTransfers(TransferList& list, Actions actions, QWidget* parent = nullptr);

    /// Shows the window, in front of the others.
    void present();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void buildTable();
    int columnWidth(int column) const;
    int resultWidth() const;
    void buildMenu();
    QAction* addEntry(const QString& name, const QString& text, const QKeySequence& keys,
                      void (frmTransfers::*deed)());

    void openFile();
    void showInFolder();
    void openEarlierCopy();
    void copyPath();
    void copyDetails();

    const ListedTransfer* selected() const;
    void offerActions();
    void tell(const QString& words);
    void showWhetherEmpty();

    Actions actions_;
    TransferTable table_;
    QTableView* tblTransfers = nullptr;
    QMenu* menu_ = nullptr;
    QAction* mnuOpen = nullptr;
    QAction* mnuShowInFolder = nullptr;
    QAction* mnuOpenEarlierCopy = nullptr;
    QAction* mnuCopyPath = nullptr;
    QAction* mnuCopyDetails = nullptr;
    QLabel* lblNone = nullptr;
    QLabel* lblTold = nullptr;
};

}  // namespace velmora
