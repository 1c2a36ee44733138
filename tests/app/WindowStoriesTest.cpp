#include "tests/app/ProgramOnScreen.h"

#include "platform/widgets/ImageView.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

// What a person does and sees in the window of a collection.
class WindowStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksIntoTheSampleLibrary();
    void walksThroughTheBooks();
    void sortsByClickingHeadings();
    void looksIntoAGroup();
    void walksThroughTheGroups();
    void renamesAGroup_data();
    void renamesAGroup();
    void changesTheMindWhileRenamingAGroup();
    void clicksAnotherGroupWhileRenamingOne();
    void savesWhileRenamingAGroup();
    void isAskedWhenItClosesWhileRenamingAGroup();
};

void WindowStoriesTest::looksIntoTheSampleLibrary()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    const qsizetype count = window.document().getBookListSize();
    QVERIFY(count > 100);
    QCOMPARE(window.status(), u"%1 of %1 displayed"_s.arg(count));
    QCOMPARE(window.books().model()->rowCount(), static_cast<int>(count));
    QCOMPARE(window.window().windowTitle(), u"Classics[*]"_s);
    QVERIFY(!window.window().isWindowModified());
    // The library and its groups by name.
    const QStringList names = window.groupNames();
    QCOMPARE(names.size(), window.document().getGroups().size() + 1);
    QCOMPARE(names.first(), u"Library"_s);
    QCOMPARE(window.selectedGroup(), u"Library"_s);
    // The first book is selected, and its picture fills the preview's middle.
    QVERIFY(window.books().selectionModel()->isRowSelected(0, {}));
    const BookEntry& first = *window.controller().getDisplayedBooks().front();
    QCOMPARE(window.cells(0, 1).first(), first.getTitle());
    const auto& preview = window.find<ImageView>(u"m_idImageView"_s);
    QCOMPARE(preview.image(), first.getFirstImage());
    QVERIFY(!preview.image().isNull());
    const QImage shot = window.find<ImageView>(u"m_idImageView"_s).grab().toImage();
    QVERIFY(shot.pixelColor(shot.rect().center()) != shot.pixelColor(1, 1));
}

void WindowStoriesTest::walksThroughTheBooks()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    const auto& preview = window.find<ImageView>(u"m_idImageView"_s);
    window.books().setFocus();
    QTest::keyClick(&window.books(), Qt::Key_Down);
    const std::vector<BookEntry*>& books = window.controller().getDisplayedBooks();
    QCOMPARE(preview.image(), books.at(1)->getFirstImage());
    QTest::keyClick(&window.books(), Qt::Key_PageDown);
    QTest::keyClick(&window.books(), Qt::Key_PageDown);
    const QModelIndex current = window.books().currentIndex();
    QVERIFY(current.row() > 2);
    QCOMPARE(preview.image(), books.at(static_cast<std::size_t>(current.row()))->getFirstImage());
    QVERIFY(
        window.books().viewport()->rect().contains(window.books().visualRect(current).center()));
    QTest::keyClick(&window.books(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(window.books().selectionModel()->selectedRows().size(), 2);
    QVERIFY(!window.document().isDocumentEdited());
}

void WindowStoriesTest::sortsByClickingHeadings()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(window.settle());
    const auto indicator = [&window] {
        return std::pair(
            window.header().sortIndicatorSection(), window.header().sortIndicatorOrder());
    };
    QCOMPARE(window.cells(0, 4), QStringList({u"Emma"_s, u"Ivanhoe"_s, u"Kim"_s, u"Villette"_s}));
    QCOMPARE(indicator(), std::pair(window.columnOf(0), Qt::AscendingOrder));
    window.clickHeading(2);
    QCOMPARE(window.cells(0, 4), QStringList({u"Kim"_s, u"Villette"_s, u"Emma"_s, u"Ivanhoe"_s}));
    QCOMPARE(indicator(), std::pair(window.columnOf(2), Qt::AscendingOrder));
    QVERIFY(window.window().isWindowModified()); // the file keeps the order
    window.clickHeading(2);
    QCOMPARE(window.cells(0, 4), QStringList({u"Ivanhoe"_s, u"Emma"_s, u"Villette"_s, u"Kim"_s}));
    QCOMPARE(indicator(), std::pair(window.columnOf(2), Qt::DescendingOrder));
    window.clickHeading(0);
    QCOMPARE(window.cells(0, 4), QStringList({u"Emma"_s, u"Ivanhoe"_s, u"Kim"_s, u"Villette"_s}));
    QCOMPARE(indicator(), std::pair(window.columnOf(0), Qt::AscendingOrder));
}

void WindowStoriesTest::looksIntoAGroup()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QTest::keyClick(&window.books(), Qt::Key_PageDown);
    window.clickGroup(u"Fiction"_s);
    QCOMPARE(window.selectedGroup(), u"Fiction"_s);
    QCOMPARE(window.cells(0, 4), QStringList({u"Emma"_s, u"Kim"_s}));
    QCOMPARE(window.status(), u"2 of 4 displayed"_s);
    QVERIFY(window.books().selectionModel()->isRowSelected(0, {}));
    window.clickGroup(u"Non Fiction"_s);
    QCOMPARE(window.status(), u"0 of 4 displayed"_s);
    QVERIFY(window.find<QLabel>(u"m_idEmptyText"_s).isVisible());
    window.clickGroup(u"Library"_s);
    QCOMPARE(window.status(), u"4 of 4 displayed"_s);
    QVERIFY(!window.window().isWindowModified());
}

void WindowStoriesTest::walksThroughTheGroups()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.groups().setFocus();
    QTest::keyClick(&window.groups(), Qt::Key_Down);
    QCOMPARE(window.selectedGroup(), u"Fiction"_s);
    QCOMPARE(window.status(), u"2 of 4 displayed"_s);
    QTest::keyClick(&window.groups(), Qt::Key_Up);
    QCOMPARE(window.selectedGroup(), u"Library"_s);
    QVERIFY(!window.startRenaming()); // the library's name is its own
    // Tab leaves the table in one step.
    QTest::keyClick(&window.groups(), Qt::Key_Tab);
    QVERIFY(!window.groups().hasFocus());
}

void WindowStoriesTest::renamesAGroup_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Tab") << Qt::Key_Tab;
}

void WindowStoriesTest::renamesAGroup()
{
    QFETCH(const Qt::Key, key);
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.clickGroup(u"Fiction"_s);
    QLineEdit* const field = window.startRenaming();
    QVERIFY(field);
    QTest::keyClicks(field, u"Stories"_s);
    QTest::keyClick(field, key);
    QTRY_COMPARE(window.groupNames(), QStringList({u"Library"_s, u"Non Fiction"_s, u"Stories"_s}));
    QCOMPARE(window.selectedGroup(), u"Stories"_s);
    QCOMPARE(window.status(), u"2 of 4 displayed"_s);
    QVERIFY(!window.nameField());
    QVERIFY(window.document().isDocumentEdited());
    QVERIFY(window.window().isWindowModified());
    QVERIFY(window.groups().hasFocus());
}

void WindowStoriesTest::changesTheMindWhileRenamingAGroup()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.clickGroup(u"Fiction"_s);
    QLineEdit* const field = window.startRenaming();
    QVERIFY(field);
    QTest::keyClicks(field, u"Stories"_s);
    QTest::keyClick(field, Qt::Key_Escape);
    QTRY_VERIFY(!window.nameField());
    QCOMPARE(window.selectedGroup(), u"Fiction"_s);
    QVERIFY(!window.window().isWindowModified());
}

void WindowStoriesTest::clicksAnotherGroupWhileRenamingOne()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.clickGroup(u"Fiction"_s);
    QLineEdit* const field = window.startRenaming();
    QVERIFY(field);
    QTest::keyClicks(field, u"Stories"_s);
    window.clickGroup(u"Non Fiction"_s);
    QTRY_COMPARE(window.groupNames(), QStringList({u"Library"_s, u"Non Fiction"_s, u"Stories"_s}));
    QCOMPARE(window.selectedGroup(), u"Non Fiction"_s);
    QCOMPARE(window.status(), u"0 of 4 displayed"_s);
    QVERIFY(window.window().isWindowModified());
}

void WindowStoriesTest::savesWhileRenamingAGroup()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    const CollectionWindow window = program.open(path);
    window.clickGroup(u"Fiction"_s);
    QLineEdit* const field = window.startRenaming();
    QVERIFY(field);
    QTest::keyClicks(field, u"Stories"_s);
    QTest::keyClick(field, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(window.groupNames(), QStringList({u"Library"_s, u"Non Fiction"_s, u"Stories"_s}));
    QVERIFY(!window.window().isWindowModified());
    BookListDocument saved;
    QVERIFY(!saved.readFromFile(path));
    QCOMPARE(saved.getGroups().find(u"1"_s)->getGroupName(), u"Stories"_s);
}

void WindowStoriesTest::isAskedWhenItClosesWhileRenamingAGroup()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.clickGroup(u"Fiction"_s);
    QLineEdit* const field = window.startRenaming();
    QVERIFY(field);
    QTest::keyClicks(field, u"Stories"_s);
    window.window().close();
    QCOMPARE(ProgramOnScreen::alertText(), u"Do you want to save the changes to 'small'?"_s);
    QVERIFY(ProgramOnScreen::answer(2));
    QCOMPARE(window.selectedGroup(), u"Stories"_s);
}

QTEST_MAIN(WindowStoriesTest)
#include "WindowStoriesTest.moc"
