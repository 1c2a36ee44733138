// The table of books: what a person means by a double click and by Home and End, where the toolkit
// thinks of single cells.

#pragma once

#include <QTableView>

namespace tomely {

class BookTableView : public QTableView {
    Q_OBJECT

public:
    using QTableView::QTableView;

Q_SIGNALS:
    /// A row was double-clicked with the left button; it is the current one and selected.
    void rowDoubleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};

} // namespace tomely
