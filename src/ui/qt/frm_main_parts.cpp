// What the main window is made of, and where it stands.
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <initializer_list>

#include "ui/qt/alert_area.h"
#include "ui/qt/artwork.h"
#include "ui/qt/debug_switch.h"
#include "ui/qt/elided_label.h"
#include "ui/qt/frm_main.h"
#include "ui/qt/lcd_display.h"
#include "ui/qt/lcd_line.h"
#include "ui/qt/message_label.h"

namespace velmora {
namespace {

/// Text lines that are kept free for messages, so that the window need not grow when one comes.
constexpr int kMessageLines = 3;

QString indexed(const char* name, std::size_t index) {
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index + 1);
}

}  // namespace

void frmMain::makeDisplay() {
    imgBGround = new LcdDisplay(this);
    imgBGround->setObjectName(QStringLiteral("imgBGround"));
    imgBGround->setAccessibleName(tr("Organiser display"));
    for (std::size_t i = 0; i < LcdDisplay::kLines; ++i) {
        LcdLine& line = imgBGround->line(i);
        line.setObjectName(indexed("tlDisplay", i));
        line.setAccessibleName(tr("Organiser display line %1").arg(i + 1));
        line.setText(QString(LcdLine::kColumns, QLatin1Char(' ')));
    }
}

void frmMain::makeMessages() {
    messageArea_ = new AlertArea(this);
    messageArea_->hide();
    warningSign_ = new WarningSign(messageArea_);
    warningSign_->setObjectName(QStringLiteral("imgWarning"));
    warningSign_->setAccessibleName(tr("Warning"));
    warningSign_->hide();
    tlWarning = new QLabel(tr("Error"), messageArea_);
    tlWarning->setObjectName(QStringLiteral("tlWarning"));
    tlWarning->setAccessibleName(tlWarning->text());
    QFont bold = tlWarning->font();
    bold.setBold(true);
    tlWarning->setFont(bold);
    tlWarning->hide();

    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(tlWarning);
    for (std::size_t i = 0; i < tlBottomText.size(); ++i) {
        tlBottomText[i] = new MessageLabel(messageArea_);
        tlBottomText[i]->setObjectName(indexed("tlBottomText", i));
        tlBottomText[i]->hide();
        texts->addWidget(tlBottomText[i]);
    }
    advice_ = new QLabel(messageArea_);
    advice_->setObjectName(QStringLiteral("lblAdvice"));
    advice_->setTextFormat(Qt::PlainText);
    advice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    advice_->setWordWrap(true);
    advice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    advice_->hide();
    texts->addWidget(advice_);
    texts->addStretch();

    auto* layout = new QHBoxLayout(messageArea_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(warningSign_, 0, Qt::AlignTop);
    layout->addLayout(texts, 1);
    messageArea_->setMinimumHeight(kMessageLines * fontMetrics().lineSpacing());
}

void frmMain::makeStatistics() {
    const auto makeCounter = [this](const char* name) {
        auto* label = new QLabel(QStringLiteral("0"), this);
        label->setObjectName(QLatin1String(name));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->hide();
        return label;
    };
    tlBytesRecv = makeCounter("tlBytesRecv");
    tlBytesSent = makeCounter("tlBytesSent");
    tlFilesRecv = makeCounter("tlFilesRecv");
    tlFilesSent = makeCounter("tlFilesSent");
    const std::array<QString, 4> captions = {tr("Files"), tr("Bytes"), tr("Received"), tr("Sent")};
    for (std::size_t i = 0; i < tlStatLabel.size(); ++i) {
        tlStatLabel[i] = new QLabel(captions[i], this);
        tlStatLabel[i]->setObjectName(indexed("tlStatLabel", i));
        tlStatLabel[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tlStatLabel[i]->hide();
    }
    nameCounters();
}

void frmMain::makeButtons() {
    const auto makeButton = [this](const char* name, const QString& caption, const QString& tip,
                                   std::function<void()> Actions::*action) {
        auto* made = new QPushButton(caption, this);
        made->setObjectName(QLatin1String(name));
        made->setToolTip(tip);
        // Enter presses the button that has the focus, as Space does.
        made->setAutoDefault(true);
        connect(made, &QPushButton::clicked, this, [this, action] { call(actions_.*action); });
        return made;
    };
    pbStartStop =
        makeButton("pbStartStop", tr("&Start"), tr("Start or stop the server"), &Actions::pbStartStop_Click);
    pbSetup = makeButton("pbSetup", tr("Set&up…"), tr("Choose the serial port, its speed and the file type"),
                         &Actions::pbSetup_Click);
    pbFolder =
        makeButton("pbFolder", tr("&Folder…"),
                   tr("Choose the folder that files are saved to and loaded from"), &Actions::pbFolder_Click);
    pbHide = makeButton("pbHide", tr("&Hide"), {}, &Actions::pbHide_Click);
    pbHide->installEventFilter(this);
    tellWhereHideGoes();
    pbShutDown = makeButton("pbShutDown", tr("Shut &down"), tr("Stop the server and end the program"),
                            &Actions::pbShutDown_Click);
    pbTransfers = makeButton("pbTransfers", tr("&Transfers…"), tr("Show what was saved and loaded (Ctrl+T)"),
                             &Actions::pbTransfers_Click);
    pbAbout = makeButton("pbAbout", QStringLiteral("?"),
                         tr("What Velmora is made of, where its files are, and a report of a fault"),
                         &Actions::pbAbout_Click);
    // No wider than high, beside a button that says in a word what it does.
    pbAbout->setFixedWidth(pbAbout->sizeHint().height());
    pbOpenFolder = makeButton("pbOpenFolder", tr("&Open folder"),
                              tr("Open the folder that files are saved to and loaded from"),
                              &Actions::pbOpenFolder_Click);
    lblFolder = new ElidedLabel(this);
    lblFolder->setObjectName(QStringLiteral("lblFolder"));
    lblFolder->setAccessibleName(tr("Download folder"));
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_T), this), &QShortcut::activated, this,
            [this] { call(actions_.pbTransfers_Click); });
    frmMain::setButtonCaption(MainButton::StartStop, "Start");
    pbSetup->setAccessibleName(tr("Setup"));
    pbFolder->setAccessibleName(tr("Folder"));
    pbHide->setAccessibleName(tr("Hide"));
    pbShutDown->setAccessibleName(tr("Shut down"));
    pbTransfers->setAccessibleName(tr("Transfers"));
    pbAbout->setAccessibleName(tr("About Velmora"));
    pbOpenFolder->setAccessibleName(tr("Open folder"));
}

QGridLayout* frmMain::arrangeStatistics() {
    auto* statistics = new QGridLayout;
    statistics->setHorizontalSpacing(36);
    statistics->setVerticalSpacing(4);
    statistics->addWidget(tlStatLabel[0], 0, 1);
    statistics->addWidget(tlStatLabel[1], 0, 2);
    statistics->addWidget(tlStatLabel[2], 1, 0);
    statistics->addWidget(tlStatLabel[3], 2, 0);
    statistics->addWidget(tlFilesRecv, 1, 1);
    statistics->addWidget(tlBytesRecv, 1, 2);
    statistics->addWidget(tlFilesSent, 2, 1);
    statistics->addWidget(tlBytesSent, 2, 2);
    // Wide enough for the widest count, so that the grid stands still while it counts.
    const int widest = fontMetrics().horizontalAdvance(QStringLiteral("9,999,999"));
    statistics->setColumnMinimumWidth(1, widest);
    statistics->setColumnMinimumWidth(2, widest);
    statistics->setColumnStretch(0, 1);
    statistics->setColumnStretch(3, 1);
    auto* others = new QHBoxLayout;
    others->setSpacing(6);
    others->addWidget(pbTransfers);
    others->addWidget(pbAbout);
    statistics->addLayout(others, 0, 4, 3, 1, Qt::AlignRight | Qt::AlignBottom);
    return statistics;
}

void frmMain::arrange() {
    auto* heading = new QHBoxLayout;
    heading->addWidget(imgProgName);
    heading->addStretch();
    heading->addWidget(lblDebug, 0, Qt::AlignBottom);
    tlProgVers->setMargin(lblDebug->margin());  // both stand on one line
    heading->addWidget(tlProgVers, 0, Qt::AlignBottom);

    auto* rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Plain);
    rule->setForegroundRole(QPalette::Mid);

    auto* folder = new QHBoxLayout;
    folder->addWidget(lblFolder, 1);
    folder->addWidget(pbOpenFolder);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* each : {pbStartStop, pbSetup, pbFolder, pbHide, pbShutDown}) {
        buttons->addWidget(each);
    }

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(12);
    layout->addLayout(heading);
    layout->addWidget(imgBGround, 1);
    layout->addWidget(messageArea_);
    layout->addWidget(rule);
    layout->addLayout(arrangeStatistics());
    layout->addLayout(folder);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetNoConstraint);  // the window sees to its size itself

    QWidget* previous = pbStartStop;
    for (QWidget* next : std::initializer_list<QWidget*>{pbSetup, pbFolder, pbHide, pbShutDown, pbTransfers,
                                                         pbAbout, pbOpenFolder, lblDebug}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

}  // namespace velmora
