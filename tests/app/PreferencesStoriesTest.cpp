#include "tests/app/ProgramOnScreen.h"

#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "tests/support/RealMouse.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTableView>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::typeKey;

namespace {

template <class Widget>
Widget& find(ProgramOnScreen& program, const QString& name)
{
    return *program.application.preferences().findChild<Widget*>(name);
}

/// Clicks with the display's own mouse, where a check box has its box, until that has come about.
bool click(QWidget& control, const std::function<bool()>& done)
{
    samples::InputStory story;
    story.repeat(
        "pointing",
        [&] {
            samples::moveMouse(samples::onScreen(control, {9, control.height() / 2}));
        },
        [&] { return control.underMouse(); });
    story.once(
        "pressing", [] { samples::pressMouse(); }, [] { return true; });
    story.once(
        "releasing", [] { samples::releaseMouse(); }, done);
    return story.run().isEmpty();
}

bool tick(QCheckBox& box)
{
    return click(box, [&box] { return box.isChecked(); });
}

/// Presses the keys of the preferences in a window and waits for them.
bool showPreferences(ProgramOnScreen& program)
{
    PreferencesController& preferences = program.application.preferences();
    return typeKey(u"ctrl+comma"_s)
        && QTest::qWaitFor([&preferences] { return preferences.isVisible(); })
        && QTest::qWaitForWindowActive(&preferences);
}

/// The next start of the program, with the preferences that the earlier one left.
void startAfter(const ProgramOnScreen& earlier, ProgramOnScreen& next)
{
    QFile::remove(next.defaults.filePath());
    QFile::copy(earlier.defaults.filePath(), next.defaults.filePath());
    next.defaults.synchronize();
    next.application.start({});
}

/// Runs the event loop with `act` in it; false when that ended the program.
template <class Act>
bool goesOnAfter(Act act)
{
    constexpr int still = 7;
    QTimer::singleShot(0, qApp, [act] {
        act();
        QTimer::singleShot(100, qApp, [] { QApplication::exit(still); });
    });
    return QApplication::exec() == still;
}

} // namespace

// What a person sets in the preferences, and what comes of it: the whole program with the display's
// own keys and mouse.
class PreferencesStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setsUpNewBooks();
    void dropsWhatIsNotConfirmed();
    void opensTheChosenCollectionAtTheNextStart();
    void comesFromTheStartWindow();
    void isNoReasonToStayOrToEnd();
    void letsTheProgramEnd();
};

void PreferencesStoriesTest::setsUpNewBooks()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(showPreferences(program));
    PreferencesController& preferences = program.application.preferences();
    QVERIFY(tick(find<QCheckBox>(program, u"m_SetReadFlag"_s)));
    QVERIFY(tick(find<QCheckBox>(program, u"m_SetPurchasedToCurrentDate"_s)));
    auto& quality = find<QSlider>(program, u"m_imageQuality"_s);
    quality.setFocus();
    QVERIFY(typeKey(u"End"_s));
    QTRY_COMPARE(quality.value(), 10);
    QVERIFY(typeKey(u"alt+i"_s)); // Start in the ISBN field
    QTRY_VERIFY(find<QCheckBox>(program, u"m_SetFocusToISBNField"_s).isChecked());
    QVERIFY(typeKey(u"Return"_s));
    QTRY_VERIFY(!preferences.isVisible());
    QCOMPARE(
        UserDefaults(program.defaults.filePath()).integerForKey(PreferenceKeys::ImageQuality), 10);

    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    const EditorWindow editor = program.addBook(window);
    QVERIFY(editor.find<QCheckBox>(u"m_idRead"_s).isChecked());
    QVERIFY(!editor.find<QLineEdit>(u"m_idYearPurchased"_s).text().isEmpty());
    QVERIFY(editor.find<QLineEdit>(u"m_idYearFirstRead"_s).text().isEmpty());
    QCOMPARE(editor.window().focusWidget()->objectName(), u"m_idISBN"_s);

    // An editor that is open stays as it is; the next one is as set by then.
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    QVERIFY(showPreferences(program));
    QVERIFY(tick(find<QCheckBox>(program, u"m_idOpenCustomTabCheckBox"_s)));
    auto& apply = find<QPushButton>(program, u"m_idApplyButton"_s);
    QVERIFY(click(
        apply, [&program] { return program.defaults.boolForKey(PreferenceKeys::OpenCustomTab); }));
    QVERIFY(preferences.isVisible());
    QVERIFY(typeKey(u"ctrl+w"_s));
    QTRY_VERIFY(!preferences.isVisible());
    QCOMPARE(editor.find<QTabWidget>(u"m_idTab"_s).currentIndex(), 0);
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    const EditorWindow next = program.edit(window, window.cells(0, 1).first());
    QCOMPARE(next.find<QTabWidget>(u"m_idTab"_s).currentIndex(), 1);
}

void PreferencesStoriesTest::dropsWhatIsNotConfirmed()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    program.defaults.synchronize();
    const QByteArray before = samples::readFile(program.defaults.filePath());
    QVERIFY(showPreferences(program));
    QVERIFY(tick(find<QCheckBox>(program, u"m_SetReadFlag"_s)));
    QVERIFY(tick(find<QCheckBox>(program, u"m_idFileSelectedCheckBox"_s)));
    QVERIFY(typeKey(u"alt+c"_s)); // Choose…
    QTRY_COMPARE(program.panels.openPanels.size(), 1);
    program.panels.openPanels.first().picked({program.path(u"small.books"_s)});
    // It keeps its state when it is asked for once more.
    window.choose(u"preferences"_s);
    QVERIFY(find<QCheckBox>(program, u"m_SetReadFlag"_s).isChecked());
    QCOMPARE(find<QPlainTextEdit>(program, u"m_idFileName"_s).toPlainText(),
        program.path(u"small.books"_s));
    QTRY_COMPARE(QApplication::activeWindow(), &program.application.preferences());
    QVERIFY(typeKey(u"Escape"_s));
    QTRY_VERIFY(!program.application.preferences().isVisible());
    QCOMPARE(samples::readFile(program.defaults.filePath()), before);
    QVERIFY(!program.defaults.contains(PreferenceKeys::DefaultFile));
}

void PreferencesStoriesTest::opensTheChosenCollectionAtTheNextStart()
{
    ProgramOnScreen first;
    first.application.start({});
    const QString path = first.smallCollection(u"small.books"_s);
    QVERIFY(QTest::qWaitForWindowActive(&first.onlyWindow().window()));
    QVERIFY(showPreferences(first));
    QVERIFY(tick(find<QCheckBox>(first, u"m_idFileSelectedCheckBox"_s)));
    QVERIFY(typeKey(u"alt+c"_s));
    QTRY_COMPARE(first.panels.openPanels.size(), 1);
    first.panels.openPanels.first().picked({path});
    QVERIFY(typeKey(u"Return"_s));
    QTRY_VERIFY(!first.application.preferences().isVisible());

    ProgramOnScreen second;
    startAfter(first, second);
    QCOMPARE(second.onlyWindow().document().filePath(), path);
    QVERIFY(QTest::qWaitForWindowActive(&second.onlyWindow().window()));
    QVERIFY(showPreferences(second));
    auto& box = find<QCheckBox>(second, u"m_idFileSelectedCheckBox"_s);
    QVERIFY(box.isChecked());
    QVERIFY(click(box, [&box] { return !box.isChecked(); }));
    QVERIFY(typeKey(u"Return"_s));
    QTRY_VERIFY(!second.application.preferences().isVisible());
    const UserDefaults left(second.defaults.filePath());
    QVERIFY(!left.contains(PreferenceKeys::BookmarkData));
    QVERIFY(left.contains(PreferenceKeys::DefaultFile));
    QCOMPARE(left.stringForKey(PreferenceKeys::DefaultFile), QString());

    ProgramOnScreen third;
    startAfter(second, third);
    QCOMPARE(third.onlyWindow().document().displayName(), u"Untitled"_s);
}

void PreferencesStoriesTest::comesFromTheStartWindow()
{
    ProgramOnScreen program;
    StartWindow& start = program.application.startWindow();
    PreferencesController& preferences = program.application.preferences();
    start.present();
    QVERIFY(QTest::qWaitForWindowActive(&start));
    QVERIFY(click(*start.findChild<QPushButton*>(u"preferences"_s),
        [&preferences] { return preferences.isVisible(); }));
    QVERIFY(QTest::qWaitForWindowActive(&preferences));
    QVERIFY(typeKey(u"Escape"_s));
    QTRY_VERIFY(!preferences.isVisible());
    QVERIFY(start.isVisible());
    start.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&start));
    QVERIFY(showPreferences(program));
}

void PreferencesStoriesTest::isNoReasonToStayOrToEnd()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(showPreferences(program));
    PreferencesController& preferences = program.application.preferences();
    window.choose(u"closeWindow"_s);
    QTRY_VERIFY(program.application.startWindow().isVisible());
    QVERIFY(preferences.isVisible());
    program.application.startWindow().hide();
    QVERIFY(goesOnAfter([&preferences] { preferences.close(); }));
    QVERIFY(!preferences.isVisible());
}

void PreferencesStoriesTest::letsTheProgramEnd()
{
    ProgramOnScreen program;
    program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(showPreferences(program));
    QVERIFY(tick(find<QCheckBox>(program, u"m_SetReadFlag"_s)));
    QTimer stop;
    connect(&stop, &QTimer::timeout, qApp, [] { QApplication::exit(1); });
    stop.start(30'000);
    QTimer::singleShot(0, qApp, [] { typeKey(u"ctrl+q"_s); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(program.openCount(), std::size_t(0));
    QVERIFY(!program.defaults.boolForKey(PreferenceKeys::SetReadFlag));
}

QTEST_MAIN(PreferencesStoriesTest)
#include "PreferencesStoriesTest.moc"
