#include "ui/qt/frm_about.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "ui/qt/capture_saving.h"
#include "ui/qt/core_texts.h"
#include "ui/qt/help_key.h"

namespace velmora {

frmAbout::frmAbout(const QString& program, const QString& text, Actions actions, QWidget* parent)
    : QDialog(parent), actions_(std::move(actions)) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Velmora"));
    auto* icon = new QLabel;
    constexpr int kIconSize = 48;
    icon->setPixmap(QApplication::windowIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    icon->setProperty("decoration", true);
    auto* name = new QLabel(program);
    name->setObjectName(QStringLiteral("lblProgram"));
    name->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    auto* heading = new QHBoxLayout;
    heading->addWidget(icon);
    heading->addWidget(name, 1);

    auto* txtAbout = new QPlainTextEdit(coreText(text));
    txtAbout->setObjectName(QStringLiteral("txtAbout"));
    txtAbout->setAccessibleName(tr("About Velmora"));
    txtAbout->setReadOnly(true);
    txtAbout->setTabChangesFocus(true);
    txtAbout->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtAbout->setMinimumWidth(fontMetrics().averageCharWidth() * 76);
    txtAbout->setMinimumHeight(fontMetrics().lineSpacing() * 20);

    lblTold =
        new QLabel(tr("Copy details puts a report of a fault onto the clipboard: what runs here, "
                      "with which settings, and what passed "
                      "over the line last. It names files, and has none of their contents."));
    lblTold->setObjectName(QStringLiteral("lblTold"));
    lblTold->setTextFormat(Qt::PlainText);
    lblTold->setWordWrap(true);

    auto* all = new QVBoxLayout(this);
    all->addLayout(heading);
    all->addWidget(txtAbout, 1);
    all->addWidget(lblTold);
    all->addLayout(makeButtons());
    // A sentence of two lines more must not move the buttons.
    lblTold->setMinimumHeight(3 * fontMetrics().lineSpacing());
    lblTold->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

QHBoxLayout* frmAbout::makeButtons() {
    auto* buttons = new QHBoxLayout;
    const auto addButton = [buttons](const char* control, const QString& caption) {
        auto* button = new QPushButton(caption);
        button->setObjectName(QLatin1String(control));
        button->setAutoDefault(false);
        buttons->addWidget(button);
        return button;
    };
    connect(addButton("pbCopyDetails", tr("&Copy details")), &QPushButton::clicked, this,
            &frmAbout::copyDetails);
    connect(addButton("pbSaveCapture", tr("Save ca&pture…")), &QPushButton::clicked, this,
            &frmAbout::saveCaptureAs);
    buttons->addStretch();
    pbHelp = addButton("pbHelp", tr("&Help"));
    pbHelp->hide();
    auto* pbClose = addButton("pbClose", tr("Close"));
    pbClose->setDefault(true);
    connect(pbClose, &QPushButton::clicked, this, &frmAbout::accept);
    return buttons;
}

void frmAbout::offerHelp(const std::function<void()>& help) {
    connect(pbHelp, &QPushButton::clicked, this, help);
    onHelpKey(*this, help);
    pbHelp->show();
}

void frmAbout::copyDetails() {
    QApplication::clipboard()->setText(QString::fromStdString(actions_.report(savedCapture_)));
    tell(savedCapture_.isEmpty()
             ? tr("The report is on the clipboard: paste it into your mail.")
             : tr("The report is on the clipboard: paste it into your mail, and attach the capture."));
}

void frmAbout::saveCaptureAs() {
    if (const QString path = askAndSaveCapture(*this, actions_.capture()); !path.isEmpty()) {
        captureSaved(path);
    }
}

bool frmAbout::saveCaptureTo(const QString& path) {
    const bool saved = saveCapture(*this, path, actions_.capture());
    if (saved) {
        captureSaved(path);
    }
    return saved;
}

void frmAbout::captureSaved(const QString& path) {
    savedCapture_ = path;
    tell(tr("The last minute of the line, without the contents of files, is in %1.")
             .arg(QDir::toNativeSeparators(path)));
}

void frmAbout::tell(const QString& words) {
    lblTold->setText(words);
    lblTold->setAccessibleName(words);
}

}  // namespace velmora
