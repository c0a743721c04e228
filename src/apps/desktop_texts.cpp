#include "apps/desktop_texts.h"

#include <QCoreApplication>
#include <QMessageBox>

#include "base/run_time_error.h"
#include "server/caption.h"
#include "startup/ready_texts.h"
#include "startup/start_paths.h"
#include "ui/languages.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

/// Where packages put the files, and where a build has them.
std::vector<std::string> foldersOfTexts(const PathRules& rules) {
    const std::string programs = rules.absolute(systemPath(QCoreApplication::applicationDirPath()));
    const std::string above = rules.parentFolder(programs);
    std::string shared = above;
    for (const char* part : {"share", "velmora", "languages"}) {
        shared = rules.join(shared, part);
    }
    return {rules.join(programs, "languages"), shared, rules.join(above, "languages")};
}

}  // namespace

DesktopTexts::DesktopTexts(PlatformParts& platform, const RunOverrides& overrides)
    : platform_(platform),
      configuration_(configurationPath(platform.rules, platform.folders.applicationData(), overrides)) {
    for (const std::string_view language : knownLanguages()) {
        for (const std::string& folder : foldersOfTexts(platform.rules)) {
            const std::string path = platform.rules.join(folder, "Velmora." + std::string(language) + ".ini");
            if (platform.files.fileExists(path)) {
                ready_.push_back({path, QString::fromStdString(std::string(nativeName(language)))});
                break;
            }
        }
    }
}

QStringList DesktopTexts::names() const {
    QStringList names;
    for (const Ready& ready : ready_) {
        names.append(ready.language);
    }
    return names;
}

void DesktopTexts::take(int index, QWidget& window) {
    const Ready& ready = ready_.at(static_cast<std::size_t>(index));
    QMessageBox box(QMessageBox::Information, QString::fromLatin1(kProgramName), {}, QMessageBox::Ok,
                    &window);
    box.setTextFormat(Qt::PlainText);
    try {
        const std::string kept =
            takeTexts(platform_.profiles, platform_.files, platform_.rules, ready.path, configuration_);
        box.setText(QCoreApplication::translate(
                        "DesktopTexts",
                        "From the next start on, the texts of the display are in this language: %1. "
                        "The file as it was is kept as\n%2")
                        .arg(ready.language, qtSystemText(kept)));
    } catch (const RunTimeError& error) {
        box.setIcon(QMessageBox::Warning);
        box.setText(QCoreApplication::translate("DesktopTexts", "The texts could not be taken over: %1")
                        .arg(QString::fromLocal8Bit(error.what())));
    }
    box.exec();
}

}  // namespace velmora
