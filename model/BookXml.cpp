#include "model/BookXml.h"

#include "model/BookXmlNode.h"
#include "platform/LenientNumbers.h"

#include <QStringDecoder>
#include <QVarLengthArray>

#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace tomely {

namespace {

using Id = BookField::Id;
using Value = BookElement::Value;

constexpr std::array elements = std::to_array<BookElement>({
    {u"Title", Value::Text, Id::Title},
    {u"Author", Value::Text, Id::Author},
    {u"Notes", Value::Text, Id::Notes},
    {u"PricePaid", Value::Decimal, Id::PricePaid},
    {u"PricePaidFrom", Value::Text, Id::PricePaidFrom},
    {u"ISBN", Value::Text, Id::ISBN},
    {u"Pages", Value::Integer, Id::Pages},
    {u"EstValue", Value::Decimal, Id::EstValue},
    {u"Location", Value::Text, Id::Location},
    {u"LentTo", Value::Text, Id::LentTo},
    {u"DatePublished", Value::Date, Id::MonthPublished},
    {u"DateEstValue", Value::Date, Id::MonthEstValue},
    {u"DateLent", Value::Date, Id::MonthLent},
    {u"DatePurchased", Value::Date, Id::MonthPurchased},
    {u"DateFirstRead", Value::Date, Id::MonthFirstRead},
    {u"DateLastRead", Value::Date, Id::MonthLastRead},
    {u"DateCopyright", Value::Date, Id::MonthCopyright},
    {u"Own", Value::Flag, Id::Own},
    {u"Signed", Value::Flag, Id::Signed},
    {u"FirstEdition", Value::Flag, Id::FirstEdition},
    {u"Read", Value::Flag, Id::Read},
    {u"Type", Value::Type, Id::Type},
    {u"Rating", Value::Integer, Id::Rating},
    {u"Publisher", Value::Text, Id::Publisher},
    {u"CustomField1", Value::Text, Id::CustomField1},
    {u"CustomField2", Value::Text, Id::CustomField2},
    {u"CustomField3", Value::Text, Id::CustomField3},
    {u"CustomField4", Value::Text, Id::CustomField4},
    {u"CustomField5", Value::Text, Id::CustomField5},
    {u"CustomField6", Value::Text, Id::CustomField6},
    {u"CustomField7", Value::Text, Id::CustomField7},
    {u"CustomDate1", Value::Date, Id::CustomMonth1},
    {u"CustomDate2", Value::Date, Id::CustomMonth2},
    {u"CustomDate3", Value::Date, Id::CustomMonth3},
    {u"CustomSwitch1", Value::Switch, Id::CustomSwitch1},
    {u"CustomSwitch2", Value::Switch, Id::CustomSwitch2},
    {u"CustomSwitch3", Value::Switch, Id::CustomSwitch3},
    {u"CustomSwitch4", Value::Switch, Id::CustomSwitch4},
    {u"CustomSwitch5", Value::Switch, Id::CustomSwitch5},
    {u"CustomSwitch6", Value::Switch, Id::CustomSwitch6},
    {u"CustomSwitch7", Value::Switch, Id::CustomSwitch7},
    {u"CustomSwitch8", Value::Switch, Id::CustomSwitch8},
});

const BookField& yearOf(const BookField& month)
{
    return *fieldOfColumn(month.columnKey);
}

const QString& storedText(const BookEntry& book, const BookField& field)
{
    return book.*std::get<TextAccess>(field.access).stored;
}

// Writing, into a text of the standard library: appending to it is what takes the time.

std::u16string_view units(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

/// Looks at every unit whatever it finds: without branches, the compiler takes eight at a time.
bool hasMarkup(std::u16string_view text)
{
    unsigned found = 0;
    for (const char16_t unit : text)
        found |= static_cast<unsigned>((unit == u'&') | (unit == u'<') | (unit == u'>'));
    return found != 0;
}

/// Quotes stay: there are no attributes for them to end.
void makeXMLSafe(std::u16string_view text, std::u16string& xml)
{
    if (!hasMarkup(text)) {
        xml += text;
        return;
    }
    std::size_t copied = 0;
    const auto replace = [&](std::size_t index, std::u16string_view by) {
        xml += text.substr(copied, index - copied);
        xml += by;
        copied = index + 1;
    };
    for (std::size_t index = 0; index < text.size(); ++index) {
        switch (text[index]) {
        case u'&':
            replace(index, u"&amp;"sv);
            break;
        case u'<':
            replace(index, u"&lt;"sv);
            break;
        case u'>':
            replace(index, u"&gt;"sv);
            break;
        default:
            break;
        }
    }
    xml += text.substr(copied);
}

template <class Number, class... Format>
void appendNumber(std::u16string& xml, Number number, Format... format)
{
    std::array<char, 350> digits{}; // the largest double has 309 before the point
    const auto result = std::to_chars(digits.begin(), digits.end(), number, format...);
    xml.append(digits.begin(), result.ptr);
}

class BookXmlWriter {
public:
    BookXmlWriter(const BookEntry& book, std::u16string& xml) : m_book(book), m_xml(xml) { }

    void write(const BookElement& element)
    {
        const BookField& field = bookField(element.field);
        switch (element.value) {
        case Value::Text:
            return writeText(element.name, storedText(m_book, field));
        case Value::Decimal:
            return writeDecimal(element.name, field.real(m_book));
        case Value::Integer:
            return writeInteger(element.name, field.integer(m_book));
        case Value::Date:
            return writeDate(
                element.name, field.integer(m_book), storedText(m_book, yearOf(field)));
        case Value::Flag:
            return writeLine(element.name, [&] { m_xml += field.flag(m_book) ? u"1"sv : u"0"sv; });
        case Value::Switch:
            return writeInteger(element.name, field.flag(m_book) ? 1 : 0);
        case Value::Type:
            return writeText(element.name, m_book.getTypeText());
        }
    }

private:
    template <class Content>
    void writeLine(std::u16string_view name, Content content)
    {
        m_xml += u"\t\t<"sv;
        m_xml += name;
        m_xml += u'>';
        content();
        m_xml += u"</"sv;
        m_xml += name;
        m_xml += u">\n"sv;
    }

    void writeText(std::u16string_view name, const QString& text)
    {
        if (!text.isEmpty())
            writeLine(name, [&] { makeXMLSafe(units(text), m_xml); });
    }

    void writeDecimal(std::u16string_view name, double value)
    {
        if (value == 0)
            return;
        // Whatever the sign bit of what is not a number says.
        const double written = std::isnan(value) ? std::abs(value) : value;
        writeLine(name, [&] { appendNumber(m_xml, written, std::chars_format::fixed, 4); });
    }

    void writeInteger(std::u16string_view name, qint32 value)
    {
        if (value != 0)
            writeLine(name, [&] { appendNumber(m_xml, value); });
    }

    void writeDate(std::u16string_view name, qint32 month, const QString& year)
    {
        if (month == 0 && year.isEmpty())
            return;
        writeLine(name, [&] {
            m_xml += u"<Month>"sv;
            if (month != 0)
                appendNumber(m_xml, month);
            m_xml += u"</Month><Year>"sv;
            m_xml += units(year);
            m_xml += u"</Year>"sv;
        });
    }

    const BookEntry& m_book;
    std::u16string& m_xml;
};

// Reading. A child that is not there exactly once leaves a number or flag as it was.

/// U+FEFF at the front is part of the text: the mark of the file is gone already.
QStringDecoder textDecoder()
{
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
}

QString fromUtf8(const std::string* text)
{
    return text && !text->empty() ? QString(textDecoder()(*text)) : u""_s;
}

QString extractXMLStringValue(const BookXmlNode& node, std::size_t tag)
{
    return fromUtf8(node.text(tag));
}

/// A text from which a number is read: most are short, and are converted without allocating.
class NumberText {
public:
    explicit NumberText(const std::string& utf8)
    {
        QStringDecoder decoder = textDecoder();
        m_units.resize(decoder.requiredSpace(std::ssize(utf8)));
        const QChar* const end = decoder.appendToBuffer(m_units.data(), utf8);
        m_units.resize(end - m_units.data());
    }

    operator QStringView() const { return {m_units.data(), m_units.size()}; }

private:
    QVarLengthArray<QChar, 64> m_units;
};

void extractXMLDoubleValue(double& value, const BookXmlNode& node, std::size_t tag)
{
    if (const std::string* const text = node.text(tag))
        value = leadingDouble(NumberText(*text));
}

void extractXMLIntValue(qint32& value, const BookXmlNode& node, std::size_t tag)
{
    if (const std::string* const text = node.text(tag))
        value = leadingInt(NumberText(*text));
}

void extractXMLBoolValue(bool& value, const BookXmlNode& node, std::size_t tag)
{
    // A flag is one byte, so 256 clears it.
    if (const std::string* const text = node.text(tag))
        value = static_cast<quint8>(leadingInt(NumberText(*text))) != 0;
}

/// Returns the year.
QString extractXMLDateMonth(qint32& month, const BookXmlNode& node, std::size_t tag)
{
    if (const std::string* const text = node.month(tag))
        month = leadingInt(NumberText(*text));
    return fromUtf8(node.year(tag));
}

void readElement(BookEntry& book, const BookXmlNode& node, std::size_t tag)
{
    const BookElement& element = elements.at(tag);
    const BookField& field = bookField(element.field);
    switch (element.value) {
    case Value::Text:
        return field.storeText(book, extractXMLStringValue(node, tag));
    case Value::Decimal:
        return extractXMLDoubleValue(book.*std::get<RealAccess>(field.access).stored, node, tag);
    case Value::Integer:
        return extractXMLIntValue(book.*std::get<IntegerAccess>(field.access).stored, node, tag);
    case Value::Date:
        return yearOf(field).storeText(book,
            extractXMLDateMonth(book.*std::get<IntegerAccess>(field.access).stored, node, tag));
    case Value::Flag:
    case Value::Switch:
        return extractXMLBoolValue(book.*std::get<FlagAccess>(field.access).stored, node, tag);
    case Value::Type:
        return field.setInteger(book, BookEntry::getTypeNum(extractXMLStringValue(node, tag)));
    }
}

} // namespace

std::span<const BookElement> bookElements()
{
    return elements;
}

void appendBookXml(const BookEntry& book, std::u16string& xml)
{
    xml += u"\t<Book>\n"sv;
    BookXmlWriter writer(book, xml);
    for (const BookElement& element : elements)
        writer.write(element);
    xml += u"\t</Book>\n"sv;
}

QString BookEntry::xmlEncode() const
{
    std::u16string xml;
    appendBookXml(*this, xml);
    return QString::fromStdU16String(xml);
}

void BookEntry::initFromXMLNode(const BookXmlNode& node)
{
    for (std::size_t tag = 0; tag < elements.size(); ++tag)
        readElement(*this, node, tag);
    m_changeStamp.tick();
}

} // namespace tomely
