// The context menu of the book table's header: hides the column under the pointer, and leads to the
// dialog in which columns are chosen.

#pragma once

#include <QObject>

class QHeaderView;
class QMenu;

namespace tomely {

class BookListDocument;
class BookTableModel;

class HeaderMenu : public QObject {
    Q_OBJECT

public:
    /// The model is the one that the header shows. Model and document must outlive the menu.
    HeaderMenu(QHeaderView& header, const BookTableModel& model, BookListDocument& document);

Q_SIGNALS:
    /// The person wants to choose columns.
    void customizeListRequested();

private:
    void popUp(QPoint position);
    void addHideColumn(int column);
    void hideColumn(const QString& key);

    QHeaderView& m_header;
    const BookTableModel& m_model;
    BookListDocument& m_document;
    QMenu& m_menu; // of the header; filled anew each time it pops up
};

} // namespace tomely
