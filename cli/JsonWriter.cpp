#include "cli/JsonWriter.h"

#include "cli/PlainText.h"

#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// The escape of a character that must not stand in a string as it is; empty for all others.
QByteArray escapeOf(char character)
{
    switch (character) {
    case '"':
        return "\\\""_ba;
    case '\\':
        return "\\\\"_ba;
    case '\b':
        return "\\b"_ba;
    case '\f':
        return "\\f"_ba;
    case '\n':
        return "\\n"_ba;
    case '\r':
        return "\\r"_ba;
    case '\t':
        return "\\t"_ba;
    default:
        break;
    }
    if (static_cast<unsigned char>(character) >= 0x20)
        return {};
    return "\\u00" + QByteArray::number(int(character), 16).rightJustified(2, '0');
}

} // namespace

void JsonWriter::begin(QByteArrayView opening, QByteArrayView closing, Layout layout)
{
    value(opening);
    m_levels.push_back({closing, layout});
    if (layout == Layout::Lines)
        ++m_depth;
}

void JsonWriter::end()
{
    const Level level = m_levels.back();
    m_levels.pop_back();
    if (level.layout == Layout::Lines) {
        --m_depth;
        if (!level.isEmpty)
            beginLine();
    }
    m_output.write(level.closing);
    if (m_levels.empty())
        m_output.write("\n");
}

void JsonWriter::beginPart()
{
    if (m_afterName || m_levels.empty()) {
        m_afterName = false;
        return;
    }
    Level& level = m_levels.back();
    const bool isFirst = std::exchange(level.isEmpty, false);
    if (!isFirst)
        m_output.write(level.layout == Layout::Lines ? "," : ", ");
    if (level.layout == Layout::Lines)
        beginLine();
}

void JsonWriter::beginLine()
{
    m_output.write('\n' + QByteArray(qsizetype{2} * m_depth, ' '));
}

void JsonWriter::value(QByteArrayView json)
{
    beginPart();
    m_output.write(json);
}

void JsonWriter::string(QByteArrayView utf8)
{
    beginPart();
    m_output.write("\"");
    qsizetype written = 0;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const QByteArray escape = escapeOf(utf8[i]);
        if (escape.isEmpty())
            continue;
        m_output.write(utf8.sliced(written, i - written));
        m_output.write(escape);
        written = i + 1;
    }
    m_output.write(utf8.sliced(written));
    m_output.write("\"");
}

void JsonWriter::nameInUtf8(QByteArrayView utf8)
{
    string(utf8);
    m_output.write(": ");
    m_afterName = true;
}

void JsonWriter::name(QStringView memberName)
{
    nameInUtf8(wellFormedUtf8(memberName));
}

void JsonWriter::name(QLatin1StringView memberName)
{
    nameInUtf8(QByteArrayView(memberName.data(), memberName.size()));
}

void JsonWriter::text(const QString& characters)
{
    if (characters.isNull())
        null();
    else
        string(wellFormedUtf8(characters));
}

void JsonWriter::text(QLatin1StringView characters)
{
    string(QByteArrayView(characters.data(), characters.size()));
}

void JsonWriter::integer(qint64 number)
{
    value(QByteArray::number(number));
}

void JsonWriter::real(double number)
{
    if (std::isnan(number))
        return text("nan"_L1);
    if (std::isinf(number))
        return text(number < 0 ? "-inf"_L1 : "inf"_L1);
    std::array<char, 32> digits{}; // the longest double takes 24
    const std::to_chars_result end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number);
    value(QByteArrayView(digits.data(), end.ptr - digits.data()));
}

void JsonWriter::boolean(bool isTrue)
{
    value(isTrue ? "true" : "false");
}

void JsonWriter::null()
{
    value("null");
}

} // namespace tomely
