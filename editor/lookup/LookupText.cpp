#include "editor/lookup/LookupText.h"

namespace tomely {

std::optional<QString> decodedText(QByteArrayView bytes)
{
    if (!bytes.isValidUtf8())
        return std::nullopt;
    // An empty text is still a text.
    return bytes.isEmpty() ? QString(QLatin1String("")) : QString::fromUtf8(bytes);
}

QStringView extractValue(QStringView text, QStringView start, QStringView end)
{
    const qsizetype startIndex = text.indexOf(start);
    if (startIndex < 0)
        return {};
    const QStringView rest = text.sliced(startIndex + start.size());
    const qsizetype endIndex = rest.indexOf(end);
    return endIndex < 0 ? QStringView() : rest.first(endIndex);
}

QStringView cleanString(QStringView text)
{
    bool isInsideTag = false;
    std::optional<qsizetype> last; // of the run, once it has started
    for (qsizetype index = text.size() - 1; index >= 0; --index) {
        const QChar character = text[index];
        if (character == u'<') {
            isInsideTag = false;
        } else if (character == u'>') {
            if (last)
                return text.sliced(index + 1, *last - index).trimmed();
            isInsideTag = true;
        } else if (character != u' ' && !isInsideTag && !last) {
            last = index;
        }
    }
    return text.trimmed();
}

QString boundedText(QStringView text)
{
    if (text.size() <= MostTextUnits)
        return text.toString();
    const bool isWithinPair =
        text[MostTextUnits - 1].isHighSurrogate() && text[MostTextUnits].isLowSurrogate();
    return text.first(MostTextUnits - (isWithinPair ? 1 : 0)).toString();
}

QString boundedAddress(QStringView address)
{
    return address.size() > MostTextUnits ? QString() : address.toString();
}

} // namespace tomely
