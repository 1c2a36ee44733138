// Dragging books onto groups with the mouse of the display.

#include "listwindow/BookDrag.h"
#include "listwindow/BookTableModel.h"
#include "listwindow/BookTableView.h"
#include "listwindow/engine/ListEngine.h"
#include "listwindow/GroupCommands.h"
#include "listwindow/GroupSidebar.h"
#include "listwindow/GroupTableModel.h"
#include "listwindow/GroupTableView.h"
#include "platform/widgets/Waiting.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/RealMouse.h"
#include "tests/support/SmallCollection.h"

#include <QDialog>
#include <QDragEnterEvent>
#include <QMainWindow>
#include <QMimeData>
#include <QSplitter>
#include <QtTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::InputStory;
using samples::moveMouse;
using samples::onScreen;
using samples::pressMouse;
using samples::releaseMouse;

namespace {

/// What a drag that comes to a widget carries.
class DragProbe : public QObject {
public:
    explicit DragProbe(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::DragEnter) {
            const QMimeData& carried = *static_cast<QDragEnterEvent*>(event)->mimeData();
            formats = carried.formats();
            data = carried.data(u"BOOK_ENTRY_FOR_DRAG_N_DROP"_s);
            actions = static_cast<QDragEnterEvent*>(event)->possibleActions();
        }
        return QObject::eventFilter(watched, event);
    }

    QStringList formats;
    QByteArray data = "none yet";
    Qt::DropActions actions;
};

/// The two tables of a main window, wired as it wires them.
class Desk {
public:
    explicit Desk(BookListDocument& document)
        : groups(new GroupTableView)
        , books(new BookTableView)
        , engine(document)
    {
        engine.loadBookKeys();
        model =
            std::make_unique<BookTableModel>(engine.getDisplayedBooks(), document.getListColumns());
        auto* const splitter = new QSplitter;
        splitter->addWidget(groups);
        splitter->addWidget(books);
        splitter->setSizes({240, 500});
        window.setCentralWidget(splitter);
        window.resize(760, 420);
        books->setModel(model.get());
        books->setSelectionBehavior(QAbstractItemView::SelectRows);
        books->setSelectionMode(QAbstractItemView::ExtendedSelection);
        sidebar = std::make_unique<GroupSidebar>(*groups, document);
        sidebar->populateGroups();
        sidebar->refreshGroupList();
        commands = std::make_unique<GroupCommands>(
            document, alerts, window, *sidebar, [] { return QStringList(); });
        drag = std::make_unique<BookDrag>(*books, engine.getDisplayedBooks());
        groups->setDropSource(*books);
        QObject::connect(
            groups, &GroupTableView::booksDropped, commands.get(), [this](const QString& key) {
                commands->addBooksToGroup(drag->draggedBooks(), key);
                ++drops;
            });
        window.show();
    }

    QPoint bookPlace(int row) const
    {
        return onScreen(*books->viewport(), books->visualRect(model->index(row, 0)).center());
    }

    /// A point of a group's row, so many points below its top.
    QPoint groupPlace(int row, int below) const
    {
        const QRect place =
            groups->visualRect(groups->model()->index(row, GroupTableModel::NameColumn));
        return onScreen(*groups->viewport(), {40, place.top() + below});
    }

    int groupRowHeight() const { return groups->rowHeight(0); }

    bool isDragging() const { return !drag->draggedBooks().isEmpty(); }

    void select(const QList<int>& rows) const
    {
        books->clearSelection();
        for (const int row : rows)
            books->selectionModel()->select(
                model->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    GroupTableView* groups; // of the window
    BookTableView* books; // of the window
    ListEngine engine;
    std::unique_ptr<BookTableModel> model;
    QMainWindow window;
    FakeAlerts alerts;
    std::unique_ptr<GroupSidebar> sidebar;
    std::unique_ptr<GroupCommands> commands;
    std::unique_ptr<BookDrag> drag;
    int drops = 0;
};

/// Moves the mouse to and fro around a place, as a hand does, without leaving the row.
std::function<void()> hover(std::function<QPoint()> place)
{
    return [place = std::move(place), far = false]() mutable {
        far = !far;
        moveMouse(place() + (far ? QPoint(7, 0) : QPoint()));
    };
}

void addPull(InputStory& story, const Desk& desk, int row)
{
    story.once(
        "the mouse comes", [&desk, row] { moveMouse(desk.bookPlace(row)); },
        [&desk] { return desk.books->viewport()->underMouse(); });
    story.once(
        "the press", [] { pressMouse(); },
        [] { return QGuiApplication::mouseButtons() == Qt::LeftButton; });
    story.repeat(
        "the drag begins",
        [&desk, row, distance = 0]() mutable {
            distance += 7;
            moveMouse(desk.bookPlace(row) - QPoint(distance, 0));
        },
        [&desk] { return desk.isDragging(); });
}

/// Holds the drag over a row until it is lit.
void addWelcome(InputStory& story, const Desk& desk, int row)
{
    story.repeat("the group lights up",
        hover([&desk, row] { return desk.groupPlace(row, desk.groupRowHeight() / 2); }),
        [&desk, row] { return desk.groups->litRow() == row; });
}

/// Holds the drag where nothing may be dropped until nothing is lit.
void addRefusal(InputStory& story, const Desk& desk, std::function<QPoint()> place)
{
    story.repeat("nothing is lit", hover(std::move(place)),
        [&desk, moves = 0]() mutable { return ++moves > 4 && desk.groups->litRow() < 0; });
}

void addRelease(InputStory& story, const Desk& desk)
{
    story.once(
        "the drag ends", [] { releaseMouse(); }, [&desk] { return !desk.isDragging(); });
}

} // namespace

class BooksToGroupDragTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dragsThreeBooksOntoAGroup();
    void refusesEveryOtherPlace_data();
    void refusesEveryOtherPlace();
    void refusesWhatComesFromElsewhere();
    void dropsNothingDuringAQuestion_data();
    void dropsNothingDuringAQuestion();
    void skipsABookThatIsDeletedMeanwhile();

private:
    QStringList membersOf(const QString& groupKey) const;

    void verifyStory(InputStory& story)
    {
        const QByteArray stuck = story.run();
        QVERIFY2(stuck.isEmpty(), stuck.constData());
    }

    FakeBookListWindow* m_list = nullptr;
    std::unique_ptr<BookListDocument> m_document;
    std::unique_ptr<Desk> m_desk;
};

void BooksToGroupDragTest::init()
{
    QVERIFY2(moveMouse({5, 5}), "xdotool is missing");
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_list));
    m_document->makeWindowControllers();
    samples::addFourBooks(*m_document); // rows: Emma 2, Ivanhoe 4, Kim 3, Villette 1
    m_desk = std::make_unique<Desk>(*m_document); // rows: Library, Fiction 1, Non Fiction 2
    QVERIFY(QTest::qWaitForWindowActive(&m_desk->window));
    m_document->clearChangeCount();
    m_list->calls.clear();
}

void BooksToGroupDragTest::cleanup()
{
    releaseMouse();
    m_desk.reset();
    m_document.reset();
}

QStringList BooksToGroupDragTest::membersOf(const QString& groupKey) const
{
    QStringList titles;
    for (const auto& [key, book] : m_document->books()) {
        if (book->getSelectedGroups().contains(groupKey))
            titles.append(book->getTitle());
    }
    return titles;
}

void BooksToGroupDragTest::dragsThreeBooksOntoAGroup()
{
    m_desk->select({0, 1, 3});
    const DragProbe probe(*m_desk->groups->viewport());
    QStringList dragged;
    InputStory story;
    addPull(story, *m_desk, 1);
    addWelcome(story, *m_desk, 2);
    story.once(
        "the books", [&] { dragged = m_desk->drag->draggedBooks(); }, [] { return true; });
    addRelease(story, *m_desk);
    verifyStory(story);

    QCOMPARE(probe.formats, QStringList{u"BOOK_ENTRY_FOR_DRAG_N_DROP"_s});
    QVERIFY(probe.data.isEmpty());
    QCOMPARE(probe.actions, Qt::CopyAction);
    QCOMPARE(dragged, QStringList({u"2"_s, u"4"_s, u"1"_s}));
    QCOMPARE(m_desk->drops, 1);
    QCOMPARE(membersOf(u"2"_s), QStringList({u"Villette"_s, u"Emma"_s, u"Ivanhoe"_s}));
    QCOMPARE(membersOf(u"1"_s), QStringList({u"Emma"_s, u"Kim"_s})); // as before
    QCOMPARE(m_list->calls, QStringList{u"setBooksChanged"_s});
    QVERIFY(m_document->isDocumentEdited());
    QCOMPARE(m_desk->groups->litRow(), -1);
    QCOMPARE(m_desk->sidebar->selectedGroupKey(), 0);
    QCOMPARE(m_desk->books->selectedRows(), std::vector<int>({0, 1, 3}));
}

void BooksToGroupDragTest::refusesEveryOtherPlace_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<double>("below"); // rows below the row's top
    QTest::newRow("the library") << 0 << 0.5;
    QTest::newRow("between two groups") << 2 << 0.0;
    QTest::newRow("below the groups") << 2 << 3.0;
}

void BooksToGroupDragTest::refusesEveryOtherPlace()
{
    QFETCH(const int, row);
    QFETCH(const double, below);
    InputStory story;
    addPull(story, *m_desk, 0);
    addWelcome(story, *m_desk, 1);
    addRefusal(story, *m_desk, [this, row, below] {
        return m_desk->groupPlace(row, static_cast<int>(below * m_desk->groupRowHeight()));
    });
    addRelease(story, *m_desk);
    verifyStory(story);
    QCOMPARE(m_desk->drops, 0);
    QVERIFY(!m_document->isDocumentEdited());
}

void BooksToGroupDragTest::refusesWhatComesFromElsewhere()
{
    const QWidget otherTable;
    m_desk->groups->setDropSource(otherTable);
    InputStory story;
    addPull(story, *m_desk, 0);
    addRefusal(
        story, *m_desk, [this] { return m_desk->groupPlace(1, m_desk->groupRowHeight() / 2); });
    addRelease(story, *m_desk);
    verifyStory(story);
    QCOMPARE(m_desk->drops, 0);
}

void BooksToGroupDragTest::dropsNothingDuringAQuestion_data()
{
    QTest::addColumn<bool>("byASheet");
    QTest::newRow("a sheet") << true;
    QTest::newRow("a wait") << false;
}

void BooksToGroupDragTest::dropsNothingDuringAQuestion()
{
    QFETCH(const bool, byASheet);
    QDialog sheet(&m_desk->window);
    sheet.setGeometry(1500, 900, 200, 100);
    std::optional<Waiting> waiting;
    InputStory story;
    addPull(story, *m_desk, 0);
    addWelcome(story, *m_desk, 1);
    story.once(
        "the question",
        [&] {
            if (byASheet)
                sheet.open();
            else
                waiting.emplace();
        },
        [] { return true; });
    addRelease(story, *m_desk);
    verifyStory(story);
    QCOMPARE(m_desk->drops, 0);
    QVERIFY(!m_document->isDocumentEdited());
}

void BooksToGroupDragTest::skipsABookThatIsDeletedMeanwhile()
{
    m_desk->select({0, 3});
    InputStory story;
    addPull(story, *m_desk, 0);
    addWelcome(story, *m_desk, 2);
    story.once(
        "a book goes",
        [&] {
            m_desk->model->beginReload();
            m_document->deleteBook(u"2"_s);
            m_desk->engine.loadBookKeys();
            m_desk->model->endReload();
        },
        [] { return true; });
    addRelease(story, *m_desk);
    verifyStory(story);
    QCOMPARE(membersOf(u"2"_s), QStringList{u"Villette"_s});
}

QTEST_MAIN(BooksToGroupDragTest)
#include "BooksToGroupDragTest.moc"
