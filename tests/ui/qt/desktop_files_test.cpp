// What is handed over to the desktop, which a handler of the toolkit stands in for.
#include "ui/qt/desktop_files.h"

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <memory>
#include <string>

namespace velmora {
namespace {

class DesktopFilesTest : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    void take(const QUrl& url) {
        taken = url.toLocalFile();
        takenAnchor = url.fragment();
    }

  private Q_SLOTS:
    void init();
    void cleanup();
    void aFileIsHandedOver();
    void aFileThatIsGoneIsTold();
    void theFolderOfAFileIsHandedOver();
    void theFolderIsShownWhenOnlyTheFileIsGone();
    void aFolderThatIsGoneIsTold();
    void whatNoProgramOpensIsTold();
    void aPageIsHandedOverWithItsHeading();

  private:
    std::string path(const char* name) const {
        return QFile::encodeName(folder->filePath(QLatin1String(name))).toStdString();
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString taken;
    QString takenAnchor;
};

void DesktopFilesTest::init() {
    folder = std::make_unique<QTemporaryDir>();
    QFile memo(folder->filePath(QStringLiteral("Memo.odb")));
    QVERIFY(memo.open(QIODevice::WriteOnly));
    taken.clear();
    takenAnchor.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "take");
}

void DesktopFilesTest::cleanup() {
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void DesktopFilesTest::aFileIsHandedOver() {
    QCOMPARE(openOnDesktop(path("Memo.odb")), QString());
    QCOMPARE(taken, folder->filePath(QStringLiteral("Memo.odb")));
}

void DesktopFilesTest::aFileThatIsGoneIsTold() {
    QCOMPARE(openOnDesktop(path("Gone.odb")),
             folder->filePath(QStringLiteral("Gone.odb")) + QStringLiteral(" is not there any more."));
    QCOMPARE(taken, QString());
}

void DesktopFilesTest::theFolderOfAFileIsHandedOver() {
    QCOMPARE(showInFolder(path("Memo.odb")), QString());
    QCOMPARE(taken, folder->path());
}

void DesktopFilesTest::theFolderIsShownWhenOnlyTheFileIsGone() {
    QCOMPARE(showInFolder(path("Gone.odb")), QString());
    QCOMPARE(taken, folder->path());
}

void DesktopFilesTest::aFolderThatIsGoneIsTold() {
    QCOMPARE(showInFolder(path("gone/Memo.odb")),
             folder->filePath(QStringLiteral("gone")) + QStringLiteral(" is not there any more."));
    QCOMPARE(taken, QString());
}

// The offscreen platform has no programs that open files.
void DesktopFilesTest::whatNoProgramOpensIsTold() {
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(openOnDesktop(path("Memo.odb")),
             QStringLiteral("No program opens %1.").arg(folder->filePath(QStringLiteral("Memo.odb"))));
}

void DesktopFilesTest::aPageIsHandedOverWithItsHeading() {
    QCOMPARE(openPage(path("Memo.odb"), "the-window"), QString());
    QCOMPARE(taken, folder->filePath(QStringLiteral("Memo.odb")));
    QCOMPARE(takenAnchor, QStringLiteral("the-window"));
}

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::DesktopFilesTest)
#include "desktop_files_test.moc"
