#include "platform/DesktopRecents.h"

#include "tests/app/ProgramOnScreen.h"

#include <QFileInfo>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QString list()
{
    return QString::fromUtf8(samples::readFile(DesktopRecents::defaultListPath()));
}

bool listHas(const QString& path)
{
    return list().contains("href=\"file://"_L1 + path + u'"');
}

} // namespace

// What the desktop's list of recent files learns of the collections that a person works on.
class DesktopRecentsStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsOfACollectionThatIsOpened();
    void tellsOfACollectionThatIsSavedUnderAName();
    void forgetsWithTheMenu();
    void tellsNothingUnlessItIsAsked();
    void saysNothingWhenTheListCannotBeKept();
};

void DesktopRecentsStoriesTest::init()
{
    QVERIFY(DesktopRecents::defaultListPath().startsWith(qEnvironmentVariable("HOME")));
    QFile::remove(DesktopRecents::defaultListPath());
}

void DesktopRecentsStoriesTest::tellsOfACollectionThatIsOpened()
{
    ProgramOnScreen program;
    program.application.keepDesktopRecents();
    const QString path = program.classics();
    const QString alert = ProgramOnScreen::textOfModal([&] {
        program.application.start({path, program.path(u"missing.books"_s)});
    });
    QVERIFY(alert.contains("missing.books"_L1));
    QTRY_VERIFY(listHas(path));
    QVERIFY(list().contains("type=\"application/x-tomely-collection\""_L1));
    QVERIFY(list().contains("name=\"Tomely\""_L1));
    QVERIFY(!list().contains("missing.books"_L1));
}

void DesktopRecentsStoriesTest::tellsOfACollectionThatIsSavedUnderAName()
{
    QString path;
    {
        ProgramOnScreen program;
        program.application.keepDesktopRecents();
        path = program.path(u"new.books"_s);
        program.application.start({});
        program.onlyWindow().choose(u"save"_s);
        program.panels.savePanels.first().picked(path);
        QVERIFY(QFileInfo::exists(path));
    } // and the program ends at once
    QVERIFY(listHas(path));
}

void DesktopRecentsStoriesTest::forgetsWithTheMenu()
{
    ProgramOnScreen program;
    program.application.keepDesktopRecents();
    const QString path = program.smallCollection(u"small.books"_s);
    program.application.start({path});
    QTRY_VERIFY(listHas(path));
    program.application.documents().clearRecentDocuments();
    QTRY_VERIFY(!listHas(path));
}

void DesktopRecentsStoriesTest::tellsNothingUnlessItIsAsked()
{
    {
        ProgramOnScreen program;
        program.application.start({program.classics()});
    }
    QVERIFY(!QFileInfo::exists(DesktopRecents::defaultListPath()));
}

void DesktopRecentsStoriesTest::saysNothingWhenTheListCannotBeKept()
{
    QVERIFY(QDir().mkpath(DesktopRecents::defaultListPath())); // a folder of that name
    {
        ProgramOnScreen program;
        program.application.keepDesktopRecents();
        const QString path = program.classics();
        program.application.start({path});
        QCOMPARE(program.openCount(), 1U);
        program.application.documents().clearRecentDocuments();
    }
    QVERIFY(QDir().rmdir(DesktopRecents::defaultListPath()));
}

QTEST_MAIN(DesktopRecentsStoriesTest)
#include "DesktopRecentsStoriesTest.moc"
