#include "listwindow/BookDrag.h"

#include "listwindow/BookTableView.h"
#include "model/BookEntry.h"

#include <QDrag>
#include <QLocale>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace tomely {

namespace {

constexpr int titleLetters = 28; // on a line of the card
constexpr qreal padding = 8; // within the card
constexpr qreal badgePadding = 6; // left and right of the number
constexpr qreal corner = 4;
constexpr QPoint besideTheMouse(-12, -8); // so that the group under the mouse can be seen

/// The lines on the card.
QStringList cardLines(const QStringList& titles, qsizetype count, const QFontMetricsF& metrics)
{
    QStringList lines;
    const qreal width = metrics.averageCharWidth() * titleLetters;
    for (const QString& title : titles.first(std::min(titles.size(), bookDragTitles)))
        lines.append(metrics.elidedText(title.simplified(), Qt::ElideRight, width));
    if (count > lines.size())
        lines.append(QStringLiteral("…"));
    return lines;
}

} // namespace

QPixmap bookDragPicture(const QStringList& titles, qsizetype count, const QWidget& look)
{
    const QFontMetricsF metrics(look.font());
    const QStringList lines = cardLines(titles, count, metrics);
    qreal textWidth = metrics.averageCharWidth() * titleLetters / 2;
    for (const QString& line : lines)
        textWidth = std::max(textWidth, metrics.horizontalAdvance(line));

    const QString number = count > 1 ? QLocale().toString(count) : QString();
    const qreal badgeHeight = metrics.height() + 2;
    const qreal badgeWidth =
        std::max(badgeHeight, metrics.horizontalAdvance(number) + 2 * badgePadding);
    const qreal badgeRoom = number.isEmpty() ? 0 : padding + badgeWidth;
    const QRectF card(1, 1, textWidth + badgeRoom + 2 * padding,
        metrics.lineSpacing() * static_cast<qreal>(lines.size()) + 2 * padding);
    // Within the card: desktops without transparency show what is around it as a block.
    const QRectF badge(
        card.right() - padding - badgeWidth, card.top() + padding, badgeWidth, badgeHeight);
    const QSizeF size(std::ceil(card.right() + 1), std::ceil(card.bottom() + 1));

    const qreal scale = look.devicePixelRatioF();
    QPixmap picture((size * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(look.font());
    const auto color = [&look](QPalette::ColorRole role) {
        return look.palette().color(QPalette::Active, role);
    };
    painter.setPen(color(QPalette::Highlight));
    painter.setBrush(color(QPalette::Base));
    painter.drawRoundedRect(card, corner, corner);
    painter.setPen(color(QPalette::Text));
    qreal y = card.top() + padding + metrics.ascent();
    for (const QString& line : lines) {
        painter.drawText(QPointF(card.left() + padding, y), line);
        y += metrics.lineSpacing();
    }
    if (!number.isEmpty()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color(QPalette::Highlight));
        painter.drawRoundedRect(badge, badgeHeight / 2, badgeHeight / 2);
        painter.setPen(color(QPalette::HighlightedText));
        painter.drawText(badge, Qt::AlignCenter, number);
    }
    return picture;
}

BookDrag::BookDrag(BookTableView& table, const std::vector<BookEntry*>& displayedBooks)
    : m_table(table)
    , m_displayedBooks(displayedBooks)
{
    connect(&table, &BookTableView::rowsPulled, this, &BookDrag::writeRows);
}

void BookDrag::writeRows(const std::vector<int>& rows)
{
    QStringList titles;
    m_aDraggedBooks.clear();
    m_aDraggedBooks.reserve(static_cast<qsizetype>(rows.size()));
    for (const int row : rows) {
        const BookEntry& book = *m_displayedBooks.at(static_cast<std::size_t>(row));
        m_aDraggedBooks.append(book.getKey());
        if (titles.size() < bookDragTitles)
            titles.append(book.getTitle());
    }
    auto* const data = new QMimeData; // owned by the drag
    data->setData(bookDragType, {});
    auto* const drag = new QDrag(&m_table); // deleted by the toolkit when it ends
    drag->setMimeData(data);
    drag->setPixmap(bookDragPicture(titles, m_aDraggedBooks.size(), m_table));
    drag->setHotSpot(besideTheMouse);
    // The window may be closed while the drag goes on, which must not take the drag with it.
    drag->setParent(nullptr);
    const QPointer self(this);
    drag->exec(Qt::CopyAction);
    if (self)
        m_aDraggedBooks.clear();
}

} // namespace tomely
