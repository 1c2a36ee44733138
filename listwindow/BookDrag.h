// Books being dragged out of the list: which ones, and the card that shows them under the mouse.
// The drag itself carries no data, so it means something only in the window that it began in.

#pragma once

#include <QObject>
#include <QPixmap>
#include <QStringList>

#include <vector>

namespace tomely {

class BookEntry;
class BookTableView;

/// The type of a drag of books.
inline const QString bookDragType = QStringLiteral("BOOK_ENTRY_FOR_DRAG_N_DROP");

class BookDrag : public QObject {
    Q_OBJECT

public:
    /// Drags rows of the table, of which row i is element i of the books. Both must outlive this.
    BookDrag(BookTableView& table, const std::vector<BookEntry*>& displayedBooks);

    /// The keys of the books that are dragged, from the top; books may have been deleted since the
    /// drag began. Empty while none are dragged.
    const QStringList& draggedBooks() const { return m_aDraggedBooks; }

private:
    void writeRows(const std::vector<int>& rows);

    BookTableView& m_table;
    const std::vector<BookEntry*>& m_displayedBooks;
    QStringList m_aDraggedBooks; // keys
};

/// A card with the first of the titles and, for more than one book, how many there are; in the
/// colours, the font and the resolution of a widget. Of `count` titles only the first few are
/// needed.
QPixmap bookDragPicture(const QStringList& titles, qsizetype count, const QWidget& look);

/// So many titles fit on the card.
inline constexpr qsizetype bookDragTitles = 3;

} // namespace tomely
