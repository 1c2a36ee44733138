// The book table's rows and cells: displayed books by columns. The columns are all of the
// document's column records; which of them are shown, and where, is the header's affair.

#pragma once

#include "document/ColumnCatalogue.h"

#include <QAbstractTableModel>

#include <vector>

namespace tomely {

class BookEntry;

class BookTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Both must outlive the model.
    BookTableModel(const std::vector<BookEntry*>& displayedBooks, const ColumnDictionary& columns,
        QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The column of the model that shows the field `columnKey`, or -1.
    int columnOfKey(qint32 columnKey) const;

    /// The column of the model for one of the document's records, or -1.
    int columnOfRecord(const ColumnEntry& record) const;

    /// The column key of a column of the model; -1 for a record whose key is no number.
    qint32 keyOfColumn(int column) const;

    const ColumnEntry& record(int column) const;

    /// Between these two the displayed books may change.
    void beginReload() { beginResetModel(); }

    void endReload() { endResetModel(); }

    /// A column has a new name.
    void columnRenamed(int column) { Q_EMIT headerDataChanged(Qt::Horizontal, column, column); }

private:
    QVariant accessibleText(const QModelIndex& index) const;

    const std::vector<BookEntry*>& m_displayedBooks;
    const ColumnDictionary& m_columns;
    std::vector<QString> m_keys; // the keys of the column records, in their order
};

} // namespace tomely
