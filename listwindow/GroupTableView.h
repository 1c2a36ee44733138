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
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace tomely
