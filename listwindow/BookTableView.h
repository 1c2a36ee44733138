// The table of books: what a person means by a double click, by Home and End and by pulling at
// rows, where the toolkit thinks of single cells.

#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

#include <vector>

namespace tomely {

class BookTableView : public QTableView {
    Q_OBJECT

public:
    explicit BookTableView(QWidget* parent = nullptr);

    /// The selected rows from the top.
    std::vector<int> selectedRows() const;

public Q_SLOTS:
    /// Puts the selected rows on the clipboard; without any it stays as it is.
    void copy() const;

Q_SIGNALS:
    /// A row was double-clicked with the left button; it is the current one and selected.
    void rowDoubleClicked();

    /// The mouse pulls at a row: these rows, from the top, are to be dragged. All the selected ones
    /// when it is one of them, else it alone. The table may be gone when the drag is over.
    void rowsPulled(const std::vector<int>& rows);

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    QPersistentModelIndex m_pressedCell; // where a drag can begin
    QPoint m_pressedPlace; // in the viewport
    bool m_isPressedBesideRows = false;
};

} // namespace tomely
