#include "tests/app/ProgramOnScreen.h"

#include "document/widgets/GroupManagerController.h"
#include "listwindow/CommandToolbar.h"
#include "listwindow/CustomizeListController.h"
#include "listwindow/CustomizeToolbarDialog.h"
#include "listwindow/engine/BookFilter.h"
#include "listwindow/FilterBar.h"
#include "listwindow/GroupTableView.h"
#include "tests/listwindow/FilterHands.h"
#include "tests/support/BookSamples.h"
#include "tests/support/RealMouse.h"

#include <QClipboard>
#include <QHeaderView>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::onScreen;
using samples::typeKey;

namespace {

const CollectionWindow& opened(const CollectionWindow& window)
{
    window.books().setFocus();
    return window;
}

QPoint bookPlace(const CollectionWindow& window, int row)
{
    const QModelIndex cell = window.books().model()->index(row, window.columnOf(0));
    return window.books().visualRect(cell).center();
}

/// Selects the first rows, the first by a click and the others with the control key.
void selectFirst(const CollectionWindow& window, int count)
{
    for (int row = 0; row < count; ++row)
        QTest::mouseClick(window.books().viewport(), Qt::LeftButton,
            row == 0 ? Qt::NoModifier : Qt::ControlModifier, bookPlace(window, row));
}

QStringList booksInGroup(const CollectionWindow& window, const QString& name)
{
    QStringList titles;
    for (const GroupEntry* const group : window.document().getGroups().byName()) {
        for (const BookEntry* const book : window.document().allValues()) {
            if (group->getGroupName() == name
                && book->getSelectedGroups().contains(group->getKey()))
                titles.append(book->getTitle());
        }
    }
    titles.sort();
    return titles;
}

/// Chooses a field in the menu of the filter bar.
void chooseField(const FilterBar& bar, const QString& name)
{
    const QList<QAction*> items = samples::fieldItems(bar);
    for (qsizetype place = 0; place < items.size(); ++place) {
        if (items[place]->text() == name)
            return samples::clickField(bar, place);
    }
    qFatal("no field is called %s", qPrintable(name));
}

void choosePopUp(const FilterBar& bar, const QString& name, const QString& item)
{
    auto& popUp = samples::control<QComboBox>(bar, name);
    popUp.setFocus();
    QTest::keyClick(&popUp, Qt::Key_Home);
    for (int steps = 0; popUp.currentText() != item && steps < popUp.count(); ++steps)
        QTest::keyClick(&popUp, Qt::Key_Down);
    QCOMPARE(popUp.currentText(), item);
}

void typeInto(const FilterBar& bar, const QString& name, const QString& text)
{
    auto& field = samples::control<QLineEdit>(bar, name);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, text);
}

template <class Sheet>
Sheet* sheetOf(const QWidget& window)
{
    auto* const sheet = window.findChild<Sheet*>();
    return sheet && sheet->isVisible() ? sheet : nullptr;
}

} // namespace

// What a person does to find and arrange books in the main window.
class ArrangingStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dragsThreeBooksOntoAGroup();
    void addsNamesAndDeletesGroups();
    void deletesTheLastGroup();
    void putsBooksInAGroupByMenuAndTakesThemOut();
    void managesGroupsFromAnEditor();
    void hidesTheSortedColumn();
    void choosesColumnsInTheSheet();
    void filtersByEveryPage_data();
    void filtersByEveryPage();
    void clearsAFilterThatFindsNothing();
    void findsTheSearchByKey();
    void addsTheFirstBook();
    void copiesBooks();
    void arrangesTheToolbarAndFindsItSo();
};

void ArrangingStoriesTest::dragsThreeBooksOntoAGroup()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.classics()));
    QVERIFY(window.settle());
    const QString group = u"Poetry"_s;
    auto& groups = window.find<GroupTableView>(u"m_idGroupTable"_s);
    const int row = static_cast<int>(window.groupNames().indexOf(group));
    selectFirst(window, 3);
    QStringList expected = booksInGroup(window, group);
    const QStringList dragged = window.cells(0, 3);
    for (const QString& title : dragged)
        QVERIFY(!expected.contains(title));
    expected += dragged;
    expected.sort();
    const QPoint from = onScreen(*window.books().viewport(), bookPlace(window, 1));
    const QPoint to =
        onScreen(*groups.viewport(), groups.visualRect(groups.model()->index(row, 1)).center());
    samples::InputStory story;
    story.once(
        "press",
        [from] {
            samples::moveMouse(from);
            samples::pressMouse();
        },
        [] { return QGuiApplication::mouseButtons() == Qt::LeftButton; });
    int step = 0;
    story.repeat(
        "pull",
        [from, to, &step] {
            step = std::min(step + 1, 20);
            samples::moveMouse(from + (to - from) * step / 20 + QPoint(step % 2, 0));
        },
        [&groups, row] { return groups.litRow() == row; });
    story.once(
        "drop", [] { samples::releaseMouse(); },
        [&] { return booksInGroup(window, group) == expected; });
    QCOMPARE(story.run(), QByteArray());
    QVERIFY(window.document().isDocumentEdited());
    window.clickGroup(group);
    QCOMPARE(window.books().model()->rowCount(), expected.size());
}

void ArrangingStoriesTest::addsNamesAndDeletesGroups()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.smallCollection(u"small.books"_s)));
    QVERIFY(typeKey(u"ctrl+g"_s));
    QTRY_VERIFY(window.nameField() && window.nameField()->hasFocus());
    QCOMPARE(window.nameField()->selectedText(), u"untitled group"_s);
    QVERIFY(samples::sendInput({u"type"_s, u"Atlases"_s}));
    QTRY_COMPARE(window.nameField()->text(), u"Atlases"_s);
    QVERIFY(typeKey(u"Return"_s));
    QTRY_VERIFY(window.groupNames().contains(u"Atlases"_s));
    QTRY_COMPARE(window.selectedGroup(), u"Atlases"_s);
    window.choose(u"deleteGroup"_s);
    QVERIFY(QTest::qWaitFor([] { return ProgramOnScreen::alert() != nullptr; }));
    QCOMPARE(ProgramOnScreen::alertText(), u"Are you sure you want to delete group 'Atlases'?"_s);
    QVERIFY(ProgramOnScreen::answer(0));
    QTRY_VERIFY(!window.groupNames().contains(u"Atlases"_s));
    QCOMPARE(window.selectedGroup(), u"Fiction"_s);
}

void ArrangingStoriesTest::deletesTheLastGroup()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.classics()));
    const QStringList names = window.groupNames();
    window.clickGroup(names.last());
    QCOMPARE(window.selectedGroup(), names.last());
    window.choose(u"deleteGroup"_s);
    QVERIFY(ProgramOnScreen::answer(0));
    QTRY_COMPARE(window.groupNames(), names.first(names.size() - 1));
    QCOMPARE(window.selectedGroup(), names.at(names.size() - 2));
    const QString all = QString::number(window.document().getBookListSize());
    QVERIFY(window.status().endsWith(u"of %1 displayed"_s.arg(all))); // the books stay
}

void ArrangingStoriesTest::putsBooksInAGroupByMenuAndTakesThemOut()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.smallCollection(u"small.books"_s)));
    selectFirst(window, 2);
    auto& menu = window.find<QMenu>(u"addToGroupMenu"_s);
    menu.popup(window.window().mapToGlobal(QPoint(100, 100)));
    QStringList offered;
    for (QAction* const choice : menu.actions())
        offered.append(choice->text());
    QCOMPARE(offered, (QStringList{u"Fiction"_s, u"Non Fiction"_s}));
    menu.actions().last()->trigger();
    menu.close();
    const QStringList expected = window.cells(0, 2);
    QCOMPARE(booksInGroup(window, u"Non Fiction"_s), expected);
    window.clickGroup(u"Non Fiction"_s);
    selectFirst(window, 1);
    window.choose(u"removeFromGroup"_s);
    QVERIFY(QTest::qWaitFor([] { return ProgramOnScreen::alert() != nullptr; }));
    QCOMPARE(ProgramOnScreen::alertText(), u"Remove selected book(s) from group?"_s);
    QVERIFY(ProgramOnScreen::answer(0));
    QTRY_COMPARE(booksInGroup(window, u"Non Fiction"_s), expected.last(1));
    QCOMPARE(window.status(), u"1 of 4 displayed"_s);
}

void ArrangingStoriesTest::managesGroupsFromAnEditor()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.smallCollection(u"small.books"_s)));
    {
        const EditorWindow editor = program.edit(window, u"Ivanhoe"_s);
        editor.click(u"m_idGroupButton"_s);
        QTRY_VERIFY(sheetOf<GroupManagerController>(editor.window()));
        auto& sheet = *sheetOf<GroupManagerController>(editor.window());
        auto& table = *sheet.findChild<QTableView*>(u"m_idTableView"_s);
        QTRY_COMPARE(QApplication::activeWindow(), &sheet);
        table.setFocus();
        table.selectRow(0);
        QTest::keyClick(&table, Qt::Key_Space);
        QVERIFY(!editor.controller().unsavedWork());
        sheet.ok();
        QTRY_VERIFY(!sheetOf<GroupManagerController>(editor.window()));
        QVERIFY(booksInGroup(window, u"Fiction"_s) == (QStringList{u"Emma"_s, u"Kim"_s}));
        QVERIFY(editor.controller().unsavedWork()); // the ticks are the editor's until it saves
        QTRY_COMPARE(QApplication::activeWindow(), &editor.window());
        QTest::keyClick(&editor.window(), Qt::Key_Return, Qt::ControlModifier);
    }
    QTRY_COMPARE(
        booksInGroup(window, u"Fiction"_s), (QStringList{u"Emma"_s, u"Ivanhoe"_s, u"Kim"_s}));
}

void ArrangingStoriesTest::hidesTheSortedColumn()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.classics()));
    QVERIFY(window.settle());
    QCOMPARE(window.document().getSortField(), 0);
    const QList<qint32> before = window.columnKeys();
    QCOMPARE(before.first(), 0);
    QWidget& header = *window.header().viewport();
    samples::moveMouse(onScreen(header, {30, header.height() / 2}));
    QVERIFY(samples::sendInput({u"click"_s, u"3"_s}));
    QTRY_VERIFY(QApplication::activePopupWidget());
    QVERIFY(typeKey(u"h"_s)); // "Hide 'Title'"
    QTRY_COMPARE(window.columnKeys(), before.sliced(1));
    QCOMPARE(window.document().getSortField(), before.at(1));
    QVERIFY(window.document().isDocumentEdited());
}

void ArrangingStoriesTest::choosesColumnsInTheSheet()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.smallCollection(u"small.books"_s)));
    window.choose(u"customizeList"_s);
    QTRY_VERIFY(sheetOf<CustomizeListController>(window.window()));
    auto& sheet = *sheetOf<CustomizeListController>(window.window());
    auto& list = *sheet.findChild<QListWidget*>(u"m_idTableView"_s);
    QTRY_COMPARE(QApplication::activeWindow(), &sheet);
    list.setFocus();
    QTest::keyClicks(&list, u"Notes"_s);
    QCOMPARE(list.currentItem()->text(), u"Notes"_s);
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_Return);
    QTRY_VERIFY(!sheetOf<CustomizeListController>(window.window()));
    QCOMPARE(window.columnKeys(), QList<qint32>({0, 2, 40}));
    QCOMPARE(window.header().sectionSize(window.columnOf(40)), 100);
    QVERIFY(window.document().isDocumentEdited());
}

void ArrangingStoriesTest::filtersByEveryPage_data()
{
    using Hands = std::function<void(const FilterBar&)>;
    QTest::addColumn<QString>("field");
    QTest::addColumn<Hands>("hands");
    QTest::addColumn<BookFilter>("filter");
    const auto add = [](const QString& field, qint32 key, const Hands& hands,
                         const std::function<void(BookFilter&)>& expect) {
        BookFilter filter;
        filter.m_nSelectedFilter = key;
        expect(filter);
        QTest::newRow(qUtf8Printable(field)) << field << hands << filter;
    };
    add(
        u"Author & Title"_s, ColumnKey::AuthorAndTitle,
        [](const FilterBar& bar) { typeInto(bar, u"m_idFilter_Text"_s, u"dickens"_s); },
        [](BookFilter& filter) { filter.m_strFilter = u"dickens"_s; });
    add(
        u"Pages"_s, 28,
        [](const FilterBar& bar) {
            choosePopUp(bar, u"m_idFilter_NumericDropDown"_s,
                samples::control<QComboBox>(bar, u"m_idFilter_NumericDropDown"_s).itemText(2));
            typeInto(bar, u"m_idFilter_NumericText"_s, u"200"_s);
        },
        [](BookFilter& filter) {
            filter.m_nFilterSelectionForNumeric = NumberTest::Less;
            filter.m_dblFilter_Numeric = 200;
            filter.m_bFilter_NumericHasValue = true;
        });
    add(
        u"Published Date"_s, 10,
        [](const FilterBar& bar) {
            choosePopUp(bar, u"m_idFilter_DateDropDown"_s,
                samples::control<QComboBox>(bar, u"m_idFilter_DateDropDown"_s).itemText(3));
            typeInto(bar, u"m_idFilter_DateYearText"_s, u"2000"_s);
        },
        [](BookFilter& filter) {
            filter.m_nFilterSelectionForDate = DateTest::After;
            filter.m_nFilter_DateYear = 2000;
        });
    add(
        u"Read / Listened To"_s, 24,
        [](const FilterBar& bar) {
            QTest::keyClick(
                &samples::control<QComboBox>(bar, u"m_idFilter_CheckedStatusDropDown"_s),
                Qt::Key_Down);
        },
        [](BookFilter& filter) { filter.m_nFilterSelectionForChecks = TriState::OnlySet; });
    add(
        u"Type"_s, 84,
        [](const FilterBar& bar) {
            choosePopUp(bar, u"m_idFilter_BookTypeDropDown"_s, u"Audio Book"_s);
        },
        [](BookFilter& filter) { filter.m_nFilterSelectionForBookType = 2; });
    add(
        u"Rating"_s, 6,
        [](const FilterBar& bar) {
            QTest::keyClick(
                &samples::control<QComboBox>(bar, u"m_idFilter_BookRatingDropDown"_s), Qt::Key_End);
        },
        [](BookFilter& filter) { filter.m_nFilterSelectionForBookRating = 5; });
    add(
        u"Images"_s, ColumnKey::Images,
        [](const FilterBar& bar) {
            QTest::keyClick(&samples::control<QComboBox>(bar, u"m_idFilter_ImageStatusDropDown"_s),
                Qt::Key_End);
        },
        [](BookFilter& filter) { filter.m_nFilterSelectionForImages = TriState::OnlyUnset; });
    add(
        u"Groups"_s, ColumnKey::Groups,
        [](const FilterBar& bar) {
            QTest::keyClick(&samples::control<QComboBox>(bar, u"m_idFilter_GroupStatusDropDown"_s),
                Qt::Key_End);
        },
        [](BookFilter& filter) { filter.m_nFilterSelectionForGroup = TriState::OnlyUnset; });
}

void ArrangingStoriesTest::filtersByEveryPage()
{
    QFETCH(const QString, field);
    QFETCH(const std::function<void(const FilterBar&)>, hands);
    QFETCH(const BookFilter, filter);
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    const FilterBar& bar = *window.window().findChild<FilterBar*>();
    if (field != u"Author & Title"_s)
        chooseField(bar, field);
    QVERIFY(window.window().findChild<CommandToolbar*>());
    hands(bar);
    const auto expected = std::ranges::count_if(window.document().allValues(),
        [&filter](const BookEntry* book) { return filter.passes(*book); });
    QVERIFY(expected < window.document().getBookListSize());
    QCOMPARE(window.status(),
        u"%1 of %2 displayed"_s.arg(expected).arg(window.document().getBookListSize()));
    QVERIFY(!window.document().isDocumentEdited());
}

void ArrangingStoriesTest::clearsAFilterThatFindsNothing()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.classics()));
    QVERIFY(typeKey(u"ctrl+f"_s));
    auto& field = window.find<QLineEdit>(u"m_idFilter_Text"_s);
    QTRY_VERIFY(field.hasFocus());
    QVERIFY(samples::sendInput({u"type"_s, u"xyzzy"_s}));
    QTRY_COMPARE(window.status(), u"0 of 491 displayed"_s);
    QVERIFY(field.hasFocus());
    QCOMPARE(field.cursorPosition(), 5);
    auto& button = window.find<QPushButton>(u"m_idClearFilter"_s);
    QVERIFY(button.isVisible());
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(window.status(), u"491 of 491 displayed"_s);
    QCOMPARE(field.text(), QString());
    QTRY_VERIFY(window.books().hasFocus());
}

void ArrangingStoriesTest::findsTheSearchByKey()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.smallCollection(u"small.books"_s)));
    QVERIFY(typeKey(u"ctrl+f"_s));
    auto& field = window.find<QLineEdit>(u"m_idFilter_Text"_s);
    QTRY_VERIFY(field.hasFocus());
    QVERIFY(samples::sendInput({u"type"_s, u"kim"_s}));
    QTRY_COMPARE(window.cells(0, 9), QStringList{u"Kim"_s});
    QVERIFY(typeKey(u"ctrl+f"_s));
    QTRY_COMPARE(field.selectedText(), u"kim"_s);
    QVERIFY(typeKey(u"Delete"_s)); // of the text, not of the book
    QTRY_COMPARE(window.status(), u"4 of 4 displayed"_s);
    QVERIFY(!ProgramOnScreen::alert());
    QVERIFY(samples::sendInput({u"type"_s, u"emma"_s}));
    QTRY_COMPARE(window.cells(0, 9), QStringList{u"Emma"_s});
    QVERIFY(typeKey(u"Escape"_s));
    QTRY_COMPARE(window.status(), u"4 of 4 displayed"_s);
    QTRY_VERIFY(window.books().hasFocus());
}

void ArrangingStoriesTest::addsTheFirstBook()
{
    ProgramOnScreen program;
    BookListDocument empty;
    empty.writeToFile(program.path(u"empty.books"_s));
    const CollectionWindow window = program.open(program.path(u"empty.books"_s));
    auto& button = window.find<QPushButton>(u"m_idAddFirstBook"_s);
    QVERIFY(button.isVisible());
    QTest::mouseClick(&button, Qt::LeftButton);
    const EditorWindow editor = program.activeEditor(window);
    editor.type(u"m_idTitle"_s, u"Emma"_s);
    QTest::keyClick(&editor.window(), Qt::Key_Return, Qt::ControlModifier);
    QTRY_COMPARE(window.cells(0, 9), QStringList{u"Emma"_s});
    QVERIFY(!button.isVisible());
}

void ArrangingStoriesTest::copiesBooks()
{
    ProgramOnScreen program;
    const CollectionWindow window = opened(program.open(program.smallCollection(u"small.books"_s)));
    const auto canCopy = [&window] {
        auto& menu = window.find<QMenu>(u"editMenu"_s);
        menu.popup(window.window().mapToGlobal(QPoint(50, 50)));
        const bool isEnabled = menu.findChild<QAction*>(u"copy"_s)->isEnabled();
        menu.close();
        return isEnabled;
    };
    window.books().clearSelection();
    QVERIFY(!canCopy());
    selectFirst(window, 2);
    QVERIFY(canCopy());
    QVERIFY(typeKey(u"ctrl+c"_s));
    QTRY_COMPARE(
        QApplication::clipboard()->text(), u"Emma\tJane Austen\nIvanhoe\tWalter Scott\n"_s);
}

void ArrangingStoriesTest::arrangesTheToolbarAndFindsItSo()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    const auto buttons = [](const CollectionWindow& window) {
        QStringList names;
        for (const QAction* const action : window.window().findChild<CommandToolbar*>()->actions())
            names.append(action->objectName());
        return names;
    };
    QStringList arranged;
    {
        const CollectionWindow window = opened(program.open(path));
        QVERIFY(buttons(window).contains(u"addBook"_s));
        window.choose(u"customizeToolbar"_s);
        QTRY_VERIFY(sheetOf<CustomizeToolbarDialog>(window.window()));
        auto& sheet = *sheetOf<CustomizeToolbarDialog>(window.window());
        QTRY_COMPARE(QApplication::activeWindow(), &sheet);
        auto& row = *sheet.findChild<QListView*>(u"m_idRow"_s);
        row.setFocus();
        row.setCurrentIndex(row.model()->index(0, 0));
        QTest::mouseClick(sheet.findChild<QPushButton*>(u"m_idRemove"_s), Qt::LeftButton);
        QTest::keyClick(sheet.findChild<QComboBox*>(u"m_idShow"_s), Qt::Key_Down);
        QTest::mouseClick(sheet.findChild<QPushButton*>(u"m_idDone"_s), Qt::LeftButton);
        QTRY_VERIFY(!sheetOf<CustomizeToolbarDialog>(window.window()));
        arranged = buttons(window);
        QVERIFY(!arranged.contains(u"addBook"_s));
        QVERIFY(arranged.contains(u"editBook"_s));
        QVERIFY(!window.document().isDocumentEdited());
        window.choose(u"closeWindow"_s);
        QTRY_COMPARE(program.openCount(), std::size_t(0));
    }
    QVERIFY(program.defaults.synchronize());
    // Another start of the program, with what is on the disk.
    UserDefaults stored(program.defaults.filePath());
    Application again(stored, program.alerts, program.panels);
    const CollectionWindow window(*again.documents().openDocument(path));
    QCOMPARE(buttons(window), arranged);
    QCOMPARE(
        window.window().findChild<CommandToolbar*>()->toolButtonStyle(), Qt::ToolButtonIconOnly);
    again.documents().closeAll();
}

QTEST_MAIN(ArrangingStoriesTest)
#include "ArrangingStoriesTest.moc"
