#include "ui/qt/translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#ifdef VELMORA_TRANSLATIONS
/// Makes the translations known that are linked in with this library. The macro wants the global namespace.
static void loadTranslations() {
    Q_INIT_RESOURCE(languages);
}
#else
static void loadTranslations() {}
#endif

namespace velmora {

std::vector<std::string> desktopLanguages() {
    std::vector<std::string> languages;
    for (const QString& name : QLocale::system().uiLanguages()) {
        languages.push_back(name.toStdString());
    }
    return languages;
}

Translation::Translation(std::string_view language) {
    loadTranslations();
    const QString code = QString::fromLatin1(language.data(), static_cast<qsizetype>(language.size()));
    QLocale::setDefault(QLocale(code));
    // What the toolkit's own dialogs say, where its translations are installed. The later one counts first.
    if (toolkit_.load(QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&toolkit_);
    }
    if (own_.load(QStringLiteral(":/languages/velmora_%1.qm").arg(code))) {
        QCoreApplication::installTranslator(&own_);
    }
}

Translation::~Translation() {
    QCoreApplication::removeTranslator(&own_);
    QCoreApplication::removeTranslator(&toolkit_);
    QLocale::setDefault(before_);
}

}  // namespace velmora
