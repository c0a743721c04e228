#include "ui/qt/folder_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

namespace velmora {

FolderDialog::FolderDialog(Options options, QWidget* owner)
    : QFileDialog(owner),
      options_(std::move(options)),
      lblStatus(new QLabel(this)),
      lblFault(new QLabel(this)) {
    setOption(DontUseNativeDialog);
    setFileMode(Directory);
    setOption(ShowDirsOnly, !options_.files);
    setLabelText(Accept, tr("OK"));
    lblFault->setObjectName("lblFault");
    lblFault->setWordWrap(true);
    lblFault->hide();
    lblStatus->setObjectName("lblStatus");
    lblStatus->setVisible(options_.statusLine);
    addRows();
    if (auto* buttons = findChild<QDialogButtonBox*>()) {
        pbOK = buttons->button(QDialogButtonBox::Open);
    }
    if (auto* path = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
        path->setVisible(options_.pathBox);
        connect(path, &QLineEdit::textChanged, this, &FolderDialog::selectionChanged);
    }
    if (auto* label = findChild<QLabel*>(QStringLiteral("fileNameLabel"))) {
        label->setVisible(options_.pathBox);
    }
    connect(this, &QFileDialog::currentChanged, this, [this] {
        selectionChanged();
        Q_EMIT selectionMoved();
    });
    connect(this, &QFileDialog::directoryEntered, this, [this](const QString& folder) {
        if (!insideRoot(folder)) {
            setDirectory(options_.root);
        }
        Q_EMIT selectionMoved();
    });
    if (!options_.root.isEmpty()) {
        setDirectory(options_.root);
    }
    setSizeGripEnabled(options_.resizable);
    if (!options_.resizable) {
        setFixedSize(sizeHint().expandedTo(size()));
    }
}

// The toolkit's dialog has no place for these: its rows move down by one.
void FolderDialog::addRows() {
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (!grid) {
        return;
    }
    struct Cell {
        QLayoutItem* item;
        int row, column, rows, columns;
    };
    QList<Cell> cells;
    while (grid->count() > 0) {
        Cell cell{};
        grid->getItemPosition(0, &cell.row, &cell.column, &cell.rows, &cell.columns);
        cell.item = grid->takeAt(0);
        cells.append(cell);
    }
    auto* prompt = new QLabel(options_.prompt);
    prompt->setObjectName("lblPrompt");
    grid->addWidget(prompt, 0, 0, 1, 3);
    for (const Cell& cell : cells) {
        grid->addItem(cell.item, cell.row + 1, cell.column, cell.rows, cell.columns);
    }
    const int below = grid->rowCount();
    grid->addWidget(lblFault, below, 0, 1, 3);
    grid->addWidget(lblStatus, below + 1, 0, 1, 3);
}

void FolderDialog::setStatusText(const QString& text) {
    lblStatus->setText(text);
}

void FolderDialog::setOkEnabled(bool on) {
    okAllowed_ = on;
    if (pbOK) {
        pbOK->setEnabled(on);
    }
}

QString FolderDialog::chosenPath() const {
    const QStringList chosen = selectedFiles();
    return chosen.isEmpty() ? directory().absolutePath() : chosen.constFirst();
}

// The toolkit enables OK with each change of the selection.
void FolderDialog::selectionChanged() {
    if (pbOK && !okAllowed_) {
        pbOK->setEnabled(false);
    }
    lblFault->hide();
}

bool FolderDialog::insideRoot(const QString& path) const {
    if (options_.root.isEmpty()) {
        return true;
    }
    const QString root = QDir::cleanPath(options_.root);
    const QString clean = QDir::cleanPath(path);
    return clean == root || clean.startsWith(root.endsWith('/') ? root : root + '/');
}

bool FolderDialog::mayBeChosen(const QString& path) const {
    const QFileInfo info(path);
    return insideRoot(path) && (info.isDir() || (options_.files && info.isFile()));
}

QString FolderDialog::faultOf(const QString& path) {
    return tr("%1 is no folder to choose").arg(QDir::toNativeSeparators(path));
}

void FolderDialog::accept() {
    if (!okAllowed_) {
        return;
    }
    const QString path = chosenPath();
    if (mayBeChosen(path)) {
        done(Accepted);
        return;
    }
    lblFault->setText(faultOf(path));
    lblFault->show();
    Q_EMIT validationFailed();
}

}  // namespace velmora
