// Books as lines of comma-separated values for spreadsheets: a line of labels and a line a book. It
// knows books and what it is told of columns and groups; collections, files and encodings of texts
// are the caller's.

#pragma once

#include "model/BookEntry.h"

#include <map>
#include <vector>

namespace tomely {

struct BookField;

/// What the person chooses. The numbers are those of the choices in the export sheet and of what is
/// remembered of them.
struct CsvOptions {
    enum class ColumnSelection : qint32 {
        All = 0,
        Visible = 1, // only fields whose list column is shown
    };
    enum class DateSelection : qint32 {
        MonthAndYear = 0, // two cells
        Year = 1,
        YearMonth = 2, // "2001-03"
        YearMonthDay = 3, // "2001-03-01"; like YearMonth, the year alone without a month
    };
    enum class GroupSelection : qint32 {
        None = 0,
        Flags = 1, // a cell for each group, "Y" or "N"
        Names = 2, // one cell with the names of the book's groups
    };
    enum class CheckboxSelection : qint32 {
        OneZero = 0, // "1" and "0"
        TrueFalse = 1, // "TRUE" and "FALSE"
        YesNo = 2, // "Y" and "N"
    };
    enum class ISBNSelection : qint32 {
        One = 0,
        Two = 1, // a cell for ten characters, one for all others
        None = 2,
    };
    enum class CarriageReturnSelection : qint32 {
        Keep = 0,
        Space = 1, // a space for each line feed
        Escape = 2, // "\n" for each line feed
    };

    ColumnSelection columnSelection = ColumnSelection::All;
    DateSelection dateSelection = DateSelection::MonthAndYear;
    GroupSelection groupSelection = GroupSelection::None;
    QString groupDelimeter = QStringLiteral(";"); // between group names
    CheckboxSelection checkboxSelection = CheckboxSelection::OneZero;
    ISBNSelection isbnSelection = ISBNSelection::One;
    CarriageReturnSelection carriageReturnSelection = CarriageReturnSelection::Keep;

    bool operator==(const CsvOptions&) const = default;
};

/// A list column as the export sees it.
struct CsvColumn {
    QString label;
    bool isVisible = false;
};

/// By column key. A field without a column has an empty label and is not visible.
using CsvColumns = std::map<qint32, CsvColumn>;

struct CsvGroup {
    qint32 key = 0;
    QString name;
};

/// Everything that is the same for every line of an export.
class BookCsv {
public:
    /// `groups` in the order of their cells and names.
    BookCsv(
        const CsvOptions& options, const CsvColumns& columns, const std::vector<CsvGroup>& groups);

    /// Appends the line of labels and its line feed.
    void appendHeader(QString& text) const;

    /// Appends the line of a book and its line feed. Real numbers have a point and four decimals
    /// whatever the locale.
    void csvEncode(const BookEntry& book, QString& text) const;

private:
    struct Field {
        const BookField* field;
        const BookField* month; // of a date, else nullptr
        QString label;
    };

    struct Group {
        qint32 key;
        QString name;
        QString label;
    };
    class Line;

    void appendCells(const BookEntry& book, Line& line) const;
    void appendField(const BookEntry& book, const Field& field, Line& line) const;
    void appendISBN(QStringView isbn, const QString& label, Line& line) const;
    void appendDate(qint32 month, QStringView year, const QString& label, Line& line) const;
    void appendGroups(const BookEntry& book, Line& line) const;
    QStringView flagText(bool flag) const;
    QString groupNames(const BookEntry& book) const;

    CsvOptions m_options;
    std::vector<Field> m_fields;
    std::vector<Group> m_groups;
};

} // namespace tomely
