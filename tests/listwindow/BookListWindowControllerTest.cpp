#include "listwindow/BookListWindowController.h"

#include "document/CollectionFile.h"
#include "listwindow/BookTableModel.h"
#include "listwindow/ToolbarConfiguration.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/ImageView.h"
#include "platform/widgets/Waiting.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeFilePanels.h"
#include "tests/support/Files.h"
#include "tests/support/PlainPictures.h"
#include "tests/support/SmallCollection.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray jpeg(QSize size)
{
    return samples::plainPicture(Qt::blue, size);
}

} // namespace

class BookListWindowControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void leavesTheDocumentUnedited();
    void selectsTheFirstBookAtStart();
    void canBeWalkedByKeyWhateverColumnsAreShown();
    void saysHowManyBooksAreDisplayed();
    void saysWhyNoBookIsShown();
    void sortsByTheClickedHeading();
    void selectsABookAfterAReload_data();
    void selectsABookAfterAReload();
    void keepsSeveralSelectedRows();
    void keepsNothingSelectedInAnEmptyList();
    void showsTheBooksOfAGroup();
    void showsTheSelectedRowOfAnotherGroup();
    void keepsItsPlaceInTheListOverAReload();
    void followsADeletedGroup();
    void refreshesARenamedGroupOnlyForTheGroupsFilter();
    void deletesManyBooksInOneReload();
    void showsThePictureOfTheSelectedBook();
    void sortsByTheFirstColumnWhenTheSortColumnGoes();
    void keepsTheSortWhenEveryColumnGoes();
    void renamesTheHeadingOfACustomField();
    void copiesItsColumnsIntoTheRecords();
    void fillsTheValueLists();
    void takesNoCommandMeanwhile_data();
    void takesNoCommandMeanwhile();
    void bringsTheSearchBack();
    void hidesNoBooksBehindASearchThatIsGone();
    void restoresItsLayoutOnce();
    void ignoresASavedLayoutThatIsNone_data();
    void ignoresASavedLayoutThatIsNone();

private:
    void makeWindow();

    template <class Widget>
    Widget* find(const QString& name) const
    {
        return m_controller->window()->findChild<Widget*>(name);
    }

    QTableView& table() const { return *find<QTableView>(u"m_idBookTable"_s); }

    QTableView& groups() const { return *find<QTableView>(u"m_idGroupTable"_s); }

    QString status() const { return find<QLabel>(u"m_idStatusText"_s)->text(); }

    QStringList titles() const;
    QList<int> selectedRows() const;
    void clickHeading(qint32 columnKey) const;

    FakeAlerts m_alerts;
    QTemporaryDir m_folder;
    UserDefaults m_defaults{m_folder.filePath(u"Tomely.ini"_s)};
    FakeFilePanels m_panels;
    ToolbarConfiguration m_toolbar{m_defaults};
    std::unique_ptr<BookListDocument> m_document;
    BookListWindowController* m_controller = nullptr; // owned by the document
};

void BookListWindowControllerTest::init()
{
    m_document = std::make_unique<BookListDocument>(BookListServices{
        nullptr, nullptr, [this](BookListDocument& document) {
            auto window = std::make_unique<BookListWindowController>(
                document, ListWindowServices{m_alerts, m_defaults, m_panels, m_toolbar, {}, {}});
            m_controller = window.get();
            document.addWindowController(std::move(window));
            return m_controller;
        }});
    samples::addFourBooks(*m_document);
}

void BookListWindowControllerTest::makeWindow()
{
    m_document->makeWindowControllers();
    m_document->showWindows();
}

QStringList BookListWindowControllerTest::titles() const
{
    QStringList titles;
    for (const BookEntry* const book : m_controller->getDisplayedBooks())
        titles.append(book->getTitle());
    return titles;
}

QList<int> BookListWindowControllerTest::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex& index : table().selectionModel()->selectedRows())
        rows.append(index.row());
    std::ranges::sort(rows);
    return rows;
}

void BookListWindowControllerTest::clickHeading(qint32 columnKey) const
{
    const auto& model = static_cast<const BookTableModel&>(*table().model());
    const int column = model.columnOfKey(columnKey);
    QHeaderView& header = *table().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
        QPoint(header.sectionViewportPosition(column) + 20, header.height() / 2));
}

void BookListWindowControllerTest::leavesTheDocumentUnedited()
{
    m_document->changeDone();
    m_document->makeWindowControllers();
    QVERIFY(!m_document->isDocumentEdited());
    m_document->showWindows();
    QVERIFY(!m_document->isDocumentEdited());
    QCOMPARE(m_document->getWindowController(), m_controller);
}

void BookListWindowControllerTest::selectsTheFirstBookAtStart()
{
    makeWindow();
    QCOMPARE(titles(), QStringList({u"Emma"_s, u"Ivanhoe"_s, u"Kim"_s, u"Villette"_s}));
    QCOMPARE(selectedRows(), QList<int>{0});
    QCOMPARE(groups().selectionModel()->selectedRows().value(0).row(), 0);
    QCOMPARE(table().horizontalHeader()->sortIndicatorSection(),
        static_cast<const BookTableModel&>(*table().model()).columnOfKey(0));
}

void BookListWindowControllerTest::canBeWalkedByKeyWhateverColumnsAreShown()
{
    samples::showColumns(*m_document, {28, 2}); // no title
    makeWindow();
    for (const int row : {1, 2}) {
        QTest::keyClick(&table(), Qt::Key_Down);
        QCOMPARE(selectedRows(), QList<int>{row});
    }
    m_document->refresh();
    QTest::keyClick(&table(), Qt::Key_Up);
    QCOMPARE(selectedRows(), QList<int>{1});
}

void BookListWindowControllerTest::saysHowManyBooksAreDisplayed()
{
    makeWindow();
    QCOMPARE(status(), u"4 of 4 displayed"_s);
    QCOMPARE(m_controller->statusText(), status());
    m_controller->filter().m_strFilter = u"ivan"_s;
    m_controller->refresh();
    QCOMPARE(status(), u"1 of 4 displayed"_s);
    QCOMPARE(m_controller->getAllBooks().size(), std::size_t(4));
    samples::addBook(*m_document, u"Persuasion"_s);
    m_document->setBooksChanged();
    m_document->refresh();
    QCOMPARE(status(), u"1 of 5 displayed"_s);
}

void BookListWindowControllerTest::saysWhyNoBookIsShown()
{
    makeWindow();
    QVERIFY(table().isVisible());
    groups().selectRow(2);
    QVERIFY(!table().isVisible());
    QVERIFY(find<QLabel>(u"m_idEmptyText"_s)->isVisible());
    const QString emptyGroup = find<QLabel>(u"m_idEmptyText"_s)->text();
    m_document->deleteBooks(m_document->allKeys());
    const QString emptyCollection = find<QLabel>(u"m_idEmptyText"_s)->text();
    QVERIFY(!emptyGroup.isEmpty() && !emptyCollection.isEmpty());
    QVERIFY(emptyGroup != emptyCollection);
    QCOMPARE(status(), u"0 of 0 displayed"_s);
    groups().selectRow(0);
    samples::addBook(*m_document, u"Persuasion"_s);
    m_document->setBooksChanged();
    m_document->refresh();
    QVERIFY(table().isVisible());
}

void BookListWindowControllerTest::sortsByTheClickedHeading()
{
    makeWindow();
    clickHeading(2);
    QCOMPARE(m_document->getSortField(), 2);
    QCOMPARE(titles(), QStringList({u"Kim"_s, u"Villette"_s, u"Emma"_s, u"Ivanhoe"_s}));
    clickHeading(2);
    QCOMPARE(m_document->getSortField(), 3);
    QCOMPARE(titles(), QStringList({u"Ivanhoe"_s, u"Emma"_s, u"Villette"_s, u"Kim"_s}));
    QCOMPARE(table().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeading(2);
    QCOMPARE(m_document->getSortField(), 2);
    clickHeading(2);
    clickHeading(0); // another column starts ascending
    QCOMPARE(m_document->getSortField(), 0);
    QCOMPARE(table().horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    QVERIFY(!m_document->isDocumentEdited()); // the window has not settled yet
}

void BookListWindowControllerTest::selectsABookAfterAReload_data()
{
    QTest::addColumn<int>("row"); // -1: none
    QTest::addColumn<QString>("deleted");
    QTest::addColumn<int>("selected");
    QTest::newRow("the last goes") << 3 << u"Villette"_s << 2;
    QTest::newRow("another goes") << 2 << u"Villette"_s << 2;
    QTest::newRow("the first goes") << 0 << u"Emma"_s << 0;
    QTest::newRow("nothing was selected") << -1 << u"Kim"_s << 0;
}

void BookListWindowControllerTest::selectsABookAfterAReload()
{
    QFETCH(const int, row);
    QFETCH(const QString, deleted);
    QFETCH(const int, selected);
    makeWindow();
    table().clearSelection();
    if (row >= 0)
        table().selectRow(row);
    for (const BookEntry* const book : m_document->allValues()) {
        if (book->getTitle() == deleted) {
            m_document->deleteBook(book->getKey());
            break;
        }
    }
    QCOMPARE(selectedRows(), QList<int>{selected});
    QCOMPARE(table().currentIndex().row(), selected);
}

void BookListWindowControllerTest::keepsSeveralSelectedRows()
{
    makeWindow();
    table().selectRow(1);
    table().selectionModel()->select(
        table().model()->index(3, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_document->refresh();
    QCOMPARE(selectedRows(), QList<int>({1, 3}));
}

void BookListWindowControllerTest::keepsNothingSelectedInAnEmptyList()
{
    makeWindow();
    table().selectRow(2);
    m_controller->filter().m_strFilter = u"no such book"_s;
    m_controller->refresh();
    QVERIFY(selectedRows().isEmpty());
    m_controller->filter().m_strFilter.clear();
    m_controller->refresh();
    QCOMPARE(selectedRows(), QList<int>{0});
}

void BookListWindowControllerTest::showsTheBooksOfAGroup()
{
    makeWindow();
    table().selectRow(3);
    groups().selectRow(1);
    QCOMPARE(titles(), QStringList({u"Emma"_s, u"Kim"_s}));
    QCOMPARE(status(), u"2 of 4 displayed"_s);
    QCOMPARE(selectedRows(), QList<int>{0});
    groups().selectRow(0);
    QCOMPARE(status(), u"4 of 4 displayed"_s);
    QVERIFY(!m_document->isDocumentEdited());
}

void BookListWindowControllerTest::showsTheSelectedRowOfAnotherGroup()
{
    for (int number = 0; number < 300; ++number)
        samples::addBook(*m_document, u"Volume %1"_s.arg(number), {}, u"1"_s);
    makeWindow();
    table().selectRow(299);
    table().scrollToBottom();
    QVERIFY(table().verticalScrollBar()->value() > 0);
    groups().selectRow(1);
    QCOMPARE(selectedRows(), QList<int>{0});
    QCOMPARE(table().verticalScrollBar()->value(), 0);
}

void BookListWindowControllerTest::keepsItsPlaceInTheListOverAReload()
{
    for (int number = 0; number < 300; ++number)
        samples::addBook(*m_document, u"Volume %1"_s.arg(number));
    makeWindow();
    table().verticalScrollBar()->setValue(120);
    const int before = table().verticalScrollBar()->value();
    QVERIFY(before > 0);
    m_document->setBooksChanged();
    m_document->refresh();
    QCOMPARE(table().verticalScrollBar()->value(), before);
}

void BookListWindowControllerTest::followsADeletedGroup()
{
    makeWindow();
    groups().selectRow(2); // Non Fiction, empty
    QCOMPARE(status(), u"0 of 4 displayed"_s);
    m_document->getGroups().remove(u"2"_s);
    m_document->groupsChanged();
    QCOMPARE(groups().selectionModel()->selectedRows().value(0).row(), 1);
    QCOMPARE(titles(), QStringList({u"Emma"_s, u"Kim"_s}));
    QVERIFY(m_document->isDocumentEdited());
    m_document->getGroups().remove(u"1"_s);
    m_document->groupsChanged();
    QCOMPARE(status(), u"4 of 4 displayed"_s);
}

void BookListWindowControllerTest::refreshesARenamedGroupOnlyForTheGroupsFilter()
{
    makeWindow();
    QSignalSpy reset(table().model(), &QAbstractItemModel::modelReset);
    m_document->getGroups().find(u"1"_s)->setGroupName(u"Stories"_s);
    m_document->groupsChanged();
    QCOMPARE(reset.size(), 0);
    m_controller->filter().m_nSelectedFilter = ColumnKey::Groups;
    m_document->groupsChanged();
    QCOMPARE(reset.size(), 1);
    QVERIFY(m_document->isDocumentEdited());
}

void BookListWindowControllerTest::deletesManyBooksInOneReload()
{
    for (int number = 0; number < 50; ++number)
        samples::addBook(*m_document, u"Volume %1"_s.arg(number));
    makeWindow();
    table().selectAll();
    QSignalSpy reset(table().model(), &QAbstractItemModel::modelReset);
    m_document->deleteBooks(m_document->allKeys().mid(1));
    QCOMPARE(reset.size(), 1);
    QCOMPARE(titles(), QStringList{u"Villette"_s});
    QCOMPARE(status(), u"1 of 1 displayed"_s);
    QVERIFY(m_document->isDocumentEdited());
}

void BookListWindowControllerTest::showsThePictureOfTheSelectedBook()
{
    BookEntry& emma = *m_document->getBookEntry(u"2"_s);
    emma.setImageData(3, jpeg({30, 40}));
    makeWindow();
    const auto* const preview = find<ImageView>(u"m_idImageView"_s);
    QCOMPARE(preview->image().size(), QSize(30, 40));
    table().selectRow(1);
    QVERIFY(preview->image().isNull());
    table().selectRow(0);
    QCOMPARE(preview->image().size(), QSize(30, 40));
    emma.setImageData(1, jpeg({50, 60}));
    m_document->setBooksChanged();
    QCOMPARE(preview->image().size(), QSize(50, 60));
    table().clearSelection();
    QVERIFY(preview->image().isNull());
    m_document->refresh();
    QCOMPARE(preview->image().size(), QSize(50, 60));
    m_document->deleteBooks(m_document->allKeys());
    QVERIFY(preview->image().isNull());
}

void BookListWindowControllerTest::sortsByTheFirstColumnWhenTheSortColumnGoes()
{
    samples::showColumns(*m_document, {2, 0, 28});
    m_document->setSortField(29);
    makeWindow();
    samples::column(*m_document, 28).setPosition(-1);
    m_document->columnsSelectionChanged();
    QCOMPARE(m_document->getSortField(), 2);
    QCOMPARE(titles().first(), u"Kim"_s);
    QVERIFY(m_document->isDocumentEdited());
    // A column that is not sorted by goes quietly.
    samples::column(*m_document, 0).setPosition(-1);
    m_document->columnsSelectionChanged();
    QCOMPARE(m_document->getSortField(), 2);
}

void BookListWindowControllerTest::keepsTheSortWhenEveryColumnGoes()
{
    samples::showColumns(*m_document, {0, 2});
    m_document->setSortField(3);
    makeWindow();
    samples::column(*m_document, 0).setPosition(-1);
    samples::column(*m_document, 2).setPosition(-1);
    m_document->columnsSelectionChanged();
    QCOMPARE(m_document->getSortField(), 3);
    const QHeaderView& header = *table().horizontalHeader();
    QCOMPARE(header.hiddenSectionCount(), header.count());
}

void BookListWindowControllerTest::renamesTheHeadingOfACustomField()
{
    samples::showColumns(*m_document, {0, 42});
    makeWindow();
    m_document->setCustomFieldLabel(u" Shelf: "_s, 42);
    const auto& model = static_cast<const BookTableModel&>(*table().model());
    QCOMPARE(model.headerData(model.columnOfKey(42), Qt::Horizontal, Qt::DisplayRole).toString(),
        u" Shelf: "_s);
    QVERIFY(m_document->isDocumentEdited());
}

void BookListWindowControllerTest::copiesItsColumnsIntoTheRecords()
{
    samples::showColumns(*m_document, {0, 2, 28});
    makeWindow();
    QHeaderView& header = *table().horizontalHeader();
    header.moveSection(header.visualIndex(header.logicalIndex(2)), 0);
    header.resizeSection(header.logicalIndex(0), 150);
    m_controller->updateCurrentColumnInfo();
    QCOMPARE(samples::column(*m_document, 28).getPosition(), 0);
    QCOMPARE(samples::column(*m_document, 28).getWidth(), 150);
    QCOMPARE(samples::column(*m_document, 84).getPosition(), ColumnEntry::hidden);
}

void BookListWindowControllerTest::fillsTheValueLists()
{
    makeWindow();
    QCOMPARE(m_document->getAuthors(),
        QStringList({u"A. Kipling"_s, u"Charlotte Brontë"_s, u"Jane Austen"_s, u"Walter Scott"_s}));
    samples::addBook(*m_document, u"Persuasion"_s, u"Jane Austen"_s);
    samples::addBook(*m_document, u"Middlemarch"_s, u"George Eliot"_s);
    m_document->setBooksChanged();
    m_document->refresh();
    QCOMPARE(m_document->getAuthors().size(), 5);
}

void BookListWindowControllerTest::takesNoCommandMeanwhile_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isWaiting");
    for (const Command& command : commandTable()) {
        QTest::addRow("%s while the program waits", command.name.data())
            << QString(command.name) << true;
        QTest::addRow("%s under a sheet", command.name.data()) << QString(command.name) << false;
    }
}

void BookListWindowControllerTest::takesNoCommandMeanwhile()
{
    QFETCH(const QString, command);
    QFETCH(const bool, isWaiting);
    makeWindow();
    QMenuBar& menuBar = *m_controller->window()->menuBar();
    m_controller->addFileCommands(*menuBar.addMenu(u"File"_s));
    m_controller->addCommandMenus(menuBar);
    m_alerts.sheets.clear();
    m_controller->filter().m_strFilter = u"x"_s;
    table().setFocus();
    const std::size_t windows = m_document->windowControllers().size();
    std::optional<Waiting> waiting;
    QDialog sheet(m_controller->window());
    if (isWaiting)
        waiting.emplace();
    else
        sheet.open();
    QAction* found = nullptr;
    for (const QMenu* const menu : m_controller->window()->findChildren<QMenu*>()) {
        for (QAction* const action : menu->actions()) {
            if (action->objectName() == command)
                found = action;
        }
    }
    QVERIFY(found);
    found->setEnabled(true); // whatever is selected
    found->trigger();
    const auto dialogs = m_controller->window()->findChildren<QDialog*>();
    QCOMPARE(dialogs.size(), 1);
    QVERIFY(m_alerts.sheets.isEmpty());
    QCOMPARE(m_document->windowControllers().size(), windows);
    QCOMPARE(m_controller->filter().m_strFilter, u"x"_s);
    QVERIFY(!m_document->isDocumentEdited());
    QCOMPARE(m_document->getGroups().byName().size(), std::size_t(2));
}

void BookListWindowControllerTest::bringsTheSearchBack()
{
    makeWindow();
    m_controller->addCommandMenus(*m_controller->window()->menuBar());
    const auto* const search = find<QLineEdit>(u"m_idFilter_Text"_s);
    m_toolbar.setItems({u"addbook"_s});
    QVERIFY(!search->isVisible());
    m_controller->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_controller->window()));
    QTest::keyClick(m_controller->window()->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(search->isVisible());
    QCOMPARE(m_toolbar.items(), (QStringList{u"addbook"_s, u"search"_s}));
    QTRY_VERIFY(search->hasFocus());
}

void BookListWindowControllerTest::hidesNoBooksBehindASearchThatIsGone()
{
    makeWindow();
    find<QLineEdit>(u"m_idFilter_Text"_s)->setText(u"kim"_s);
    QCOMPARE(status(), u"1 of 4 displayed"_s);
    m_toolbar.setItems({u"addbook"_s});
    QCOMPARE(status(), u"4 of 4 displayed"_s);
}

void BookListWindowControllerTest::restoresItsLayoutOnce()
{
    makeWindow();
    const QSplitter& list = *m_controller->getListSplitter();
    QCOMPARE(&list, find<QSplitter>(u"m_idListSplitter"_s));
    QCOMPARE(m_controller->getImageSplitter(), find<QSplitter>(u"m_idImageSplitter"_s));
    QCOMPARE(list.sizes().first(), 238);
    m_controller->getListSplitter()->setSizes({400, 700});
    const QList<int> moved = list.sizes();
    m_controller->showWindow();
    QCOMPARE(list.sizes(), moved);
    const WindowLayout layout = m_controller->currentLayout();
    QCOMPARE(layout.listSplitter[0].width(), double(moved.first()));
    QCOMPARE(layout.listSplitter[0].topLeft(), QPointF(0, 0));
    QVERIFY(layout.listSplitter[1].x() > layout.listSplitter[0].width());
    QCOMPARE(layout.imageSplitter[0].topLeft(), QPointF(0, 0));
    QVERIFY(layout.imageSplitter[1].y() > layout.imageSplitter[0].height());
    QCOMPARE(layout.windowFrame.size(), QSizeF(m_controller->window()->frameGeometry().size()));
}

void BookListWindowControllerTest::ignoresASavedLayoutThatIsNone_data()
{
    QTest::addColumn<double>("width");
    QTest::newRow("never saved") << 0.0;
    QTest::newRow("below the minimum") << 639.0;
    QTest::newRow("negative") << -800.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void BookListWindowControllerTest::ignoresASavedLayoutThatIsNone()
{
    QFETCH(const double, width);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"saved.books"_s);
    CollectionContents contents = CollectionContents::makeNew();
    contents.windowFrame = QRectF(0, 0, width, 500);
    QVERIFY(samples::writeFile(path, writeCollection(contents)));
    QVERIFY(!m_document->readFromFile(path));
    m_document->makeWindowControllers();
    const QSize designed = m_controller->window()->size();
    m_document->showWindows();
    QCOMPARE(m_controller->window()->size(), designed);
}

QTEST_MAIN(BookListWindowControllerTest)
#include "BookListWindowControllerTest.moc"
