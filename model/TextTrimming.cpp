#include "model/TextTrimming.h"

namespace tomely {

namespace {

template <class IsTrimmed>
QString trimmedBy(const QString& text, IsTrimmed isTrimmed)
{
    if (text.isNull())
        return text;
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && isTrimmed(text.at(begin)))
        ++begin;
    while (end > begin && isTrimmed(text.at(end - 1)))
        --end;
    if (begin == 0 && end == text.size())
        return text;
    // mid() of nothing would answer a null text, which is the archive's nil and not an empty one.
    return begin == end ? QString(QLatin1String("")) : text.mid(begin, end - begin);
}

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\r' || character == u'\n';
}

} // namespace

QString trimmedText(const QString& text)
{
    return trimmedBy(text, isBlank);
}

QStringView trimmedView(QStringView text)
{
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

QString trimmedLabel(const QString& label)
{
    return trimmedBy(
        label, [](QChar character) { return isBlank(character) || character == u':'; });
}

} // namespace tomely
