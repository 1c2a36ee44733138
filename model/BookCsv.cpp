#include "model/BookCsv.h"

#include "model/BookField.h"
#include "model/TextTrimming.h"

#include <QVarLengthArray>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// The column keys of the fields in the order of their cells, which spreadsheets rely on; it is
/// older than the table of fields and no order of that one.
constexpr std::array cellOrder =
    std::to_array<qint32>({0, 2, 40, 30, 82, 34, 28, 32, 36, 38, 10, 78, 80, 12, 14, 8, 16, 18, 20,
        22, 24, 84, 6, 26, 42, 44, 46, 48, 50, 52, 54, 56, 58, 60, 62, 64, 66, 68, 70, 72, 74, 76});

constexpr qsizetype shortISBN = 10;

/// The stored text, which spares a copy: absent and empty texts are empty cells alike.
QStringView textOf(const BookField& field, const BookEntry& book)
{
    return book.*std::get<TextAccess>(field.access).stored;
}

QString decimalText(double value)
{
    if (value == 0)
        return {};
    if (std::isnan(value))
        return u"nan"_s; // without a sign, which says nothing
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text{}; // "-1...0.0000"
    const auto [end, problem] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 4);
    Q_ASSERT(problem == std::errc());
    return QString::fromLatin1(text.data(), end - text.data());
}

QString integerText(qint32 value)
{
    return value == 0 ? QString() : QString::number(value);
}

/// Two digits at least; nothing for no month.
QString monthText(qint32 month)
{
    const bool isOneDigit = month > 0 && month < 10;
    return isOneDigit ? u'0' + QString::number(month) : integerText(month);
}

bool mustBeQuoted(QStringView text)
{
    // Looks at every unit whatever it finds: without branches, the compiler takes eight at a time.
    unsigned found = 0;
    for (const char16_t unit : std::u16string_view(text.utf16(), std::size_t(text.size()))) {
        found |= static_cast<unsigned>(
            (unit == u'"') | (unit == u',') | (unit == u'\r') | (unit == u'\n'));
    }
    return found != 0;
}

} // namespace

/// The cells of one line: the labels of the header or the values of a book.
class BookCsv::Line {
public:
    enum class Content { Labels, Values };

    Line(Content content, CsvOptions::CarriageReturnSelection lineBreaks)
        : m_content(content)
        , m_lineBreaks(lineBreaks)
    {
    }

    void append(QStringView value, const QString& label, QLatin1StringView labelEnd = {})
    {
        // Looks at the text and not at the number of cells: empty cells at the beginning leave no
        // separators behind, and the cells after them move to the left.
        if (!m_text.isEmpty())
            m_text.append(u',');
        if (m_content == Content::Values)
            appendCell(value);
        else
            appendCell(label + labelEnd);
    }

    void endOn(QString& text)
    {
        m_text.append(u'\n');
        text.append(m_text.constData(), m_text.size());
    }

private:
    void appendCell(QStringView cell)
    {
        // The quotes are decided by the text as it was: a line break that is replaced quotes, too.
        if (!mustBeQuoted(cell))
            return appendText(trimmedView(cell));
        m_text.append(u'"');
        appendText(trimmedView(makeCSVSafe(cell.toString())));
        m_text.append(u'"');
    }

    void appendText(QStringView text) { m_text.append(text.data(), text.size()); }

    QString makeCSVSafe(QString text) const
    {
        using LineBreaks = CsvOptions::CarriageReturnSelection;
        text.replace(u'"', "\"\""_L1);
        if (m_lineBreaks == LineBreaks::Space)
            text.remove(u'\r').replace(u'\n', u' ');
        else if (m_lineBreaks == LineBreaks::Escape)
            text.remove(u'\r').replace(u'\n', "\\n"_L1);
        return text;
    }

    Content m_content;
    CsvOptions::CarriageReturnSelection m_lineBreaks;
    QVarLengthArray<QChar, 2048> m_text; // longer than most lines, which saves allocations
};

BookCsv::BookCsv(
    const CsvOptions& options, const CsvColumns& columns, const std::vector<CsvGroup>& groups)
    : m_options(options)
{
    for (const qint32 key : cellOrder) {
        const auto place = columns.find(key);
        const CsvColumn column = place == columns.end() ? CsvColumn() : place->second;
        if (column.isVisible || options.columnSelection != CsvOptions::ColumnSelection::Visible)
            m_fields.push_back({fieldOfColumn(key), monthField(key), column.label});
    }
    for (const auto& [key, name] : groups)
        m_groups.push_back({key, name, "Group: "_L1 + name});
}

void BookCsv::appendHeader(QString& text) const
{
    Line line(Line::Content::Labels, m_options.carriageReturnSelection);
    appendCells(BookEntry(), line);
    line.endOn(text);
}

void BookCsv::csvEncode(const BookEntry& book, QString& text) const
{
    Line line(Line::Content::Values, m_options.carriageReturnSelection);
    appendCells(book, line);
    line.endOn(text);
}

void BookCsv::appendCells(const BookEntry& book, Line& line) const
{
    for (const Field& field : m_fields)
        appendField(book, field, line);
    appendGroups(book, line);
}

void BookCsv::appendField(const BookEntry& book, const Field& field, Line& line) const
{
    switch (field.field->kind) {
    case FieldKind::Text:
        if (field.field->id == BookField::Id::ISBN)
            appendISBN(textOf(*field.field, book), field.label, line);
        else
            line.append(textOf(*field.field, book), field.label);
        break;
    case FieldKind::Month:
    case FieldKind::Year:
        appendDate(field.month->integer(book), textOf(*field.field, book), field.label, line);
        break;
    case FieldKind::Integer:
    case FieldKind::Rating:
        line.append(integerText(field.field->integer(book)), field.label);
        break;
    case FieldKind::Real:
        line.append(decimalText(field.field->real(book)), field.label);
        break;
    case FieldKind::Flag:
        line.append(flagText(field.field->flag(book)), field.label);
        break;
    case FieldKind::Type:
        line.append(BookEntry::typeText(field.field->integer(book)), field.label);
        break;
    }
}

void BookCsv::appendISBN(QStringView isbn, const QString& label, Line& line) const
{
    using Selection = CsvOptions::ISBNSelection;
    if (m_options.isbnSelection == Selection::One) {
        line.append(isbn, label);
    } else if (m_options.isbnSelection == Selection::Two) {
        const bool isShort = isbn.size() == shortISBN;
        line.append(isShort ? isbn : QStringView(), label, "10"_L1);
        line.append(isShort ? QStringView() : isbn, label, "13"_L1);
    }
}

void BookCsv::appendDate(qint32 month, QStringView year, const QString& label, Line& line) const
{
    using Selection = CsvOptions::DateSelection;
    const QString months = monthText(month);
    if (m_options.dateSelection == Selection::MonthAndYear) {
        line.append(months, label, " (Month)"_L1);
        line.append(year, label, " (Year)"_L1);
    } else if (m_options.dateSelection == Selection::Year || months.isEmpty()) {
        line.append(year, label);
    } else if (m_options.dateSelection == Selection::YearMonth) {
        line.append(year.toString() + u'-' + months, label);
    } else {
        line.append(year.toString() + u'-' + months + "-01"_L1, label);
    }
}

void BookCsv::appendGroups(const BookEntry& book, Line& line) const
{
    using Selection = CsvOptions::GroupSelection;
    if (m_options.groupSelection == Selection::Flags) {
        for (const Group& group : m_groups)
            line.append(book.inGroup(group.key) ? u"Y" : u"N", group.label);
    } else if (m_options.groupSelection == Selection::Names) {
        line.append(groupNames(book), u"Groups"_s);
    }
}

QStringView BookCsv::flagText(bool flag) const
{
    using Selection = CsvOptions::CheckboxSelection;
    if (m_options.checkboxSelection == Selection::TrueFalse)
        return flag ? u"TRUE" : u"FALSE";
    if (m_options.checkboxSelection == Selection::YesNo)
        return flag ? u"Y" : u"N";
    return flag ? u"1" : u"0";
}

QString BookCsv::groupNames(const BookEntry& book) const
{
    QStringList names;
    for (const Group& group : m_groups) {
        if (book.inGroup(group.key))
            names.append(group.name);
    }
    return names.join(m_options.groupDelimeter);
}

} // namespace tomely
