#include "ui/qt/folder_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>
#include <utility>

namespace velmora {
namespace {

constexpr int kPathRole = Qt::UserRole;

}  // namespace

FolderDialog::FolderDialog(Options options, QWidget* owner)
    : QDialog(owner),
      options_(std::move(options)),
      lstFolders(new QListWidget(this)),
      lblPath(new QLabel(tr("&Path:"), this)),
      txtPath(new QLineEdit(this)),
      lblFault(new QLabel(this)),
      lblStatus(new QLabel(this)) {
    makeList();
    makePathBox();
    lblFault->setObjectName(QStringLiteral("lblFault"));
    lblFault->setTextFormat(Qt::PlainText);
    lblFault->setWordWrap(true);
    lblFault->hide();
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setTextFormat(Qt::PlainText);
    lblStatus->setVisible(options_.statusLine);
    arrange();
    select(options_.root.isEmpty() ? QDir::homePath() : options_.root);
    lstFolders->setFocus();
}

void FolderDialog::makeList() {
    lstFolders->setObjectName(QStringLiteral("lstFolders"));
    lstFolders->setAccessibleName(options_.prompt);
    // What is current need not be selected: the list makes its first line so when it gets the focus.
    connect(lstFolders, &QListWidget::itemSelectionChanged, this, &FolderDialog::showSelected);
    connect(lstFolders, &QListWidget::itemDoubleClicked, this, &FolderDialog::enterSelected);
    lstFolders->installEventFilter(this);
}

// Return is the dialog's own, so that the arrow keys enter and leave.
bool FolderDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstFolders && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Right:
                enterSelected();
                return true;
            case Qt::Key_Left:
            case Qt::Key_Backspace:
                leave();
                return true;
            default:
                break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FolderDialog::makePathBox() {
    txtPath->setObjectName(QStringLiteral("txtPath"));
    lblPath->setBuddy(txtPath);
    lblPath->setVisible(options_.pathBox);
    txtPath->setVisible(options_.pathBox);
    connect(txtPath, &QLineEdit::textChanged, lblFault, &QWidget::hide);
}

void FolderDialog::arrange() {
    auto* prompt = new QLabel(options_.prompt, this);
    prompt->setObjectName(QStringLiteral("lblPrompt"));
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    auto* path = new QHBoxLayout;
    path->addWidget(lblPath);
    path->addWidget(txtPath, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    pbOK = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &FolderDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (options_.resizable) {
        QPushButton* make = buttons->addButton(tr("&New folder"), QDialogButtonBox::ActionRole);
        make->setObjectName(QStringLiteral("pbNewFolder"));
        make->setAutoDefault(false);
        connect(make, &QPushButton::clicked, this, &FolderDialog::offerFolder);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(lstFolders, 1);
    layout->addLayout(path);
    layout->addWidget(lblFault);
    layout->addWidget(lblStatus);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 70, fontMetrics().lineSpacing() * 28);
    setSizeGripEnabled(options_.resizable);
    if (!options_.resizable) {
        setFixedSize(size().expandedTo(sizeHint()));
    }
}

void FolderDialog::select(const QString& path) {
    const QFileInfo info(path);
    const QString whole = QDir::cleanPath(info.absoluteFilePath());
    if (!info.isFile()) {
        enter(whole);
        return;
    }
    enter(QDir::cleanPath(info.absolutePath()));
    for (int row = 0; row < lstFolders->count(); ++row) {
        if (lstFolders->item(row)->data(kPathRole).toString() == whole) {
            lstFolders->setCurrentRow(row);
        }
    }
    setSelected(whole);  // also where the list does not have it
}

/// Lists what is in a folder, which is selected itself then.
void FolderDialog::enter(const QString& folder) {
    folder_ = folder;
    const QSignalBlocker quiet(lstFolders);
    lstFolders->clear();
    const auto add = [this](QStyle::StandardPixmap icon, const QString& name, const QString& path) {
        auto* item = new QListWidgetItem(style()->standardIcon(icon), name, lstFolders);
        item->setData(kPathRole, path);
    };
    const QString above = QFileInfo(folder).absolutePath();  // that of "/" is "/"
    if (above != folder && insideRoot(above)) {
        add(QStyle::SP_FileDialogToParent, QStringLiteral(".."), above);
    }
    const QDir::Filters wanted = QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry :
         QDir(folder).entryInfoList(options_.files ? wanted | QDir::Files : wanted,
                                    QDir::DirsFirst | QDir::IgnoreCase | QDir::LocaleAware)) {
        add(entry.isDir() ? QStyle::SP_DirIcon : QStyle::SP_FileIcon, entry.fileName(), entry.filePath());
    }
    setSelected(folder);
}

void FolderDialog::enterSelected() {
    if (!lstFolders->selectedItems().isEmpty() && QFileInfo(selected_).isDir()) {
        enter(selected_);
    }
}

/// Goes one folder up, where the one that it was in is selected.
void FolderDialog::leave() {
    const QString left = folder_;
    const QString above = QFileInfo(left).absolutePath();
    if (above == left || !insideRoot(above)) {
        return;
    }
    enter(above);
    const QList<QListWidgetItem*> found =
        lstFolders->findItems(QFileInfo(left).fileName(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    lstFolders->setCurrentItem(found.isEmpty() ? nullptr : found.constFirst());
}

void FolderDialog::showSelected() {
    const QList<QListWidgetItem*> selected = lstFolders->selectedItems();
    if (!selected.isEmpty()) {
        setSelected(QDir::cleanPath(selected.constFirst()->data(kPathRole).toString()));
    }
}

void FolderDialog::setSelected(const QString& path) {
    making_ = false;
    selected_ = path;
    txtPath->setText(QDir::toNativeSeparators(path));
    Q_EMIT selectionMoved();
}

/// Proposes a path in the listed folder, whose end is the user's to write; accept() makes it.
void FolderDialog::offerFolder() {
    const QDir place(folder_);
    const QString word = tr("New folder");
    QString name = word;
    for (int number = 2; QFileInfo::exists(place.filePath(name)); ++number) {
        name = QStringLiteral("%1 %2").arg(word).arg(number);
    }
    lblPath->show();
    txtPath->show();
    txtPath->setText(QDir::toNativeSeparators(place.filePath(name)));
    txtPath->setSelection(static_cast<int>(txtPath->text().size() - name.size()),
                          static_cast<int>(name.size()));
    txtPath->setFocus();
    making_ = true;
}

/// Makes what offerFolder() proposed, or what its user made of that; false when it cannot be made.
bool FolderDialog::makeFolder(const QString& path) {
    if (!making_ || !insideRoot(path) || QFileInfo::exists(path)) {
        return true;
    }
    return QDir().mkdir(path);
}

void FolderDialog::setStatusText(const QString& text) {
    lblStatus->setText(text);
}

void FolderDialog::setOkEnabled(bool on) {
    okAllowed_ = on;
    pbOK->setEnabled(on);
}

QString FolderDialog::chosenPath() const {
    QString typed = QDir::fromNativeSeparators(txtPath->text());
    if (typed.isEmpty()) {
        return selected_;
    }
    if (typed == QLatin1String("~") || typed.startsWith(QLatin1String("~/"))) {
        typed.replace(0, 1, QDir::homePath());
    }
    return QDir::cleanPath(QDir(folder_).absoluteFilePath(typed));
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
    const bool made = makeFolder(path);
    if (made && mayBeChosen(path)) {
        done(Accepted);
        return;
    }
    lblFault->setText(made ? faultOf(path)
                           : tr("No folder can be made in %1")
                                 .arg(QDir::toNativeSeparators(QFileInfo(path).absolutePath())));
    lblFault->show();
    Q_EMIT validationFailed();
}

}  // namespace velmora
