#include "tests/app/ProgramOnScreen.h"

#include "listwindow/BookTableModel.h"
#include "listwindow/GroupTableModel.h"
#include "platform/PreferenceKeys.h"
#include "tests/support/SmallCollection.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

void drag(QWidget& widget, QPoint from, QPoint to)
{
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(&widget, (from + to) / 2);
    QTest::mouseMove(&widget, to);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}

QPushButton* buttonOf(const QMessageBox& box, int button)
{
    return box.findChild<QPushButton*>(u"alertButton%1"_s.arg(button));
}

} // namespace

// One window

CollectionWindow::CollectionWindow(Document& document)
    : m_document(dynamic_cast<BookListDocument&>(document))
    , m_controller(dynamic_cast<BookListWindowController&>(*document.mainWindow()))
{
}

QMainWindow& CollectionWindow::window() const
{
    return *m_controller.window();
}

QTableView& CollectionWindow::books() const
{
    return find<QTableView>(u"m_idBookTable"_s);
}

QTableView& CollectionWindow::groups() const
{
    return find<QTableView>(u"m_idGroupTable"_s);
}

QHeaderView& CollectionWindow::header() const
{
    return *books().horizontalHeader();
}

QString CollectionWindow::status() const
{
    return find<QLabel>(u"m_idStatusText"_s).text();
}

QStringList CollectionWindow::cells(qint32 columnKey, int count) const
{
    QStringList texts;
    for (int row = 0; row < std::min(count, books().model()->rowCount()); ++row)
        texts.append(books().model()->index(row, columnOf(columnKey)).data().toString());
    return texts;
}

QStringList CollectionWindow::groupNames() const
{
    QStringList names;
    const QAbstractItemModel& model = *groups().model();
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row, GroupTableModel::NameColumn).data().toString());
    return names;
}

QString CollectionWindow::selectedGroup() const
{
    const QModelIndexList rows =
        groups().selectionModel()->selectedRows(GroupTableModel::NameColumn);
    return rows.size() == 1 ? rows.first().data().toString() : u"not one group"_s;
}

void CollectionWindow::clickGroup(const QString& name) const
{
    const QModelIndex index = groups().model()->index(
        static_cast<int>(groupNames().indexOf(name)), GroupTableModel::NameColumn);
    QTest::mouseClick(groups().viewport(), Qt::LeftButton, {}, groups().visualRect(index).center());
}

QLineEdit* CollectionWindow::startRenaming() const
{
    QTest::keyClick(&groups(), Qt::Key_F2);
    return nameField();
}

QLineEdit* CollectionWindow::nameField() const
{
    for (auto* const field : groups().viewport()->findChildren<QLineEdit*>()) {
        if (field->isVisible())
            return field;
    }
    return nullptr;
}

QList<qint32> CollectionWindow::columnKeys() const
{
    const auto& model = static_cast<const BookTableModel&>(*books().model());
    QList<qint32> keys;
    for (int visual = 0; visual < header().count(); ++visual) {
        const int column = header().logicalIndex(visual);
        if (!header().isSectionHidden(column))
            keys.append(model.keyOfColumn(column));
    }
    return keys;
}

int CollectionWindow::columnOf(qint32 columnKey) const
{
    return static_cast<const BookTableModel&>(*books().model()).columnOfKey(columnKey);
}

void CollectionWindow::clickHeading(qint32 columnKey) const
{
    const int column = columnOf(columnKey);
    QTest::mouseClick(header().viewport(), Qt::LeftButton, {},
        QPoint(header().sectionViewportPosition(column) + header().sectionSize(column) / 2,
            header().height() / 2));
}

void CollectionWindow::dragColumnEdge(qint32 columnKey, int distance) const
{
    const int column = columnOf(columnKey);
    const QPoint edge(header().sectionViewportPosition(column) + header().sectionSize(column) - 1,
        header().height() / 2);
    drag(*header().viewport(), edge, edge + QPoint(distance, 0));
}

void CollectionWindow::dragHandle(QSplitter& splitter, int distance) const
{
    // In one step: the handle moves along, and with it what its points mean.
    QWidget& handle = *splitter.handle(1);
    const QPoint from = handle.rect().center();
    const bool isSideways = splitter.orientation() == Qt::Horizontal;
    const QPoint to = from + (isSideways ? QPoint(distance, 0) : QPoint(0, distance));
    QTest::mousePress(&handle, Qt::LeftButton, {}, from);
    QTest::mouseMove(&handle, to);
    QTest::mouseRelease(&handle, Qt::LeftButton, {}, from);
}

bool CollectionWindow::settle() const
{
    const qint32 key = columnKeys().first();
    const bool settled = QTest::qWaitFor([this, key] {
        dragColumnEdge(key, 1);
        dragColumnEdge(key, -1);
        return m_document.isDocumentEdited();
    });
    m_document.clearChangeCount();
    return settled;
}

void CollectionWindow::choose(const QString& action) const
{
    for (const QMenu* const menu : window().findChildren<QMenu*>()) {
        for (QAction* const item : menu->actions()) {
            if (item->objectName() == action)
                return item->trigger();
        }
    }
    qFatal("no menu has the item %s", qPrintable(action));
}

// An editor

QMainWindow& EditorWindow::window() const
{
    return *m_controller->window();
}

void EditorWindow::type(const QString& name, const QString& text) const
{
    auto& control = find<QWidget>(name);
    control.setFocus(Qt::MouseFocusReason);
    QWidget* const field = window().focusWidget(); // of a combo box its line
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    for (const QChar& letter : text) {
        if (letter == u'\n')
            QTest::keyClick(field, Qt::Key_Return);
        else
            QTest::keyClicks(field, letter);
    }
}

void EditorWindow::choose(const QString& name, const QString& item) const
{
    auto& control = find<QComboBox>(name);
    control.setFocus(Qt::TabFocusReason);
    const int wanted = control.findText(item);
    QTest::keyClick(&control, Qt::Key_Home);
    for (int steps = 0; control.currentIndex() != wanted && steps < control.count(); ++steps)
        QTest::keyClick(&control, Qt::Key_Down);
}

void EditorWindow::click(const QString& name) const
{
    auto& control = find<QWidget>(name);
    // Not the middle: a check box may be wider than its box and text.
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(10, control.height() / 2));
}

// The program

ProgramOnScreen::ProgramOnScreen(const std::optional<FetchPolicy>& fetchPolicy)
    : application(defaults, alerts, panels, fetchPolicy.value_or(FetchPolicy()))
{
    defaults.setBool(PreferenceKeys::DisableAutoLookup, !fetchPolicy);
}

ProgramOnScreen::~ProgramOnScreen()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString ProgramOnScreen::classics(const QString& name) const
{
    QFile::copy(QStringLiteral(TOMELY_SOURCE_DIR "/samples/Classics.books"), path(name));
    return path(name);
}

QString ProgramOnScreen::smallCollection(const QString& name) const
{
    BookListDocument document;
    samples::addFourBooks(document);
    document.writeToFile(path(name));
    return path(name);
}

CollectionWindow ProgramOnScreen::open(const QString& path)
{
    StartWindow& start = application.startWindow();
    if (start.isVisible() && !QTest::qWaitForWindowActive(&start))
        qWarning("the start window did not become active");
    Document* const document = application.documents().openDocument(path);
    if (!document)
        qFatal("%s could not be opened", qPrintable(path));
    CollectionWindow window(*document);
    if (!QTest::qWaitForWindowActive(&window.window()))
        qWarning("the window did not become active");
    return window;
}

EditorWindow ProgramOnScreen::addBook(const CollectionWindow& window)
{
    QTest::keyClick(&window.books(), Qt::Key_B, Qt::ControlModifier);
    return activeEditor(window);
}

EditorWindow ProgramOnScreen::edit(const CollectionWindow& window, const QString& title)
{
    const int row =
        static_cast<int>(window.cells(0, window.books().model()->rowCount()).indexOf(title));
    const QModelIndex index = window.books().model()->index(row, window.columnOf(0));
    window.books().scrollTo(index);
    const QPoint place = window.books().visualRect(index).center();
    QTest::mouseClick(window.books().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(window.books().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(window.books().viewport(), Qt::LeftButton, {}, place);
    return activeEditor(window);
}

EditorWindow ProgramOnScreen::activeEditor(const CollectionWindow& window)
{
    BookEntryWindowController* active = nullptr;
    const bool found = QTest::qWaitFor([&window, &active] {
        for (const auto& candidate : window.document().windowControllers()) {
            auto* const editor = dynamic_cast<BookEntryWindowController*>(candidate.get());
            if (editor && editor->window()->isActiveWindow())
                active = editor;
        }
        return active != nullptr;
    });
    if (!found)
        qFatal("no editor became active");
    return EditorWindow(*active);
}

CollectionWindow ProgramOnScreen::onlyWindow()
{
    if (openCount() != 1)
        qFatal("%zu collections are open", openCount());
    return CollectionWindow(*application.documents().documents().front());
}

QMessageBox* ProgramOnScreen::alert()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"alert"_s && widget->isVisible())
            return qobject_cast<QMessageBox*>(widget);
    }
    return nullptr;
}

QString ProgramOnScreen::alertText()
{
    const QMessageBox* const box = alert();
    if (!box)
        return u"no alert"_s;
    QTextDocument text;
    text.setHtml(box->informativeText());
    return text.toPlainText();
}

bool ProgramOnScreen::answer(int button)
{
    if (!QTest::qWaitFor([] { return alert() != nullptr; }) || !buttonOf(*alert(), button))
        return false;
    QTest::mouseClick(buttonOf(*alert(), button), Qt::LeftButton);
    return true;
}

std::unique_ptr<QObject> ProgramOnScreen::answerModalLater(int button, QString& text)
{
    auto timer = std::make_unique<QTimer>();
    QObject::connect(
        timer.get(), &QTimer::timeout, timer.get(), [clock = timer.get(), button, &text] {
            if (!alert())
                return;
            clock->stop();
            text = alertText();
            buttonOf(*alert(), button)->click();
        });
    timer->start(1);
    return timer;
}

} // namespace tomely
