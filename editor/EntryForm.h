// The controls of an editor that show fields of a book: fills them from a record, reads them back
// into one, and knows whether the person changed any. It walks the table of fields and finds each
// control by its name; what the window looks like is not its business.

#pragma once

#include "model/BookField.h"

#include <QLocale>
#include <QString>

#include <variant>
#include <vector>

class QLineEdit;
class QWidget;

namespace tomely {

class EntryForm {
public:
    /// `window` has a control for every field, named "m_id" and the field's name with a capital.
    /// Numbers are shown and read in the locale's way. The window must outlive the form.
    EntryForm(QWidget& window, const QLocale& locale);

    /// The object name of the control of a field.
    static QString controlName(const BookField& field);

    /// Shows an empty book: blank texts, no months, the first type, no rating.
    void clear();

    /// Shows a book.
    void fill(const BookEntry& book);

    /// Shows a text in a line so that its beginning is seen.
    static void showText(QLineEdit& line, const QString& text);

    /// Takes what is shown now as unchanged.
    void settle();

    bool isChanged() const;

    /// Writes every field. A control that shows what it was filled with gives the very value it was
    /// filled with, also where a control cannot show it (a line break in a line, a rare number).
    void write(BookEntry& book) const;

private:
    /// What a control shows: a text, a tag or a state.
    using Shown = std::variant<QString, qint32, bool>;

    struct Row {
        const BookField* field;
        QWidget* control;
        Shown filled; // just after it was filled
        Shown settled;
    };

    void prepare(const Row& row) const;
    static Shown shown(const Row& row);
    void show(const Row& row, const BookEntry& book) const;
    void writeRow(const Row& row, BookEntry& book) const;

    QLocale m_locale;
    std::vector<Row> m_rows;
    BookEntry m_filledFrom;
};

} // namespace tomely
