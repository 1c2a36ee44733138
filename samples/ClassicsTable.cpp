#include "samples/ClassicsTable.h"

#include "samples/CoverArtist.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

#include <optional>
#include <utility>

namespace tomely {

namespace {

enum Column {
    Title,
    Author,
    Type,
    Publisher,
    Isbn,
    Pages,
    Published,
    Copyright,
    Rating,
    Paid,
    PaidAt,
    Bought,
    Value,
    ValueDate,
    Location,
    LentTo,
    Lent,
    FirstRead,
    LastRead,
    Flags,
    Groups,
    Notes,
    Cover,
    ColumnCount
};

const QStringList& headings()
{
    static const QStringList names = {
        QStringLiteral("Title"),
        QStringLiteral("Author"),
        QStringLiteral("Type"),
        QStringLiteral("Publisher"),
        QStringLiteral("ISBN"),
        QStringLiteral("Pages"),
        QStringLiteral("Published"),
        QStringLiteral("Copyright"),
        QStringLiteral("Rating"),
        QStringLiteral("Paid"),
        QStringLiteral("Paid at"),
        QStringLiteral("Bought"),
        QStringLiteral("Value"),
        QStringLiteral("Value date"),
        QStringLiteral("Location"),
        QStringLiteral("Lent to"),
        QStringLiteral("Lent"),
        QStringLiteral("First read"),
        QStringLiteral("Last read"),
        QStringLiteral("Flags"),
        QStringLiteral("Groups"),
        QStringLiteral("Notes"),
        QStringLiteral("Cover"),
    };
    return names;
}

bool isKnownType(const QString& name)
{
    static const QStringList names = {
        QStringLiteral("Hardcover"),
        QStringLiteral("Paperback"),
        QStringLiteral("Audio Book"),
        QStringLiteral("eBook"),
    };
    return names.contains(name);
}

bool isKnownGroup(const QString& name)
{
    static const QStringList names = {
        QStringLiteral("Fiction"),
        QStringLiteral("Non Fiction"),
        QStringLiteral("Poetry"),
        QStringLiteral("Science Fiction"),
        QStringLiteral("Mystery"),
        QStringLiteral("Children's Books"),
        QStringLiteral("To Read"),
        QStringLiteral("Reading Circle"),
        QStringLiteral("Travel"),
        QStringLiteral("Plays"),
    };
    return names.contains(name);
}

bool isIsbn10(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]{9}[0-9X]$"));
    if (!form.match(text).hasMatch()) {
        return false;
    }
    int sum = 0;
    for (int i = 0; i < 10; ++i) {
        const int digit = text.at(i) == u'X' ? 10 : text.at(i).digitValue();
        sum += digit * (10 - i);
    }
    return sum % 11 == 0;
}

bool isIsbn13(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^97[89][0-9]{10}$"));
    if (!form.match(text).hasMatch()) {
        return false;
    }
    int sum = 0;
    for (int i = 0; i < 13; ++i) {
        sum += text.at(i).digitValue() * (i % 2 == 0 ? 1 : 3);
    }
    return sum % 10 == 0;
}

/// The cells of one line, read one after the other. The first thing found wrong is kept, so that
/// the reading of a row need not stop at every cell to ask.
class RowReader {
public:
    explicit RowReader(QStringList cells) : m_cells(std::move(cells)) { }

    const QString& problem() const { return m_problem; }

    QString text(Column column)
    {
        const QString& cell = m_cells.at(column);
        if (cell != cell.simplified()) {
            fail(column, QStringLiteral("has superfluous spaces"));
        }
        return cell;
    }

    QString requiredText(Column column)
    {
        if (m_cells.at(column).isEmpty()) {
            fail(column, QStringLiteral("is empty"));
        }
        return text(column);
    }

    QString isbn(Column column)
    {
        QString cell = text(column);
        if (!cell.isEmpty() && !isIsbn10(cell) && !isIsbn13(cell)) {
            fail(column, QStringLiteral("is not an ISBN"));
        }
        return cell;
    }

    int number(Column column, int lowest, int highest)
    {
        const QString cell = text(column);
        if (cell.isEmpty()) {
            return 0;
        }
        static const QRegularExpression form(QStringLiteral("^[1-9][0-9]{0,5}$"));
        const int value = form.match(cell).hasMatch() ? cell.toInt() : lowest - 1;
        if (value < lowest || value > highest) {
            fail(column, QStringLiteral("is not a number from %1 to %2").arg(lowest).arg(highest));
        }
        return value;
    }

    std::optional<double> price(Column column)
    {
        const QString cell = text(column);
        if (cell.isEmpty()) {
            return std::nullopt;
        }
        static const QRegularExpression form(QStringLiteral("^(0|[1-9][0-9]{0,6})[.][0-9]{2}$"));
        if (!form.match(cell).hasMatch()) {
            fail(column, QStringLiteral("is not a price such as 12.50"));
            return std::nullopt;
        }
        return cell.toDouble();
    }

    ClassicsDate date(Column column)
    {
        const QString cell = text(column);
        if (cell.isEmpty()) {
            return {};
        }
        static const QRegularExpression form(
            QStringLiteral("^([12][0-9]{3})(?:-(0[1-9]|1[0-2]))?$"));
        const QRegularExpressionMatch match = form.match(cell);
        if (!match.hasMatch()) {
            fail(column, QStringLiteral("is not a date such as 1999 or 1999-06"));
            return {};
        }
        return {match.captured(2).toInt(), match.captured(1)};
    }

    void flags(ClassicsRow& row)
    {
        static const QRegularExpression form(QStringLiteral("^O?S?F?R?$"));
        const QString cell = text(Flags);
        if (!form.match(cell).hasMatch()) {
            fail(Flags, QStringLiteral("is not a choice of the letters O, S, F and R"));
        }
        row.own = cell.contains(u'O');
        row.signedCopy = cell.contains(u'S');
        row.firstEdition = cell.contains(u'F');
        row.read = cell.contains(u'R');
    }

    QStringList groups()
    {
        const QString cell = text(Groups);
        if (cell.isEmpty()) {
            return {};
        }
        QStringList names = cell.split(u';');
        for (const QString& name : std::as_const(names)) {
            if (!isKnownGroup(name)) {
                fail(Groups, QStringLiteral("names the unknown group '%1'").arg(name));
            }
        }
        if (names.removeDuplicates() > 0) {
            fail(Groups, QStringLiteral("names a group twice"));
        }
        return names;
    }

    QString notes()
    {
        const QString cell = text(Notes);
        QString result;
        for (qsizetype i = 0; i < cell.size(); ++i) {
            if (cell.at(i) != u'\\') {
                result += cell.at(i);
                continue;
            }
            ++i;
            if (i < cell.size() && cell.at(i) == u'n') {
                result += u'\n';
            } else if (i < cell.size() && cell.at(i) == u'\\') {
                result += u'\\';
            } else {
                fail(Notes, QStringLiteral("has a backslash before something else than n"));
            }
        }
        return result;
    }

    void fail(Column column, const QString& what)
    {
        if (m_problem.isEmpty()) {
            m_problem = QStringLiteral("%1 %2").arg(headings().at(column), what);
        }
    }

private:
    QStringList m_cells;
    QString m_problem;
};

/// What no single cell can tell: whether the cells of a row can be true together.
void checkTogether(const ClassicsRow& row, RowReader& reader)
{
    if (!row.lentTo.isEmpty() && !row.own) {
        reader.fail(LentTo, QStringLiteral("lends a book that is not owned"));
    }
    if (row.lentTo.isEmpty() != row.lentDate.year.isEmpty()) {
        reader.fail(Lent, QStringLiteral("goes with a borrower, and a borrower with a date"));
    }
    if (!row.estValueKnown && !row.estValueDate.year.isEmpty()) {
        reader.fail(ValueDate, QStringLiteral("is the date of no value"));
    }
    if (!row.read && !(row.firstRead.year.isEmpty() && row.lastRead.year.isEmpty())) {
        reader.fail(FirstRead, QStringLiteral("is given for a book that is not read"));
    }
}

ClassicsRow rowFrom(RowReader& reader)
{
    ClassicsRow row;
    row.title = reader.requiredText(Title);
    row.author = reader.requiredText(Author);
    row.type = reader.requiredText(Type);
    if (!isKnownType(row.type)) {
        reader.fail(Type, QStringLiteral("'%1' is unknown").arg(row.type));
    }
    row.publisher = reader.text(Publisher);
    row.isbn = reader.isbn(Isbn);
    row.pages = reader.number(Pages, 1, 9999);
    row.published = reader.date(Published);
    row.copyright = reader.text(Copyright);
    row.rating = reader.number(Rating, 1, 5);
    const std::optional<double> paid = reader.price(Paid);
    row.pricePaidKnown = paid.has_value();
    row.pricePaid = paid.value_or(0);
    row.pricePaidFrom = reader.text(PaidAt);
    row.purchased = reader.date(Bought);
    const std::optional<double> value = reader.price(Value);
    row.estValueKnown = value.has_value();
    row.estValue = value.value_or(0);
    row.estValueDate = reader.date(ValueDate);
    row.location = reader.text(Location);
    row.lentTo = reader.text(LentTo);
    row.lentDate = reader.date(Lent);
    row.firstRead = reader.date(FirstRead);
    row.lastRead = reader.date(LastRead);
    reader.flags(row);
    row.groups = reader.groups();
    row.notes = reader.notes();
    row.coverDesign = reader.text(Cover);
    if (!row.coverDesign.isEmpty() && !CoverArtist::designs().contains(row.coverDesign)) {
        reader.fail(Cover, QStringLiteral("'%1' is an unknown design").arg(row.coverDesign));
    }
    checkTogether(row, reader);
    return row;
}

ClassicsTable failedAt(int line, const QString& what)
{
    return {{}, QStringLiteral("Line %1: %2.").arg(line).arg(what)};
}

ClassicsTable parse(const QString& text)
{
    ClassicsTable table;
    bool headed = false;
    int number = 0;
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines) {
        ++number;
        if (line.isEmpty() || (!headed && line.startsWith(u'#'))) {
            continue;
        }
        const QStringList cells = line.split(u'\t');
        if (!headed) {
            if (cells != headings()) {
                return failedAt(number, QStringLiteral("these are not the expected headings"));
            }
            headed = true;
            continue;
        }
        if (cells.size() != ColumnCount) {
            return failedAt(number,
                QStringLiteral("there are %1 columns, not %2")
                    .arg(cells.size())
                    .arg(int(ColumnCount)));
        }
        RowReader reader(cells);
        ClassicsRow row = rowFrom(reader);
        if (!reader.problem().isEmpty()) {
            return failedAt(number, reader.problem());
        }
        table.rows.push_back(std::move(row));
    }
    if (!headed) {
        return failedAt(number, QStringLiteral("there are no headings"));
    }
    return table;
}

} // namespace

ClassicsTable ClassicsTable::read(QIODevice& device)
{
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(device.readAll());
    if (decode.hasError()) {
        return {{}, QStringLiteral("The table is not UTF-8 text.")};
    }
    return parse(text);
}

ClassicsTable ClassicsTable::read(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, QStringLiteral("%1: %2").arg(fileName, file.errorString())};
    }
    return read(file);
}

} // namespace tomely
