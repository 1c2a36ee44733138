#include "app/Help.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QMessageBox>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The desktop's program for pages: notes what it is asked to show.
class PageReader : public QObject {
    Q_OBJECT

public:
    PageReader() { QDesktopServices::setUrlHandler(u"file"_s, this, "show"); }

    ~PageReader() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QList<QUrl> shown;

public Q_SLOTS:

    void show(const QUrl& url) { shown.append(url); }
};

} // namespace

class HelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheGuideOfTheBuild();
    void opensTheGuideAtF1();
    void tellsVersionsAndNothingOfThePerson();
    void putsVersionsOnTheClipboard();
    void saysWhatTheProgramIs();
};

void HelpTest::findsTheGuideOfTheBuild()
{
    const QString path = guidePath();
    QVERIFY2(path.endsWith("/docs/guide/index.html"_L1), qPrintable(path));
    QFile page(path);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    QVERIFY(text.contains("<title>Tomely: the guide</title>"));
    // Each page that it names is there.
    const QRegularExpression link(u"href=\"([a-z-]+\\.html)\""_s);
    auto links = link.globalMatch(QString::fromUtf8(text));
    QVERIFY(links.hasNext());
    while (links.hasNext()) {
        const QString name = links.next().captured(1);
        QVERIFY2(QFileInfo(QFileInfo(path).dir(), name).isFile(), qPrintable(name));
    }
}

void HelpTest::opensTheGuideAtF1()
{
    PageReader reader;
    QWidget window;
    addHelpKey(window);
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QTest::keyClick(&window, Qt::Key_F1);
    QCOMPARE(reader.shown, QList<QUrl>{QUrl::fromLocalFile(guidePath())});
}

void HelpTest::tellsVersionsAndNothingOfThePerson()
{
    const QString text = versionsText();
    QVERIFY(text.contains("Qt: %1"_L1.arg(QLatin1StringView(qVersion()))));
    QVERIFY(text.contains("System: "_L1 + QSysInfo::prettyProductName()));
    QVERIFY(!text.contains(QDir::homePath()));
    QVERIFY(!text.contains(QSysInfo::machineHostName()));
}

void HelpTest::putsVersionsOnTheClipboard()
{
    QWidget window;
    window.show();
    reportProblem(&window);
    QCOMPARE(QApplication::clipboard()->text(), versionsText());
    const auto* const box = window.findChild<QMessageBox*>(u"reportBox"_s);
    QVERIFY(box);
    QVERIFY(box->isVisible());
    QCOMPARE(box->detailedText(), versionsText());
}

void HelpTest::saysWhatTheProgramIs()
{
    QApplication::setApplicationVersion(u"1.2.3"_s);
    QWidget window;
    window.show();
    showAbout(&window);
    const auto* const box = window.findChild<QMessageBox*>(u"aboutBox"_s);
    QVERIFY(box);
    QCOMPARE(box->text(), u"<b>Tomely 1.2.3</b>"_s);
    QVERIFY(box->informativeText().contains("MIT"_L1));
    QVERIFY(box->informativeText().contains(QLatin1StringView(qVersion())));
}

QTEST_MAIN(HelpTest)
#include "HelpTest.moc"
