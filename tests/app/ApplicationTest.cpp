#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "platform/widgets/SingleInstance.h"
#include "platform/widgets/WaitPanel.h"
#include "tests/app/ProgramOnScreen.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QThread>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// Counts how often a window is shown.
class ShowSpy : public QObject {
public:
    explicit ShowSpy(QWidget& window) { window.installEventFilter(this); }

    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            ++m_count;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_count = 0;
};

bool startWindowIsShown(ProgramOnScreen& program)
{
    return program.application.startWindow().isVisible();
}

/// Runs the program's event loop, in which `act` happens, and gives whether it ended by itself.
template <class Act>
bool endsAfter(Act act)
{
    constexpr int tooLong = 30'000;
    QTimer::singleShot(0, qApp, act);
    QTimer stop;
    bool stopped = false;
    QObject::connect(&stop, &QTimer::timeout, qApp, [&stopped] {
        stopped = true;
        QApplication::exit(1);
    });
    stop.start(tooLong);
    return QApplication::exec() == 0 && !stopped;
}

} // namespace

class ApplicationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensAnUntitledCollectionAtTheFirstStart();
    void opensTheDefaultCollection();
    void opensGivenFilesAndNotTheDefaultCollection();
    void showsTheStartWindowWhenNoFileCanBeOpened();
    void givesEachWindowItsMenus();
    void showsTheStartWindowAfterTheLastCollection();
    void hidesTheStartWindowWhenACollectionOpens();
    void staysWhenTheLastCollectionCloses();
    void endsWhenTheStartWindowIsClosed();
    void endsByQuitWithoutTheStartWindow();
    void bringsTheStartWindowBackAfterAQuitThatWasCancelled();
    void comesForwardForAnotherStartWithoutFiles();
    void waitsWithTheStartWindowWhileTheFirstFileOpens();
    void opensTheFilesOfAnotherStart();
    void takesFilesOverASocket();
};

void ApplicationTest::opensAnUntitledCollectionAtTheFirstStart()
{
    ProgramOnScreen program;
    program.application.start({});
    const CollectionWindow window = program.onlyWindow();
    QCOMPARE(window.document().displayName(), u"Untitled"_s);
    QVERIFY(window.window().isVisible());
    QVERIFY(!window.document().isDocumentEdited());
    QCOMPARE(window.status(), u"0 of 0 displayed"_s);
    QVERIFY(!startWindowIsShown(program));
    QVERIFY(program.defaults.boolForKey(PreferenceKeys::EnableAlternateSources));
}

void ApplicationTest::opensTheDefaultCollection()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"Default.books"_s);
    program.defaults.setData(PreferenceKeys::BookmarkData, makeBookmark(path));
    program.application.start({});
    QCOMPARE(program.onlyWindow().document().filePath(), path);
    QCOMPARE(program.onlyWindow().status(), u"4 of 4 displayed"_s);
}

void ApplicationTest::opensGivenFilesAndNotTheDefaultCollection()
{
    ProgramOnScreen program;
    const QString standard = program.smallCollection(u"Default.books"_s);
    program.defaults.setData(PreferenceKeys::BookmarkData, makeBookmark(standard));
    const QString first = program.smallCollection(u"first.books"_s);
    const QString second = program.smallCollection(u"second.books"_s);
    program.application.start({first, QDir::current().relativeFilePath(second), first});
    QCOMPARE(program.openCount(), std::size_t(2));
    QVERIFY(program.application.documents().documentForFile(first));
    QVERIFY(program.application.documents().documentForFile(second));
    QVERIFY(!startWindowIsShown(program));
    QCOMPARE(program.defaults.integerForKey(PreferenceKeys::PreferencesVersion), 3);
}

void ApplicationTest::showsTheStartWindowWhenNoFileCanBeOpened()
{
    ProgramOnScreen program;
    const QString gone = program.path(u"gone.books"_s);
    const QString text = ProgramOnScreen::textOfModal([&] { program.application.start({gone}); });
    QVERIFY(text.contains(gone));
    QCOMPARE(program.openCount(), std::size_t(0));
    QVERIFY(startWindowIsShown(program));
}

void ApplicationTest::givesEachWindowItsMenus()
{
    ProgramOnScreen program;
    program.application.start({});
    const CollectionWindow window = program.onlyWindow();
    QVERIFY(window.window().findChild<QMenu*>(u"fileMenu"_s));
    QVERIFY(window.window().findChild<QMenu*>(u"helpMenu"_s));
    window.choose(u"newCollection"_s);
    QCOMPARE(program.openCount(), std::size_t(2));
    const CollectionWindow second(*program.application.documents().documents().back());
    QCOMPARE(second.window().windowTitle(), u"Untitled 2[*]"_s);
    QVERIFY(second.window().findChild<QMenu*>(u"fileMenu"_s));
}

void ApplicationTest::showsTheStartWindowAfterTheLastCollection()
{
    ProgramOnScreen program;
    program.application.start(
        {program.smallCollection(u"first.books"_s), program.smallCollection(u"second.books"_s)});
    CollectionWindow(*program.application.documents().documents().back()).choose(u"closeWindow"_s);
    QVERIFY(!startWindowIsShown(program));
    program.onlyWindow().choose(u"closeWindow"_s);
    QVERIFY(startWindowIsShown(program));
    QCOMPARE(program.openCount(), std::size_t(0));
}

void ApplicationTest::hidesTheStartWindowWhenACollectionOpens()
{
    ProgramOnScreen program;
    program.application.startWindow().present();
    QSignalSpy closed(&program.application.startWindow(), &StartWindow::closedByUser);
    program.application.documents().openDocument(program.smallCollection(u"first.books"_s));
    QVERIFY(!startWindowIsShown(program));
    QVERIFY(closed.isEmpty());
    // Reverting is closing and opening; the start window has no part in it.
    ShowSpy shown(program.application.startWindow());
    program.onlyWindow().choose(u"revert"_s);
    QCOMPARE(shown.count(), 0);
    QCOMPARE(program.openCount(), std::size_t(1));
}

void ApplicationTest::staysWhenTheLastCollectionCloses()
{
    ProgramOnScreen program;
    program.application.start({});
    bool stayed = false;
    QVERIFY(endsAfter([&] {
        program.onlyWindow().window().close();
        QTimer::singleShot(0, qApp, [&] {
            stayed = startWindowIsShown(program);
            program.application.startWindow().close();
        });
    }));
    QVERIFY(stayed);
}

void ApplicationTest::endsWhenTheStartWindowIsClosed()
{
    ProgramOnScreen program;
    program.application.startWindow().present();
    QVERIFY(endsAfter([&] { program.application.startWindow().close(); }));
}

void ApplicationTest::endsByQuitWithoutTheStartWindow()
{
    ProgramOnScreen program;
    program.application.start(
        {program.smallCollection(u"first.books"_s), program.smallCollection(u"second.books"_s)});
    ShowSpy shown(program.application.startWindow());
    QVERIFY(endsAfter([&] {
        CollectionWindow(*program.application.documents().documents().front()).choose(u"quit"_s);
    }));
    QCOMPARE(program.openCount(), std::size_t(0));
    QCOMPARE(shown.count(), 0);
}

void ApplicationTest::bringsTheStartWindowBackAfterAQuitThatWasCancelled()
{
    ProgramOnScreen program;
    program.application.start({program.smallCollection(u"first.books"_s)});
    const CollectionWindow window = program.onlyWindow();
    window.document().changeDone();
    window.choose(u"quit"_s);
    QVERIFY(ProgramOnScreen::answer(2));
    QCOMPARE(program.openCount(), std::size_t(1));
    window.choose(u"closeWindow"_s);
    QVERIFY(ProgramOnScreen::answer(1));
    QVERIFY(startWindowIsShown(program));
}

void ApplicationTest::comesForwardForAnotherStartWithoutFiles()
{
    ProgramOnScreen program;
    program.application.openForOtherStart({});
    QVERIFY(startWindowIsShown(program));
    QCOMPARE(program.openCount(), std::size_t(0));
    program.application.documents().openDocument(program.smallCollection(u"first.books"_s));
    const CollectionWindow window = program.onlyWindow();
    window.window().setWindowState(Qt::WindowMinimized);
    program.application.openForOtherStart({});
    QVERIFY(!window.window().isMinimized());
    QVERIFY(!startWindowIsShown(program));
    QCOMPARE(program.openCount(), std::size_t(1));
}

void ApplicationTest::waitsWithTheStartWindowWhileTheFirstFileOpens()
{
    ProgramOnScreen program;
    {
        const WaitPanel wait(nullptr, u"Opening"_s, WaitPanel::Cancel::Possible);
        program.application.openForOtherStart({});
        QVERIFY(!startWindowIsShown(program));
    }
    program.application.openForOtherStart({});
    QVERIFY(startWindowIsShown(program));
}

void ApplicationTest::opensTheFilesOfAnotherStart()
{
    ProgramOnScreen program;
    const QString first = program.smallCollection(u"first.books"_s);
    program.application.start({first});
    program.application.openForOtherStart({program.smallCollection(u"second.books"_s), first});
    QCOMPARE(program.openCount(), std::size_t(2));
    const QString gone = program.path(u"gone.books"_s);
    QVERIFY(ProgramOnScreen::textOfModal([&] {
        program.application.openForOtherStart({gone});
    }).contains(gone));
    QCOMPARE(program.openCount(), std::size_t(2));
}

void ApplicationTest::takesFilesOverASocket()
{
    ProgramOnScreen program;
    program.application.start({});
    const QString socket = program.path(u"socket"_s);
    SingleInstance instance(socket);
    connect(&instance, &SingleInstance::filesRequested, &program.application,
        &Application::openForOtherStart);
    QCOMPARE(instance.start({}), SingleInstance::Outcome::First);
    const QString file = program.smallCollection(u"first.books"_s);
    SingleInstance::Outcome outcome = SingleInstance::Outcome::Alone;
    const std::unique_ptr<QThread> other(QThread::create([&] {
        SingleInstance start(socket);
        outcome = start.start({file});
    }));
    other->start();
    QTRY_VERIFY(program.application.documents().documentForFile(file));
    QTRY_VERIFY(other->isFinished());
    QCOMPARE(outcome, SingleInstance::Outcome::HandedOver);
}

QTEST_MAIN(ApplicationTest)
#include "ApplicationTest.moc"
