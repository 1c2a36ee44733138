#include "listwindow/CustomizeListController.h"

#include "document/BookListDocument.h"
#include "document/DisplayNames.h"
#include "document/widgets/CheckCellDelegate.h"
#include "listwindow/ColumnLayout.h"
#include "listwindow/engine/ColumnComparator.h"
#include "listwindow/ui_CustomizeList.h"
#include "platform/widgets/ScreenFrames.h"
#include "platform/widgets/Waiting.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace tomely {

namespace {

constexpr int keyRole = Qt::UserRole;

// The table's least height and its first one, and how much of a very long name it makes room for.
constexpr int fewestRows = 6;
constexpr int firstRows = 16;
constexpr int longestNameInCharacters = 40;

} // namespace

CustomizeListController::CustomizeListController(
    QWidget& parentWindow, BookListDocument& document, ColumnDictionary& selectedColumns)
    : QDialog(&parentWindow)
    , m_document(document)
    , m_dSelectedColumns_Original(selectedColumns)
    , m_ui(std::make_unique<Ui::CustomizeList>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    initColumns();
    windowDidLoad();
    open();
}

CustomizeListController::~CustomizeListController() = default;

void CustomizeListController::initColumns()
{
    m_aColumns = sortedColumns(m_dSelectedColumns_Original);
    for (const ColumnEntry* const column : m_aColumns) {
        if (column->isShown())
            m_dSelectedColumns.insert(column->getKey());
    }
}

void CustomizeListController::windowDidLoad()
{
    // A column's box and its name are one item, which screen readers tell together.
    for (std::size_t row = 0; row < m_aColumns.size(); ++row)
        new QListWidgetItem(m_ui->m_idTableView); // owned by the table
    m_ui->m_idTableView->setItemDelegate(new CheckCellDelegate(m_ui->m_idTableView));
    reloadRows();
    m_ui->m_idTableView->setCurrentRow(0);
    m_ui->m_idTableView->setFocus();
    connect(m_ui->m_idTableView, &QListWidget::itemChanged, this,
        &CustomizeListController::checkboxChanged);
    connect(m_ui->m_OKButton, &QPushButton::clicked, this, &CustomizeListController::ok);
    connect(m_ui->m_cancelButton, &QPushButton::clicked, this, &CustomizeListController::cancel);
    makeRoomForNames();
    adjustWindowSize();
}

void CustomizeListController::reloadRows()
{
    const QSignalBlocker blocker(m_ui->m_idTableView);
    int row = 0;
    for (const ColumnEntry* const column : m_aColumns) {
        QListWidgetItem& item = *m_ui->m_idTableView->item(row++);
        const bool isTicked = m_dSelectedColumns.contains(column->getKey());
        item.setText(displaySelectionName(*column));
        item.setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
        item.setData(keyRole, column->getKey());
    }
}

void CustomizeListController::makeRoomForNames()
{
    QListWidget& table = *m_ui->m_idTableView;
    const int longestName = fontMetrics().averageCharWidth() * longestNameInCharacters;
    const int borders = 2 * table.frameWidth();
    const int rowHeight = table.sizeHintForRow(0);
    table.setMinimumSize(std::min(table.sizeHintForColumn(0), longestName) + borders
            + table.verticalScrollBar()->sizeHint().width(),
        fewestRows * rowHeight + borders);
    layout()->activate(); // from here on the sheet knows its own least size
    const QSize firstSize = minimumSize() + QSize(0, (firstRows - fewestRows) * rowHeight);
    resize(firstSize.boundedTo(screen()->availableSize()));
}

void CustomizeListController::adjustWindowSize()
{
    const QSizeF saved = m_document.getCustomizeListControllerWindowPosition().size();
    const bool wasSaved = saved.width() >= minimumWidth(); // 0 or less than that is as designed
    if (!wasSaved)
        return;
    // A sheet stands in the middle of its window, wherever it stood when it was saved.
    QRect frame(QPoint(), QSize(wholePoint(saved.width()), wholePoint(saved.height())));
    frame.moveCenter(parentWidget()->frameGeometry().center());
    FrameRestorer::restore(
        *this, frameForFile(frame, QGuiApplication::primaryScreen()->geometry()));
}

void CustomizeListController::checkboxChanged(QListWidgetItem* row)
{
    // The toolkit leaves the current row where it was when a box is clicked, and Space would then
    // tick another one.
    m_ui->m_idTableView->setCurrentItem(row);
    const QString key = row->data(keyRole).toString();
    if (row->checkState() == Qt::Checked)
        m_dSelectedColumns.insert(key);
    else
        m_dSelectedColumns.remove(key);
}

void CustomizeListController::windowDidBecomeKey()
{
    // An editor may have renamed a custom field meanwhile.
    QListWidget& table = *m_ui->m_idTableView;
    const QListWidgetItem* const item = table.currentItem();
    const QString currentKey = item ? item->data(keyRole).toString() : QString();
    m_aColumns = sortedColumns(m_dSelectedColumns_Original);
    reloadRows();
    const auto current = std::ranges::find(m_aColumns, currentKey, &ColumnEntry::getKey);
    if (current != m_aColumns.end())
        table.setCurrentRow(static_cast<int>(current - m_aColumns.begin()));
}

void CustomizeListController::ok()
{
    if (Waiting::isWaiting())
        return;
    for (auto& [key, record] : m_dSelectedColumns_Original) {
        const bool isTicked = m_dSelectedColumns.contains(key);
        if (isTicked && !record.isShown())
            record.setPosition(ColumnLayout::positionToAdd);
        else if (!isTicked && record.isShown())
            record.setPosition(ColumnLayout::positionToRemove);
    }
    m_document.columnsSelectionChanged();
    accept();
}

void CustomizeListController::cancel()
{
    reject();
}

void CustomizeListController::done(int result)
{
    m_document.setCustomizeListControllerWindowPosition(
        currentFrameForFile(*this, m_document.getCustomizeListControllerWindowPosition()));
    QDialog::done(result);
}

bool CustomizeListController::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        windowDidBecomeKey();
    return QDialog::event(event);
}

} // namespace tomely
