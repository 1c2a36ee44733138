#include "model/KeyText.h"

#include <QChar>

namespace tomely {

namespace {

/// Length of the plain number that `key` is, or -1: digits with no leading zero, no sign.
qsizetype plainLength(QStringView key)
{
    if (key.isEmpty() || (key.front() == u'0' && key.size() > 1))
        return -1;
    for (const QChar character : key) {
        if (character < u'0' || character > u'9')
            return -1;
    }
    return key.size();
}

bool isGroupingMark(QChar character)
{
    switch (character.category()) {
    case QChar::Punctuation_Other: // comma, full stop, apostrophe, Arabic thousands separator
    case QChar::Punctuation_FinalQuote: // typographic apostrophe
    case QChar::Separator_Space: // space, no-break space, narrow no-break space
    case QChar::Other_Format: // direction marks
        return true;
    default:
        return false;
    }
}

} // namespace

QString keyText(qint32 number)
{
    return QString::number(number);
}

std::optional<qint32> keyNumber(QStringView key)
{
    const bool negative = key.startsWith(u'-');
    const QStringView digits = negative ? key.mid(1) : key;
    if (plainLength(digits) < 1 || digits.size() > 10)
        return std::nullopt;
    qint64 number = 0;
    for (const QChar digit : digits)
        number = number * 10 + (digit.unicode() - u'0');
    if (negative)
        number = -number;
    if (number < std::numeric_limits<qint32>::min() || number > std::numeric_limits<qint32>::max())
        return std::nullopt;
    return static_cast<qint32>(number);
}

QString normalizedKey(const QString& key)
{
    if (key.size() > longestKey)
        return normalizedKey(key.left(longestKey));
    if (plainLength(key) > 0)
        return key;
    QString plain;
    for (const QChar character : key) {
        if (character.isDigit())
            plain += QChar(u'0' + character.digitValue());
        else if (character == u'-' && plain.isEmpty())
            plain += character;
        else if (!isGroupingMark(character))
            return key;
    }
    return plain.isEmpty() ? key : plain;
}

bool KeyOrder::operator()(QStringView left, QStringView right) const
{
    const qsizetype leftLength = plainLength(left);
    const qsizetype rightLength = plainLength(right);
    if (leftLength != rightLength) {
        if (leftLength < 0 || rightLength < 0)
            return rightLength < 0;
        return leftLength < rightLength;
    }
    return left.compare(right) < 0;
}

} // namespace tomely
