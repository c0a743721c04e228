#include "ui/qt/dropped_files_box.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <algorithm>

#include "server/caption.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

using Fate = DroppedFile::Fate;

/// Lines that a box holds on a small screen.
constexpr qsizetype kMostLines = 12;

QString nameIn(const std::string& path) {
    return QFileInfo(qtSystemText(path)).fileName();
}

/// Texts in the user's language.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(DroppedFiles)
};

/// What is to be said of one file; empty when nothing is.
QString lineAbout(const DroppedFile& file) {
    const QString name = nameIn(file.source);
    switch (file.fate) {
        case Fate::Copied:
            return file.renamed ? Words::tr("%1 is called %2 there, which the Organiser can type.")
                                      .arg(name, nameIn(file.path))
                                : QString();
        case Fate::AlreadyThere:
            return Words::tr("%1 is in the download folder already.").arg(name);
        case Fate::Skipped:
            return {};
        case Fate::Folder:
            return Words::tr("%1 is a folder; only files are copied.").arg(name);
        case Fate::TooLarge:
            return Words::tr("%1 has more than 16 MB and was not copied.").arg(name);
        case Fate::NoPlace:
            return Words::tr("%1 was not copied: the download folder is not there.").arg(name);
        case Fate::Failed:
            return Words::tr("%1 was not copied: %2").arg(name, qtSystemText(file.why));
    }
    return {};
}

}  // namespace

NameTaken askAboutTaken(QWidget& window, const DroppedFiles::Question& question) {
    QMessageBox box(QMessageBox::Question, QString::fromLatin1(kProgramName),
                    Words::tr("%1 is in the download folder already.").arg(nameIn(question.taken)),
                    QMessageBox::NoButton, &window);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* replace = box.addButton(Words::tr("&Replace it"), QMessageBox::DestructiveRole);
    QPushButton* other =
        box.addButton(Words::tr("&Copy as %1").arg(qtSystemText(question.other)), QMessageBox::AcceptRole);
    QPushButton* skip = box.addButton(Words::tr("&Skip"), QMessageBox::RejectRole);
    const QPushButton* skipAll =
        question.more ? box.addButton(Words::tr("Skip &all"), QMessageBox::RejectRole) : nullptr;
    box.setDefaultButton(other);
    box.setEscapeButton(skip);
    box.exec();
    const QAbstractButton* pressed = box.clickedButton();
    if (pressed == replace) {
        return NameTaken::Replace;
    }
    if (pressed == other) {
        return NameTaken::OtherName;
    }
    return skipAll != nullptr && pressed == skipAll ? NameTaken::SkipAll : NameTaken::Skip;
}

QString copiedSentence(const std::vector<DroppedFile>& files) {
    const bool asDropped = std::all_of(files.begin(), files.end(), [](const DroppedFile& file) {
        return file.fate == Fate::Copied && !file.renamed;
    });
    if (!asDropped || files.empty()) {
        return {};
    }
    if (files.size() == 1) {
        return Words::tr("%1 is in the download folder now.").arg(nameIn(files.front().path));
    }
    return Words::tr("%1 files are in the download folder now.").arg(files.size());
}

void tellOfDropped(QWidget& window, const std::vector<DroppedFile>& files) {
    QStringList lines;
    bool failed = false;
    for (const DroppedFile& file : files) {
        if (const QString line = lineAbout(file); !line.isEmpty()) {
            lines.append(line);
            failed = failed || file.fate != Fate::Copied;
        }
    }
    if (lines.isEmpty()) {
        return;
    }
    if (lines.size() > kMostLines) {
        const qsizetype left = lines.size() - (kMostLines - 1);
        lines = lines.first(kMostLines - 1);
        lines.append(Words::tr("There are %1 more such files.").arg(left));
    }
    QMessageBox box(failed ? QMessageBox::Warning : QMessageBox::Information,
                    QString::fromLatin1(kProgramName), lines.join(QLatin1Char('\n')), QMessageBox::Ok,
                    &window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace velmora
