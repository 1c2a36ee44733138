#include "model/NSDataAdditions.h"

#include <QString>

#include <algorithm>
#include <array>

namespace tomely {

namespace {

constexpr int bitsOfSymbol = 6;
constexpr int groupSize = 4; // symbols for three bytes
constexpr char16_t lastAscii = 0x7F;

/// The number of a symbol; -1 for any other character.
int valueOf(QChar character)
{
    const char16_t symbol = character.unicode();
    if (symbol >= u'A' && symbol <= u'Z')
        return symbol - u'A';
    if (symbol >= u'a' && symbol <= u'z')
        return symbol - u'a' + 26;
    if (symbol >= u'0' && symbol <= u'9')
        return symbol - u'0' + 52;
    if (symbol == u'+')
        return 62;
    return symbol == u'/' ? 63 : -1;
}

/// The first bytes of a group, whose symbols are as if the missing ones were 0.
void appendBytes(QByteArray& data, quint32 group, int count)
{
    const std::array bytes{group >> 16U, group >> 8U, group};
    for (int index = 0; index < count; ++index)
        data.append(static_cast<char>(bytes.at(static_cast<std::size_t>(index)) & 0xFFU));
}

} // namespace

QByteArray dataWithBase64EncodedString(QStringView text)
{
    const auto isAscii = [](QChar character) {
        return character.unicode() <= lastAscii;
    };
    if (!std::ranges::all_of(text, isAscii))
        return {};
    QByteArray data;
    data.reserve(text.size() / groupSize * 3);
    quint32 group = 0;
    int pending = 0;
    for (const QChar character : text) {
        if (character == u'=') {
            if (pending > 0)
                appendBytes(
                    data, group << (bitsOfSymbol * (groupSize - pending)), pending == 3 ? 2 : 1);
            break;
        }
        const int value = valueOf(character);
        if (value < 0)
            continue;
        group = group << bitsOfSymbol | static_cast<quint32>(value);
        if (++pending == groupSize) {
            appendBytes(data, group, 3);
            group = 0;
            pending = 0;
        }
    }
    return data;
}

QString base64Encoding(QByteArrayView data)
{
    return base64EncodingWithLineLength(data, 0);
}

QString base64EncodingWithLineLength(QByteArrayView data, quint32 lineLength)
{
    const QByteArray groups = data.toByteArray().toBase64();
    if (lineLength == 0)
        return QString::fromLatin1(groups);
    // A line holds whole groups: the first that reaches the length is its last.
    const qsizetype length = (qsizetype(lineLength) + groupSize - 1) / groupSize * groupSize;
    QString text;
    text.reserve(groups.size() + groups.size() / length + 1);
    for (qsizetype start = 0; start < groups.size(); start += length) {
        const QLatin1StringView line = QLatin1StringView(groups).mid(start, length);
        text.append(line);
        if (line.size() == length)
            text.append(u'\n');
    }
    return text;
}

} // namespace tomely
