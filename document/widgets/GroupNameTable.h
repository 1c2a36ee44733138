// A table of groups as a widget, as the side bar and the group manager show them: names are typed
// in place, and the keys that end the typing leave the selection alone.

#pragma once

#include <QTableView>

namespace tomely {

class GroupNameTable : public QTableView {
    Q_OBJECT

public:
    /// Every model of groups has a picture or a check box in the first column and then the name.
    enum Column { FirstColumn = 0, NameColumn = 1, ColumnCount = 2 };

    explicit GroupNameTable(QWidget* parent = nullptr);

    /// The selected row; -1 when none is.
    int selectedRow() const;

    /// Lets the name in a row be typed, with its text selected.
    void startEditing(int row);

    /// Takes over a name that is being typed; nothing happens when none is.
    void endEditing();

    /// Forgets a name that is being typed.
    void dropEditing();

Q_SIGNALS:
    /// The typing of the name in a row is over, whether or not the name was taken over.
    void editingEnded(int row);

protected:
    /// The key that edits a name and the one that ticks a box do so wherever in the row the person
    /// clicked before.
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    using QTableView::edit;

    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    /// Moving the mouse with its button down selects nothing else: the rows may move under it.
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    /// Of the name that is being typed; nullptr when none is.
    QWidget* nameEditor() const;
};

} // namespace tomely
