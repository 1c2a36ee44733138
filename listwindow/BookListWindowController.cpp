#include "listwindow/BookListWindowController.h"

#include "document/BookEditorWindow.h"
#include "document/BookListDocument.h"
#include "listwindow/BookTableModel.h"
#include "listwindow/BookTableView.h"
#include "listwindow/ColumnLayout.h"
#include "listwindow/CommandActions.h"
#include "listwindow/engine/BookOrder.h"
#include "listwindow/GroupSidebar.h"
#include "listwindow/SingleLineDelegate.h"
#include "listwindow/ui_BookListWindow.h"
#include "platform/widgets/ScreenFrames.h"

#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int rowPadding = 8; // above and below a row's text together
constexpr int statusMargin = 3;
constexpr int firstSidebarWidth = 238; // a picture of 218 points and its margins
constexpr int firstPreviewHeight = 330;

QRectF paneFrame(const QSplitter& splitter, int index)
{
    const QWidget* const pane = splitter.widget(index);
    return pane ? QRectF(pane->geometry()) : QRectF();
}

int rowHeight(const QWidget& widget)
{
    return widget.fontMetrics().height() + rowPadding;
}

} // namespace

BookListWindowController::BookListWindowController(
    BookListDocument& document, ListWindowServices services)
    : WindowController(document)
    , m_document(document)
    , m_ui(std::make_unique<Ui::BookListWindow>())
    , m_engine(document)
    , m_commands(document, std::move(services), *window(), [this] { return selectedKeys(); })
{
    m_ui->setupUi(window());
    // The first size is a wish: on a small screen the window starts no larger than that.
    window()->resize(window()->size().boundedTo(window()->screen()->availableSize()));
    updateTitle();
    buildBookTable();
    windowDidLoad();
}

BookListWindowController::~BookListWindowController() = default;

// Building

void BookListWindowController::buildBookTable()
{
    m_bookTable = m_ui->m_idBookTable;
    m_bookModel =
        std::make_unique<BookTableModel>(m_engine.getDisplayedBooks(), m_document.getListColumns());
    m_bookTable->setModel(m_bookModel.get());
    m_bookTable->setItemDelegate(new SingleLineDelegate(m_bookTable));
    m_bookTable->verticalHeader()->hide();
    m_bookTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_bookTable->verticalHeader()->setDefaultSectionSize(rowHeight(*m_bookTable));
    m_ui->m_idGroupTable->verticalHeader()->setDefaultSectionSize(rowHeight(*m_bookTable));
    m_columns = std::make_unique<ColumnLayout>(*m_bookTable, *m_bookModel, m_document);
    m_sidebar = std::make_unique<GroupSidebar>(*m_ui->m_idGroupTable, m_document);

    m_actions = std::make_unique<CommandActions>(*m_bookTable);

    m_emptyText = new QLabel;
    m_emptyText->setObjectName("m_idEmptyText"_L1);
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_emptyText->setWordWrap(true);
    m_emptyText->setForegroundRole(QPalette::PlaceholderText);
    m_emptyText->setBackgroundRole(QPalette::Base);
    m_emptyText->setAutoFillBackground(true);
    m_ui->m_idListPages->addWidget(m_emptyText);
    m_idStatusText = new QLabel;
    m_idStatusText->setObjectName("m_idStatusText"_L1);
    m_idStatusText->setMargin(statusMargin);
    m_ui->m_idStatusBar->addWidget(m_idStatusText);

    m_ui->m_idListSplitter->setStretchFactor(0, 0);
    m_ui->m_idListSplitter->setStretchFactor(1, 1);
    m_ui->m_idImageSplitter->setStretchFactor(0, 1);
    m_ui->m_idImageSplitter->setStretchFactor(1, 0);
    m_ui->m_idListSplitter->setSizes({firstSidebarWidth, window()->width() - firstSidebarWidth});
    m_ui->m_idImageSplitter->setSizes(
        {window()->height() - firstPreviewHeight, firstPreviewHeight});
}

void BookListWindowController::windowDidLoad()
{
    m_columns->setupInitialColumns();
    BookListWindowController::initFilterDropDown();
    connect(m_columns.get(), &ColumnLayout::headingClicked, this,
        &BookListWindowController::didClickTableColumn);
    connect(m_columns.get(), &ColumnLayout::changedByUser, this,
        &BookListWindowController::windowLayoutChanged);
    for (const QSplitter* const splitter : {getImageSplitter(), getListSplitter()})
        connect(splitter, &QSplitter::splitterMoved, this,
            &BookListWindowController::windowLayoutChanged);
    connect(m_sidebar.get(), &GroupSidebar::groupSelected, this,
        &BookListWindowController::groupSelected);
    connect(m_bookTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &BookListWindowController::bookListSelectionDidChange);
    connect(m_actions.get(), &CommandActions::triggered, &m_commands, &BookCommands::perform);
    connect(m_bookTable, &BookTableView::rowDoubleClicked, &m_commands, &BookCommands::clickedEdit);
    connect(&m_commands, &BookCommands::booksDeleted, m_bookTable, &QTableView::clearSelection);
    m_sidebar->populateGroups();
    m_sidebar->refreshGroupList();
    BookListWindowController::refresh();
    m_document.clearChangeCount();
    connect(&m_startupTimer, &QTimer::timeout, this, &BookListWindowController::startupTimer);
    m_startupTimer.start(startupTimerMilliseconds);
}

void BookListWindowController::startupTimer()
{
    if (++m_startupTimerCounter < startupTimerTicks)
        return;
    m_startupTimer.stop();
    m_bDetectUIChanges = true;
}

// Layout

void BookListWindowController::showWindow()
{
    const bool isFirstCall = !m_bShowWindowCalled;
    if (isFirstCall)
        restoreLayout();
    m_bShowWindowCalled = true;
    WindowController::showWindow();
    if (isFirstCall)
        m_bookTable->setFocus();
    // Only a window on screen knows how wide its table is; and the table itself does not know while
    // the text for an empty collection stands in its place.
    if (isFirstCall && !m_document.isLoadeFromFile())
        m_columns->shareWidthEvenly(m_ui->m_idListPages->width());
}

void BookListWindowController::restoreLayout()
{
    const QRectF frame = m_document.getSavedWindowPosition();
    if (frame.width() != 0 && frame.width() >= window()->minimumWidth())
        FrameRestorer::restore(*window(), frame);
    const QRectF above = m_document.getSavedImageSplitterView1Size();
    const QRectF below = m_document.getSavedImageSplitterView2Size();
    if (above.height() != 0 || below.height() != 0)
        getImageSplitter()->setSizes({wholePoint(above.height()), wholePoint(below.height())});
    const QRectF left = m_document.getSavedListSplitterView1Size();
    const QRectF right = m_document.getSavedListSplitterView2Size();
    if (left.height() != 0 || right.height() != 0)
        getListSplitter()->setSizes({wholePoint(left.width()), wholePoint(right.width())});
}

WindowLayout BookListWindowController::currentLayout()
{
    return {currentFrameForFile(*window(), m_document.getSavedWindowPosition()),
        {paneFrame(*getImageSplitter(), 0), paneFrame(*getImageSplitter(), 1)},
        {paneFrame(*getListSplitter(), 0), paneFrame(*getListSplitter(), 1)}};
}

QSplitter* BookListWindowController::getImageSplitter() const
{
    return m_ui->m_idImageSplitter;
}

QSplitter* BookListWindowController::getListSplitter() const
{
    return m_ui->m_idListSplitter;
}

void BookListWindowController::windowLayoutChanged()
{
    if (m_bDetectUIChanges)
        m_document.windowLayoutChanged();
}

// Columns

void BookListWindowController::columnsSelectionChanged()
{
    if (m_columns->columnsSelectionChanged() && m_columns->firstColumnKey() >= 0)
        didClickTableColumn(m_columns->firstColumnKey());
    refresh();
}

void BookListWindowController::updateColumnName(const ColumnEntry& column)
{
    m_columns->updateColumnName(column);
    refresh();
    for (const auto& window : m_document.windowControllers()) {
        if (auto* const editor = dynamic_cast<BookEditorWindow*>(window.get()))
            editor->updateColumnName();
    }
}

void BookListWindowController::initFilterDropDown()
{
    // The window offers no choice of a filter field whose names could have changed.
}

void BookListWindowController::updateCurrentColumnInfo()
{
    m_columns->updateCurrentColumnInfo();
}

void BookListWindowController::didClickTableColumn(qint32 columnKey)
{
    const qint32 sortField = m_document.getSortField();
    const bool isSorted = SortField::of(sortField).columnKey == columnKey;
    const bool turnsDescending = isSorted && sortField % 2 == 0;
    m_document.setSortField(columnKey + (turnsDescending ? 1 : 0));
    windowLayoutChanged();
    refresh();
}

// Groups

void BookListWindowController::groupSelected(qint32 groupKey)
{
    m_engine.filter().m_nSelectedGroupKey = groupKey;
    m_bookTable->clearSelection();
    refresh();
}

void BookListWindowController::groupsChanged()
{
    const bool selectionMoved = m_sidebar->groupsChanged();
    m_engine.filter().m_nSelectedGroupKey = m_sidebar->selectedGroupKey();
    m_document.setBooksChanged();
    if (selectionMoved || m_engine.filter().m_nSelectedFilter == ColumnKey::Groups)
        refresh();
}

// Commands

void BookListWindowController::addCommandMenus(QMenuBar& menuBar)
{
    m_actions->addMenus(menuBar);
}

void BookListWindowController::addNewBook(QRect frame)
{
    m_commands.addNewBook(frame);
}

void BookListWindowController::updateCommands()
{
    m_actions->update({selectedRow() >= 0});
}

void BookListWindowController::endGroupNameEditting()
{
    m_sidebar->endGroupNameEditting();
}

// The list

void BookListWindowController::setBooksChanged()
{
    bookListSelectionDidChange();
    m_engine.setBooksChanged();
}

void BookListWindowController::refresh()
{
    m_columns->updateSortStatus();
    reloadTable();
    showStatus();
    bookListSelectionDidChange();
}

void BookListWindowController::reloadTable()
{
    const QScopedValueRollback reloading(m_isReloading, true);
    QItemSelectionModel& selection = *m_bookTable->selectionModel();
    // Selected rows stay selected by their place in the list.
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : selection.selection())
        ranges.emplace_back(range.top(), range.bottom());
    const int oldRow = selectedRow();
    const int scrolledTo = m_bookTable->verticalScrollBar()->value();
    const int scrolledRight = m_bookTable->horizontalScrollBar()->value();

    m_bookModel->beginReload();
    m_engine.loadBookKeys();
    m_bookModel->endReload();

    const int lastRow = m_bookModel->rowCount() - 1;
    m_ui->m_idListPages->setCurrentIndex(lastRow >= 0 ? 0 : 1);
    if (lastRow < 0)
        return;
    QItemSelection kept;
    const int lastColumn = m_bookModel->columnCount() - 1;
    const auto add = [&](int top, int bottom) {
        kept.select(m_bookModel->index(top, 0), m_bookModel->index(bottom, lastColumn));
    };
    const int row = std::clamp(oldRow, 0, lastRow);
    if (oldRow < 0 || oldRow > lastRow) {
        add(row, row);
    } else {
        for (const auto& [top, bottom] : ranges) {
            if (top <= lastRow)
                add(top, std::min(bottom, lastRow));
        }
    }
    selection.setCurrentIndex(m_bookModel->index(row, 0), QItemSelectionModel::NoUpdate);
    selection.select(kept, QItemSelectionModel::ClearAndSelect);
    m_bookTable->verticalScrollBar()->setValue(scrolledTo);
    // A row that is selected in another one's place must be seen.
    if (row != oldRow) {
        const int column = m_bookModel->columnOfKey(m_columns->firstColumnKey());
        m_bookTable->scrollTo(m_bookModel->index(row, column));
    }
    m_bookTable->horizontalScrollBar()->setValue(scrolledRight);
}

QString BookListWindowController::statusText() const
{
    return tr("%1 of %2 displayed")
        .arg(getDisplayedBooks().size())
        .arg(m_document.getBookListSize());
}

void BookListWindowController::showStatus()
{
    m_idStatusText->setText(statusText());
    m_emptyText->setText(m_document.getBookListSize() == 0
            ? tr("There are no books in this collection yet.")
            : tr("There are no books in this group."));
}

int BookListWindowController::selectedRow() const
{
    const QItemSelectionModel& selection = *m_bookTable->selectionModel();
    const int current = m_bookTable->currentIndex().row();
    if (current >= 0 && selection.isRowSelected(current, {}))
        return current;
    int first = -1;
    for (const QItemSelectionRange& range : selection.selection())
        first = first < 0 ? range.top() : std::min(first, range.top());
    return first;
}

QStringList BookListWindowController::selectedKeys() const
{
    QStringList keys;
    const std::vector<BookEntry*>& books = getDisplayedBooks();
    const int first = selectedRow();
    if (first >= 0)
        keys.append(books.at(static_cast<std::size_t>(first))->getKey());
    QItemSelection selection = m_bookTable->selectionModel()->selection();
    std::ranges::sort(selection, {}, [](const QItemSelectionRange& range) { return range.top(); });
    for (const QItemSelectionRange& range : std::as_const(selection)) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (row != first)
                keys.append(books.at(static_cast<std::size_t>(row))->getKey());
        }
    }
    return keys;
}

void BookListWindowController::bookListSelectionDidChange()
{
    if (m_isReloading)
        return;
    updateCommands();
    const int row = selectedRow();
    const BookEntry* const book =
        row >= 0 ? getDisplayedBooks().at(static_cast<std::size_t>(row)) : nullptr;
    const quint64 stamp = book ? book->changeStamp() : 0;
    // Decoding a picture takes longer than finding a book; most keys leave the same one selected.
    if (stamp == m_shownStamp)
        return;
    m_shownStamp = stamp;
    m_ui->m_idImageView->setImage(book ? book->getFirstImage() : QImage());
}

} // namespace tomely
