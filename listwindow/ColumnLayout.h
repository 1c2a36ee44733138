// Which columns the book table shows, in which order and how wide: built from the document's column
// records when the window loads, and copied back into them before the document is saved.

#pragma once

#include <QObject>

class QTableView;

namespace tomely {

class BookListDocument;
class BookTableModel;
class ColumnEntry;
class TomelyTableHeaderView;

class ColumnLayout : public QObject {
    Q_OBJECT

public:
    /// A dialog's marks: a column that is to be added, and one that is to be removed.
    static constexpr qint32 positionToAdd = 9999;
    static constexpr qint32 positionToRemove = -1;

    /// Narrower than this no column gets; wide as the second is one whose width was never set.
    static constexpr int minimumWidth = 40;
    static constexpr int defaultWidth = 100;

    /// Installs the header, which belongs to the table. Table, model and document must outlive the
    /// layout; the model is the table's.
    ColumnLayout(QTableView& table, BookTableModel& model, BookListDocument& document);

    /// Shows the columns of the records in their order.
    void setupInitialColumns();

    /// Gives every shown column of a new document its even share of the table's width.
    void shareWidthEvenly(int available);

    /// Copies places and widths of the shown columns into the records; the others are hidden.
    void updateCurrentColumnInfo();

    /// Shows and hides the columns that are marked in the records. True when the column of the sort
    /// field was hidden.
    bool columnsSelectionChanged();

    /// Shows the new name of a column.
    void updateColumnName(const ColumnEntry& column);

    /// Marks the column of the document's sort field with its direction; none when it is hidden.
    void updateSortStatus();

    /// The key of the leftmost shown column, or -1 when none is shown.
    qint32 firstColumnKey() const;

Q_SIGNALS:
    /// The person moved or resized a column.
    void changedByUser();

    /// The person clicked the heading of a column.
    void headingClicked(qint32 columnKey);

private:
    void showColumn(int column, int place, int width);
    ColumnEntry& recordOf(int column);
    int shownCount() const;

    BookTableModel& m_model;
    BookListDocument& m_document;
    TomelyTableHeaderView& m_header;
};

} // namespace tomely
