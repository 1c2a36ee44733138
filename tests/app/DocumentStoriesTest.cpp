#include "tests/app/ProgramOnScreen.h"

#include "document/CollectionFile.h"
#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "tests/support/SmallCollection.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;
using samples::writeFile;

namespace {

enum Answer { Save = 0, DontSave = 1, Cancel = 2 };

/// Renames the group "Fiction" as a person does.
void rename(const CollectionWindow& window, const QString& name)
{
    window.clickGroup(u"Fiction"_s);
    QLineEdit* const field = window.startRenaming();
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(QTest::qWaitFor([&] { return window.selectedGroup() == name; }));
}

/// The name that the group "Fiction" has in a file.
QString savedName(const QString& path)
{
    BookListDocument document;
    return document.readFromFile(path) ? u"cannot be read"_s
                                       : document.getGroups().find(u"1"_s)->getGroupName();
}

} // namespace

// What becomes of collections and their files.
class DocumentStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void closesAnEditedCollection_data();
    void closesAnEditedCollection();
    void quitsWithTwoEditedCollections();
    void goesBackToTheSavedVersion();
    void takesOverWhatAnotherProgramWrote();
    void keepsACollectionWhoseFileIsDamaged();
    void opensNoDamagedFile_data();
    void opensNoDamagedFile();
    void opensNoFileOfANewerVersion();
    void opensAFileOnceHoweverItIsNamed();
    void savesANewCollection_data();
    void savesANewCollection();
    void saysWhyItCannotSave();
    void staysWithAStartWindow();
};

void DocumentStoriesTest::closesAnEditedCollection_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<QString>("name");
    QTest::newRow("Save") << int(Save) << false << u"Stories"_s;
    QTest::newRow("Don't Save") << int(DontSave) << false << u"Fiction"_s;
    QTest::newRow("Cancel") << int(Cancel) << true << u"Fiction"_s;
}

void DocumentStoriesTest::closesAnEditedCollection()
{
    QFETCH(const int, button);
    QFETCH(const bool, isOpen);
    QFETCH(const QString, name);
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    {
        const CollectionWindow window = program.open(path);
        rename(window, u"Stories"_s);
        window.window().close();
        QCOMPARE(ProgramOnScreen::alertText(), u"Do you want to save the changes to 'small'?"_s);
        QCOMPARE(ProgramOnScreen::alert()->parentWidget(), &window.window());
        QVERIFY(ProgramOnScreen::answer(button));
    }
    QCOMPARE(program.openCount() == 1, isOpen);
    QCOMPARE(savedName(path), name);
    QTRY_COMPARE(program.application.startWindow().isVisible(), !isOpen);
    if (isOpen) {
        QVERIFY(program.onlyWindow().window().isWindowModified());
        QCOMPARE(program.onlyWindow().selectedGroup(), u"Stories"_s);
    }
}

void DocumentStoriesTest::quitsWithTwoEditedCollections()
{
    ProgramOnScreen program;
    const QString first = program.smallCollection(u"first.books"_s);
    const QString second = program.smallCollection(u"second.books"_s);
    const CollectionWindow firstWindow = program.open(first);
    rename(firstWindow, u"Stories"_s);
    rename(program.open(second), u"Stories"_s);
    firstWindow.choose(u"quit"_s);
    QCOMPARE(ProgramOnScreen::alertText(), u"Do you want to save the changes to 'second'?"_s);
    QVERIFY(ProgramOnScreen::answer(Save));
    QTRY_COMPARE(ProgramOnScreen::alertText(), u"Do you want to save the changes to 'first'?"_s);
    QVERIFY(ProgramOnScreen::answer(Cancel));
    QCOMPARE(program.openCount(), std::size_t(1));
    QVERIFY(firstWindow.window().isWindowModified());
    QCOMPARE(savedName(second), u"Stories"_s);
    QCOMPARE(savedName(first), u"Fiction"_s);
    firstWindow.choose(u"quit"_s);
    QVERIFY(ProgramOnScreen::answer(DontSave));
    QCOMPARE(program.openCount(), std::size_t(0));
    QCOMPARE(savedName(first), u"Fiction"_s);
}

void DocumentStoriesTest::goesBackToTheSavedVersion()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    {
        const CollectionWindow window = program.open(path);
        rename(window, u"Stories"_s);
        window.choose(u"revert"_s);
        QVERIFY(ProgramOnScreen::alertText().contains(u"'small'"_s));
        QVERIFY(ProgramOnScreen::answer(1));
        QCOMPARE(window.selectedGroup(), u"Stories"_s);
        window.choose(u"revert"_s);
        QVERIFY(ProgramOnScreen::answer(0));
    }
    const CollectionWindow window = program.onlyWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    QCOMPARE(window.groupNames(), QStringList({u"Library"_s, u"Fiction"_s, u"Non Fiction"_s}));
    QVERIFY(!window.window().isWindowModified());
    QVERIFY(!program.application.startWindow().isVisible());
}

void DocumentStoriesTest::takesOverWhatAnotherProgramWrote()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    program.open(path);
    BookListDocument other;
    QVERIFY(!other.readFromFile(path));
    samples::addBook(other, u"Persuasion"_s);
    QVERIFY(!other.writeToFile(path));
    program.onlyWindow().choose(u"revert"_s); // no question: nothing is lost
    QVERIFY(!ProgramOnScreen::alert());
    QCOMPARE(program.onlyWindow().status(), u"5 of 5 displayed"_s);
}

void DocumentStoriesTest::keepsACollectionWhoseFileIsDamaged()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    const CollectionWindow window = program.open(path);
    QVERIFY(writeFile(path, readFile(path).first(500)));
    const QString text = ProgramOnScreen::textOfModal([&] { window.choose(u"revert"_s); });
    QVERIFY(text.contains(path));
    QVERIFY(text.contains(u"damaged"_s));
    QCOMPARE(program.openCount(), std::size_t(1));
    QCOMPARE(window.status(), u"4 of 4 displayed"_s);
    window.choose(u"save"_s); // the collection is still whole
    QVERIFY(ProgramOnScreen::answer(0)); // and replaces what another program did to the file
    QCOMPARE(savedName(path), u"Fiction"_s);
}

void DocumentStoriesTest::opensNoDamagedFile_data()
{
    QTest::addColumn<qsizetype>("length"); // of what is left; 0: another kind of file
    QTest::addColumn<QString>("reason");
    QTest::newRow("cut off") << qsizetype{700} << u"damaged"_s;
    QTest::newRow("cut off at once") << qsizetype{20} << u"damaged"_s;
    QTest::newRow("something else") << qsizetype{0} << u"not a collection file"_s;
}

void DocumentStoriesTest::opensNoDamagedFile()
{
    QFETCH(const qsizetype, length);
    QFETCH(const QString, reason);
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    QVERIFY(writeFile(path, length > 0 ? readFile(path).first(length) : QByteArray("Dear Jane,")));
    program.application.startWindow().present();
    const QString text =
        ProgramOnScreen::textOfModal([&] { program.application.documents().openDocument(path); });
    QVERIFY2(text.contains(path) && text.contains(reason), qPrintable(text));
    QVERIFY(!ProgramOnScreen::alert());
    QCOMPARE(program.openCount(), std::size_t(0));
    QVERIFY(program.application.startWindow().isVisible());
}

void DocumentStoriesTest::opensNoFileOfANewerVersion()
{
    ProgramOnScreen program;
    const QString path = QStringLiteral(TOMELY_SOURCE_DIR "/tests/fixtures/version5.books");
    QVERIFY(QFile::exists(path));
    const QString text = ProgramOnScreen::textOfModal([&] { program.application.start({path}); });
    QCOMPARE(text, u"Tomely cannot open files from newer versions."_s);
    QCOMPARE(program.openCount(), std::size_t(0));
    QVERIFY(program.application.startWindow().isVisible());
}

void DocumentStoriesTest::opensAFileOnceHoweverItIsNamed()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    QVERIFY(QFile::link(path, program.path(u"link.books"_s)));
    const CollectionWindow window = program.open(path);
    const CollectionWindow other = program.open(program.smallCollection(u"other.books"_s));
    QVERIFY(other.window().isActiveWindow());
    for (const QString& name :
        {program.path(u"link.books"_s), QDir::current().relativeFilePath(path)}) {
        QCOMPARE(program.application.documents().openDocument(name), &window.document());
        QCOMPARE(program.openCount(), std::size_t(2));
    }
    QTRY_VERIFY(window.window().isActiveWindow());
}

void DocumentStoriesTest::savesANewCollection_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("Yes") << 0;
    QTest::newRow("No") << 1;
}

void DocumentStoriesTest::savesANewCollection()
{
    QFETCH(const int, button);
    ProgramOnScreen program;
    program.application.start({});
    const CollectionWindow window = program.onlyWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    rename(window, u"Stories"_s);
    window.choose(u"save"_s);
    QCOMPARE(program.panels.savePanels.size(), 1);
    const QString path = program.path(u"mine.books"_s);
    program.panels.savePanels.takeFirst().picked(path);
    QCOMPARE(savedName(path), u"Stories"_s);
    QCOMPARE(window.window().windowTitle(), u"mine[*]"_s);
    QVERIFY(!window.window().isWindowModified());
    QTRY_COMPARE(ProgramOnScreen::alertText(),
        u"Open this file when Tomely starts?\nYou may change this in Preferences at any time."_s
            .replace(u'\n', u"\n\n"_s));
    QVERIFY(ProgramOnScreen::answer(button));
    const UserDefaults stored(program.defaults.filePath());
    QCOMPARE(stored.stringForKey(PreferenceKeys::DefaultFile), button == 0 ? path : QString());
    QCOMPARE(resolveBookmark(stored.dataForKey(PreferenceKeys::BookmarkData)),
        button == 0 ? std::optional<QString>(path) : std::nullopt);
    window.choose(u"save"_s);
    QVERIFY(!ProgramOnScreen::alert()); // asked only once
    QVERIFY(program.panels.savePanels.isEmpty());
}

void DocumentStoriesTest::saysWhyItCannotSave()
{
    ProgramOnScreen program;
    QVERIFY(QDir(program.path({})).mkdir(u"folder"_s));
    const QString path = program.smallCollection(u"folder/small.books"_s);
    const CollectionWindow window = program.open(path);
    rename(window, u"Stories"_s);
    QVERIFY(QDir(program.path(u"folder"_s)).removeRecursively());
    const QString text = ProgramOnScreen::textOfModal([&] { window.choose(u"save"_s); });
    QVERIFY(text.contains(u"'small'"_s));
    QVERIFY2(text.contains(u"No such file or directory"_s), qPrintable(text));
    QVERIFY(window.window().isWindowModified());
    QCOMPARE(window.selectedGroup(), u"Stories"_s);
}

void DocumentStoriesTest::staysWithAStartWindow()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    program.open(path);
    program.onlyWindow().choose(u"closeWindow"_s);
    StartWindow& start = program.application.startWindow();
    QVERIFY(QTest::qWaitForWindowActive(&start));
    auto* const recent = start.findChild<QListWidget*>(u"recentCollections"_s);
    QCOMPARE(recent->count(), 1);
    QTest::keyClick(recent, Qt::Key_Return);
    QCOMPARE(program.onlyWindow().document().filePath(), path);
    QTRY_VERIFY(!start.isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&program.onlyWindow().window()));
    program.onlyWindow().choose(u"closeWindow"_s);
    QVERIFY(QTest::qWaitForWindowActive(&start));
    QTest::mouseClick(start.findChild<QPushButton*>(u"newCollection"_s), Qt::LeftButton);
    QCOMPARE(program.onlyWindow().document().displayName(), u"Untitled"_s);
    QVERIFY(!start.isVisible());
}

QTEST_MAIN(DocumentStoriesTest)
#include "DocumentStoriesTest.moc"
