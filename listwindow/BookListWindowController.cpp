#include "listwindow/BookListWindowController.h"

#include "document/BookEditorWindow.h"
#include "document/BookListDocument.h"
#include "listwindow/BookDrag.h"
#include "listwindow/BookExchange.h"
#include "listwindow/BookPrinting.h"
#include "listwindow/BookSelection.h"
#include "listwindow/BookTableModel.h"
#include "listwindow/BookTableView.h"
#include "listwindow/ColumnLayout.h"
#include "listwindow/CommandActions.h"
#include "listwindow/CommandToolbar.h"
#include "listwindow/CustomizeListController.h"
#include "listwindow/CustomizeToolbarDialog.h"
#include "listwindow/EmptyList.h"
#include "listwindow/engine/BookOrder.h"
#include "listwindow/FilterBar.h"
#include "listwindow/GroupSidebar.h"
#include "listwindow/HeaderMenu.h"
#include "listwindow/PaneLayout.h"
#include "listwindow/SingleLineDelegate.h"
#include "listwindow/ToolbarConfiguration.h"
#include "listwindow/ui_BookListWindow.h"
#include "platform/widgets/Sheets.h"
#include "platform/widgets/Waiting.h"

#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const QString searchItem = u"search"_s; // of the toolbar
constexpr int rowPadding = 8; // above and below a row's text together
constexpr int statusMargin = 3;

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
    , m_services(std::move(services))
    , m_engine(document)
    , m_commands(document, m_services, *window(), [this] { return selectedBookKeys(); })
{
    m_ui->setupUi(window());
    // The first size is a wish: on a small screen the window starts no larger than that.
    window()->resize(window()->size().boundedTo(window()->screen()->availableSize()));
    updateTitle();
    m_engine.filter().m_nSelectedFilter = ColumnKey::AuthorAndTitle;
    buildBookTable();
    buildSidebar();
    buildFileCommands();
    buildToolbar();
    sharePanes(panes());
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
    m_bookTable->setContextMenuPolicy(Qt::CustomContextMenu);
    m_bookTable->verticalHeader()->hide();
    m_bookTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_bookTable->verticalHeader()->setDefaultSectionSize(rowHeight(*m_bookTable));
    m_columns = std::make_unique<ColumnLayout>(*m_bookTable, *m_bookModel, m_document);
    m_headerMenu =
        std::make_unique<HeaderMenu>(*m_bookTable->horizontalHeader(), *m_bookModel, m_document);
    m_bookDrag = std::make_unique<BookDrag>(*m_bookTable, getDisplayedBooks());
    m_emptyList = new EmptyList;
    m_ui->m_idListPages->addWidget(m_emptyList);
    m_idStatusText = new QLabel;
    m_idStatusText->setObjectName("m_idStatusText"_L1);
    m_idStatusText->setMargin(statusMargin);
    m_ui->m_idStatusBar->addWidget(m_idStatusText);
}

void BookListWindowController::buildSidebar()
{
    GroupTableView& table = *m_ui->m_idGroupTable;
    table.verticalHeader()->setDefaultSectionSize(rowHeight(*m_bookTable));
    table.setDropSource(*m_bookTable);
    m_sidebar = std::make_unique<GroupSidebar>(table, m_document);
    m_groupCommands = std::make_unique<GroupCommands>(m_document, m_services.alerts, *window(),
        *m_sidebar, [this] { return selectedBookKeys(); });
}

void BookListWindowController::buildFileCommands()
{
    m_exchange = std::make_unique<BookExchange>(m_document, m_services, *window(), m_engine);
    m_printing = std::make_unique<BookPrinting>(
        m_document, *window(), *m_bookTable, getDisplayedBooks(), m_services.alerts);
}

void BookListWindowController::buildToolbar()
{
    m_actions = std::make_unique<CommandActions>(*m_bookTable);
    m_filterBar = new FilterBar(m_engine.filter(), m_document.getListColumns());
    m_toolbar = new CommandToolbar(*m_actions, m_services.toolbar, *m_filterBar, window());
    window()->addToolBar(m_toolbar);
    window()->setContextMenuPolicy(Qt::NoContextMenu); // the toolkit's could hide the toolbar
}

void BookListWindowController::windowDidLoad()
{
    m_columns->setupInitialColumns();
    BookListWindowController::initFilterDropDown();
    connectRooms();
    connectCommands();
    m_sidebar->populateGroups();
    m_sidebar->refreshGroupList();
    BookListWindowController::refresh();
    m_document.clearChangeCount();
    connect(&m_startupTimer, &QTimer::timeout, this, &BookListWindowController::startupTimer);
    m_startupTimer.start(startupTimerMilliseconds);
}

void BookListWindowController::connectRooms()
{
    connect(m_columns.get(), &ColumnLayout::headingClicked, this,
        &BookListWindowController::didClickTableColumn);
    connect(m_columns.get(), &ColumnLayout::changedByUser, this,
        &BookListWindowController::windowLayoutChanged);
    for (const QSplitter* const splitter : {getImageSplitter(), getListSplitter()})
        connect(splitter, &QSplitter::splitterMoved, this,
            &BookListWindowController::windowLayoutChanged);
    connect(m_sidebar.get(), &GroupSidebar::groupSelected, this,
        &BookListWindowController::groupSelected);
    connect(
        m_ui->m_idGroupTable, &GroupTableView::booksDropped, this, [this](const QString& groupKey) {
            m_groupCommands->addBooksToGroup(m_bookDrag->draggedBooks(), groupKey);
        });
    connect(m_bookTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &BookListWindowController::bookListSelectionDidChange);
    connect(&m_commands, &BookCommands::booksDeleted, m_bookTable, &QTableView::clearSelection);
    connect(m_filterBar, &FilterBar::filterChanged, this, [this] { refresh(); });
    connect(m_filterBar, &FilterBar::left, this, [this] { m_bookTable->setFocus(); });
    connect(m_filterBar, &FilterBar::labelChanged, m_toolbar, &CommandToolbar::setSearchLabel);
    connect(&m_services.toolbar, &ToolbarConfiguration::changed, this, [this] {
        // A filter that nobody sees must not hide books.
        if (!m_services.toolbar.items().contains(searchItem) && m_filterBar->isFiltering())
            m_filterBar->clear();
    });
}

void BookListWindowController::connectCommands()
{
    connect(m_actions.get(), &CommandActions::triggered, this, &BookListWindowController::perform);
    m_actions->setGroupChoices([this] {
        std::vector<GroupChoice> choices;
        for (const GroupEntry* const group : m_document.getGroups().byName())
            choices.push_back({group->getKey(), group->getGroupName()});
        return choices;
    });
    connect(
        m_actions.get(), &CommandActions::addToGroupChosen, this, [this](const QString& groupKey) {
            if (takesCommands())
                m_groupCommands->addToGroup(groupKey);
        });
    connect(m_bookTable, &BookTableView::rowDoubleClicked, this,
        [this] { perform(CommandId::EditBook); });
    connect(m_bookTable, &QWidget::customContextMenuRequested, this,
        &BookListWindowController::showBookMenu);
    connect(m_ui->m_idGroupTable, &GroupTableView::contextMenuRequested, this,
        [this](QPoint place, bool isOnGroup) { m_actions->groupMenu(!isOnGroup).popup(place); });
    connect(m_headerMenu.get(), &HeaderMenu::customizeListRequested, this,
        [this] { perform(CommandId::CustomizeList); });
    connect(m_emptyList, &EmptyList::addBook, this, [this] { perform(CommandId::AddBook); });
    connect(m_emptyList, &EmptyList::clearFilter, this, [this] {
        perform(CommandId::ClearFilter);
        m_bookTable->setFocus(); // the button that had it is gone
    });
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
        restoreLayout(panes(), m_document);
    m_bShowWindowCalled = true;
    WindowController::showWindow();
    if (isFirstCall)
        m_bookTable->setFocus();
    // Only a window on screen knows how wide its table is; and the table itself does not know while
    // the text for an empty collection stands in its place.
    if (isFirstCall && !m_document.isLoadeFromFile())
        m_columns->shareWidthEvenly(m_ui->m_idListPages->width());
}

WindowLayout BookListWindowController::currentLayout()
{
    return layoutOf(panes(), m_document);
}

WindowPanes BookListWindowController::panes() const
{
    return {*window(), *getImageSplitter(), *getListSplitter()};
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
    m_filterBar->initFilterDropDown();
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
    updateCommands();
    m_document.setBooksChanged();
    if (selectionMoved || m_engine.filter().m_nSelectedFilter == ColumnKey::Groups)
        refresh();
}

// Commands

void BookListWindowController::addFileCommands(QMenu& fileMenu)
{
    m_actions->addFileCommands(fileMenu);
}

void BookListWindowController::addCommandMenus(QMenuBar& menuBar)
{
    m_actions->addMenus(menuBar);
}

void BookListWindowController::addNewBook(QRect frame)
{
    m_commands.addNewBook(frame);
}

void BookListWindowController::perform(CommandId id)
{
    if (!takesCommands())
        return;
    endGroupNameEditting();
    switch (id) {
    case CommandId::AddBook:
        return m_commands.clickedAdd();
    case CommandId::EditBook:
        return m_commands.clickedEdit();
    case CommandId::DeleteBook:
        return m_commands.clickedDelete();
    case CommandId::RemoveFromGroup:
        return m_groupCommands->clickedRemoveFromGroup();
    case CommandId::ScaleAllImages:
        return m_commands.clickedScaleAllImages();
    case CommandId::RemoveAllImages:
        return m_commands.clickedRemoveAllImages();
    case CommandId::AddGroup:
        return m_groupCommands->clickedAddGroup();
    case CommandId::RenameGroup:
        return m_groupCommands->clickedRenameGroup();
    case CommandId::DeleteGroup:
        return m_groupCommands->clickedDeleteGroup();
    case CommandId::CustomizeGroups:
        return m_groupCommands->clickedCustomizeGroups();
    case CommandId::CustomizeList:
        return clickedCustomizeList();
    case CommandId::CustomizeToolbar:
        return clickedCustomizeToolbar();
    case CommandId::Find:
        return find();
    case CommandId::ClearFilter:
        return m_filterBar->clear();
    case CommandId::ImportXML:
        return m_exchange->importXML();
    case CommandId::ExportXML:
        return m_exchange->exportXML();
    case CommandId::ExportCSV:
        return m_exchange->exportCSV();
    case CommandId::PrintPreview:
        return m_printing->showPreview();
    case CommandId::Print:
        return m_printing->printDocument();
    }
}

void BookListWindowController::printDocument()
{
    if (!takesCommands())
        return;
    bringToFront(); // editors ask for it, too: the sheet is to be seen
    perform(CommandId::Print);
}

/// Commands also come from where no window can keep them out: the desktop's own menus, a screen
/// reader.
bool BookListWindowController::takesCommands() const
{
    return !Waiting::isWaiting() && !hasOpenSheet(*window());
}

void BookListWindowController::find()
{
    // Who looks for the search wants it in the toolbar again.
    if (QStringList items = m_services.toolbar.items(); !items.contains(searchItem)) {
        items.append(searchItem);
        m_services.toolbar.setItems(items);
    }
    m_filterBar->focusText();
}

void BookListWindowController::clickedCustomizeList()
{
    m_customizeListController =
        new CustomizeListController(*window(), m_document, m_document.getListColumns());
}

void BookListWindowController::clickedCustomizeToolbar()
{
    (new CustomizeToolbarDialog(m_services.toolbar, window()))->open();
}

void BookListWindowController::showBookMenu(QPoint place)
{
    if (selectedRow(*m_bookTable) >= 0)
        m_actions->bookMenu().popup(m_bookTable->viewport()->mapToGlobal(place));
}

void BookListWindowController::updateCommands()
{
    m_actions->update({selectedRow(*m_bookTable) >= 0, m_sidebar->selectedGroupKey() > 0});
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
    KeptSelection selection(*m_bookTable);
    m_bookModel->beginReload();
    m_engine.loadBookKeys();
    m_bookModel->endReload();
    m_ui->m_idListPages->setCurrentIndex(getDisplayedBooks().empty() ? 1 : 0);
    selection.restore(m_bookModel->columnOfKey(m_columns->firstColumnKey()));
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
    if (getDisplayedBooks().empty())
        m_emptyList->showReason(
            emptyReason({m_document.getBookListSize(), m_filterBar->isFiltering()}));
}

QStringList BookListWindowController::selectedBookKeys() const
{
    return selectedKeys(*m_bookTable, getDisplayedBooks());
}

void BookListWindowController::bookListSelectionDidChange()
{
    if (m_isReloading)
        return;
    updateCommands();
    const int row = selectedRow(*m_bookTable);
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
