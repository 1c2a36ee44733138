// The group table as a widget. The keys that end the typing of a name leave the selection alone.

#pragma once

#include <QTableView>

namespace tomely {

class GroupTableView : public QTableView {
    Q_OBJECT

public:
    explicit GroupTableView(QWidget* parent = nullptr);

    /// Takes over a name that is being typed; nothing happens when none is.
    void endEditing();

protected:
    /// The key that edits a name does so wherever in the row the person clicked before.
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    using QTableView::edit;

    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    /// Moving the mouse with its button down selects nothing else: the rows may move under it.
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace tomely
