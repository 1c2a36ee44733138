#include "listwindow/HeaderMenu.h"

#include "document/BookListDocument.h"
#include "document/DisplayNames.h"
#include "listwindow/BookTableModel.h"
#include "listwindow/ColumnLayout.h"

#include "platform/widgets/Waiting.h"

#include <QHeaderView>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int longestNameInCharacters = 40;

/// A column's name as a menu can show it: on one line, not too long, its ampersands no mnemonics.
QString menuText(const QString& name, const QFontMetrics& font)
{
    return font
        .elidedText(
            name.simplified(), Qt::ElideRight, font.averageCharWidth() * longestNameInCharacters)
        .replace(u'&', "&&"_L1);
}

} // namespace

HeaderMenu::HeaderMenu(QHeaderView& header, const BookTableModel& model, BookListDocument& document)
    : m_header(header)
    , m_model(model)
    , m_document(document)
    , m_menu(*new QMenu(&header))
{
    m_menu.setObjectName("m_idHeaderMenu"_L1);
    m_header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&m_header, &QHeaderView::customContextMenuRequested, this, &HeaderMenu::popUp);
}

void HeaderMenu::popUp(QPoint position)
{
    m_menu.clear();
    const int column = m_header.logicalIndexAt(position);
    if (column >= 0)
        addHideColumn(column);
    QAction* const columns = m_menu.addAction(tr("&Columns…"));
    columns->setObjectName("customizeList"_L1);
    connect(columns, &QAction::triggered, this, &HeaderMenu::customizeListRequested);
    m_menu.popup(m_header.viewport()->mapToGlobal(position));
}

void HeaderMenu::addHideColumn(int column)
{
    const ColumnEntry& record = m_model.record(column);
    const QString name = menuText(displayName(record), m_menu.fontMetrics());
    QAction* const hide =
        m_menu.addAction(name.isEmpty() ? tr("&Hide This Column") : tr("&Hide '%1'").arg(name));
    hide->setObjectName("hideColumn"_L1);
    connect(hide, &QAction::triggered, this, [this, key = record.getKey()] { hideColumn(key); });
}

void HeaderMenu::hideColumn(const QString& key)
{
    // The menu may be answered while the program waits for something.
    if (Waiting::isWaiting())
        return;
    m_document.getListColumns().find(key)->second.setPosition(ColumnLayout::positionToRemove);
    m_document.columnsSelectionChanged();
}

} // namespace tomely
