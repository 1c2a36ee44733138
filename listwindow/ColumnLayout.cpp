#include "listwindow/ColumnLayout.h"

#include "document/BookListDocument.h"
#include "listwindow/BookTableModel.h"
#include "listwindow/engine/BookOrder.h"
#include "listwindow/TomelyTableHeaderView.h"
#include "platform/LenientNumbers.h"

#include <QTableView>

#include <algorithm>

namespace tomely {

namespace {

TomelyTableHeaderView& configureTableHeaderBackground(QTableView& table)
{
    auto* const header = new TomelyTableHeaderView(&table);
    header->setSectionsClickable(true);
    header->setSectionsMovable(true);
    header->setFirstSectionMovable(true);
    header->setHighlightSections(false);
    header->setMinimumSectionSize(ColumnLayout::minimumWidth);
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setTextElideMode(Qt::ElideRight);
    table.setHorizontalHeader(header);
    // Only now: the table switches it off for a header that it does not sort by itself.
    header->setSortIndicatorShown(true);
    return *header;
}

} // namespace

ColumnLayout::ColumnLayout(QTableView& table, BookTableModel& model, BookListDocument& document)
    : m_model(model)
    , m_document(document)
    , m_header(configureTableHeaderBackground(table))
{
    connect(
        &m_header, &TomelyTableHeaderView::layoutChangedByUser, this, &ColumnLayout::changedByUser);
    connect(&m_header, &QHeaderView::sectionClicked, this,
        [this](int column) { Q_EMIT headingClicked(leadingInt(m_model.record(column).getKey())); });
}

void ColumnLayout::setupInitialColumns()
{
    for (int column = 0; column < m_model.columnCount(); ++column)
        m_header.hideSection(column);
    int place = 0;
    for (const ColumnEntry* const record : shownColumns(m_document.getListColumns()))
        showColumn(m_model.columnOfRecord(*record), place++, record->getWidth());
    updateCurrentColumnInfo();
}

void ColumnLayout::showColumn(int column, int place, int width)
{
    m_header.showSection(column);
    m_header.moveSection(m_header.visualIndex(column), place);
    m_header.resizeSection(column, width > 0 ? std::max(width, minimumWidth) : defaultWidth);
}

void ColumnLayout::shareWidthEvenly(int available)
{
    const int count = shownCount();
    if (count == 0)
        return;
    const int share = available / count;
    for (int place = 0; place < count; ++place) {
        const bool isLast = place == count - 1;
        m_header.resizeSection(
            m_header.logicalIndex(place), isLast ? available - share * (count - 1) : share);
    }
    updateCurrentColumnInfo();
}

ColumnEntry& ColumnLayout::recordOf(int column)
{
    return m_document.getListColumns().find(m_model.record(column).getKey())->second;
}

int ColumnLayout::shownCount() const
{
    return m_header.count() - m_header.hiddenSectionCount();
}

void ColumnLayout::updateCurrentColumnInfo()
{
    for (auto& [key, record] : m_document.getListColumns()) {
        record.setPosition(ColumnEntry::hidden);
        record.setWidth(0);
    }
    qint32 position = 0;
    for (int visual = 0; visual < m_header.count(); ++visual) {
        const int column = m_header.logicalIndex(visual);
        if (m_header.isSectionHidden(column))
            continue;
        ColumnEntry& record = recordOf(column);
        record.setPosition(position++);
        record.setWidth(m_header.sectionSize(column));
    }
}

bool ColumnLayout::columnsSelectionChanged()
{
    const qint32 sortColumn = SortField::of(m_document.getSortField()).columnKey;
    bool hidSortColumn = false;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        ColumnEntry& record = recordOf(column);
        if (record.getPosition() == positionToAdd) {
            showColumn(column, m_header.count() - 1, 0);
            record.setPosition(shownCount() - 1);
        } else if (record.getPosition() == positionToRemove) {
            m_header.hideSection(column);
            record.setPosition(ColumnEntry::hidden);
            hidSortColumn = hidSortColumn || m_model.keyOfColumn(column) == sortColumn;
        }
    }
    return hidSortColumn;
}

void ColumnLayout::updateColumnName(const ColumnEntry& column)
{
    m_model.columnRenamed(m_model.columnOfRecord(column));
}

void ColumnLayout::updateSortStatus()
{
    const SortField sort = SortField::of(m_document.getSortField());
    const int column = m_model.columnOfKey(sort.columnKey);
    const bool isShown = column >= 0 && !m_header.isSectionHidden(column);
    m_header.setSortIndicator(
        isShown ? column : -1, sort.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

qint32 ColumnLayout::firstColumnKey() const
{
    for (int visual = 0; visual < m_header.count(); ++visual) {
        const int column = m_header.logicalIndex(visual);
        if (!m_header.isSectionHidden(column))
            return m_model.keyOfColumn(column);
    }
    return -1;
}

} // namespace tomely
