#include "document/widgets/GroupManagerController.h"

#include "document/BookListDocument.h"
#include "document/widgets/CheckCellDelegate.h"
#include "document/widgets/GroupManagerRows.h"
#include "document/widgets/ui_GroupManager.h"
#include "platform/widgets/ScreenFrames.h"

#include "platform/widgets/Waiting.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int rowPadding = 8; // above and below a row's text together

} // namespace

GroupManagerController::GroupManagerController(
    QWidget& parentWindow, BookListDocument& document, GroupMembership* selectedGroups)
    : QDialog(&parentWindow)
    , m_BookListDocument(document)
    , m_dSelectedGroups_Original(selectedGroups)
    , m_ui(std::make_unique<Ui::GroupManager>())
    , m_rows(new GroupManagerRows(document.getGroups(), selectedGroups, this))
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    windowDidLoad();
    open();
}

GroupManagerController::~GroupManagerController()
{
    // The typing ends when the window goes, and must not be told to what is no more.
    m_ui->m_idTableView->disconnect(this);
    m_ui->m_idTableView->dropEditing();
}

// Building

void GroupManagerController::windowDidLoad()
{
    GroupNameTable& table = *m_ui->m_idTableView;
    table.setModel(m_rows);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + rowPadding);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setSectionResizeMode(
        GroupManagerRows::CheckColumn, QHeaderView::ResizeToContents);
    table.setItemDelegateForColumn(GroupManagerRows::CheckColumn, new CheckCellDelegate(&table));
    table.setColumnHidden(GroupManagerRows::CheckColumn, !m_dSelectedGroups_Original);
    m_ui->m_idHint->setText(m_dSelectedGroups_Original ? tr("Tick the groups that the book is in.")
                                                       : tr("The groups of this collection."));
    connect(&table, &GroupNameTable::editingEnded, this, &GroupManagerController::noteEndOfEditing);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &GroupManagerController::enableButtons);
    connect(m_rows, &GroupManagerRows::ticked, this, &GroupManagerController::selectARow);
    connect(m_ui->m_idAdd, &QPushButton::clicked, this, &GroupManagerController::addGroup);
    connect(m_ui->m_idDelete, &QPushButton::clicked, this, &GroupManagerController::deleteGroup);
    connect(m_ui->m_idOK, &QPushButton::clicked, this, &GroupManagerController::ok);
    connect(m_ui->m_idCancel, &QPushButton::clicked, this, &GroupManagerController::cancel);
    auto* const deleteKey = new QShortcut(QKeySequence::Delete, &table);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &GroupManagerController::deleteGroup);
    enableButtons();
    adjustWindowSize();
}

void GroupManagerController::adjustWindowSize()
{
    const QRectF content = m_BookListDocument.getGroupListControllerWindowPosition();
    if (wholePoint(content.width()) == 0)
        return;
    // A sheet stands over its window wherever that is, so only the size counts.
    const QSize size(wholePoint(content.width()), wholePoint(content.height()));
    resize(size.boundedTo(screen()->availableSize()));
}

void GroupManagerController::storeWindowPosition()
{
    m_BookListDocument.setGroupListControllerWindowPosition(
        frameForFile(geometry(), QGuiApplication::primaryScreen()->geometry()));
}

bool GroupManagerController::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        windowDidBecomeKey();
    return QDialog::event(event);
}

void GroupManagerController::mousePressEvent(QMouseEvent* event)
{
    forceOutOfEditMode();
    QDialog::mousePressEvent(event);
}

void GroupManagerController::windowDidBecomeKey()
{
    if (BookListWindow* const list = m_BookListDocument.getWindowController())
        list->endGroupNameEditting();
}

// Groups

void GroupManagerController::addGroup()
{
    forceOutOfEditMode();
    GroupEntry group;
    group.setKey(m_BookListDocument.getNextGroupKey());
    m_rows->append(group);
    m_ui->m_idTableView->startEditing(m_rows->rowCount() - 1);
}

void GroupManagerController::deleteGroup()
{
    const QString key = m_rows->keyOfRow(m_ui->m_idTableView->selectedRow());
    forceOutOfEditMode();
    const int row = m_rows->rowOfKey(key);
    // A new group that had no name yet is gone already.
    if (row < 0)
        return;
    m_aDeletedGroups.append(key);
    m_rows->remove(row);
    selectARow(row);
}

void GroupManagerController::selectARow(int row)
{
    const int shown = std::min(row, m_rows->rowCount() - 1);
    if (shown >= 0) {
        forceOutOfEditMode();
        m_ui->m_idTableView->setCurrentIndex(m_rows->index(shown, GroupManagerRows::NameColumn));
        m_ui->m_idTableView->selectRow(shown);
    }
    enableButtons();
}

void GroupManagerController::enableButtons()
{
    m_ui->m_idDelete->setEnabled(m_ui->m_idTableView->selectedRow() >= 0);
}

// Typing a name

void GroupManagerController::noteEndOfEditing(int row)
{
    // The rows move when the end is dealt with: not before the table has closed its editor, and has
    // found the row of the click that may have ended the typing.
    m_editedGroup = m_rows->keyOfRow(row);
    QMetaObject::invokeMethod(
        this, &GroupManagerController::textDidEndEditing, Qt::QueuedConnection);
}

void GroupManagerController::textDidEndEditing()
{
    const int row = m_rows->rowOfKey(std::exchange(m_editedGroup, {}));
    if (row < 0)
        return;
    const QString selected = m_rows->keyOfRow(m_ui->m_idTableView->selectedRow());
    if (m_rows->nameOfRow(row).isEmpty())
        m_rows->remove(row);
    else
        m_rows->sortByName();
    const int selectedRow = m_rows->rowOfKey(selected);
    selectARow(selectedRow >= 0 ? selectedRow : row);
}

void GroupManagerController::forceOutOfEditMode()
{
    m_ui->m_idTableView->endEditing();
    textDidEndEditing();
}

// Closing

void GroupManagerController::ok()
{
    if (Waiting::isWaiting())
        return;
    storeWindowPosition();
    forceOutOfEditMode();
    m_rows->storeGroups(m_aDeletedGroups);
    m_BookListDocument.removeBookGroupReferences(m_aDeletedGroups);
    m_BookListDocument.groupsChanged();
    // Last, so that a group that was ticked and then deleted stays until the next clean-up.
    if (m_dSelectedGroups_Original)
        *m_dSelectedGroups_Original = m_rows->selectedGroups();
    accept();
}

void GroupManagerController::cancel()
{
    reject();
}

void GroupManagerController::reject()
{
    storeWindowPosition();
    m_ui->m_idTableView->dropEditing();
    QDialog::reject();
}

} // namespace tomely
