// A table of texts for people to read in a terminal: heading, rule and rows, fitted to a width. It
// knows nothing of books.

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tomely {

class Output;

enum class Alignment { Left, Centre, Right };

struct TableColumn {
    QString heading;
    Alignment alignment = Alignment::Left;
};

/// The widths of columns that naturally take `natural` in a table of `available` columns in all,
/// separators not counted: the widest ones give way, never below a width in which something can
/// still be read. Fewer widths than asked for when not all columns fit even so.
std::vector<int> fittedWidths(std::vector<int> natural, int available);

class TableLayout {
public:
    explicit TableLayout(std::vector<TableColumn> columns);

    /// One text a column; control characters are shown as spaces.
    void addRow(QStringList cells);

    /// Writes the table in lines of at most `width`. Texts that are too wide end in an ellipsis,
    /// and so does each line when columns had to be left out.
    void write(Output& output, int width) const;

private:
    std::vector<int> naturalWidths() const;
    QString line(const QStringList& cells, const std::vector<int>& widths) const;

    std::vector<TableColumn> m_columns;
    QStringList m_headings;
    std::vector<QStringList> m_rows;
};

} // namespace tomely
