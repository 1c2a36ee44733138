#include "platform/LocalNumbers.h"

#include "platform/LenientNumbers.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Between these a number is written out; beyond them it would be mostly zeros.
constexpr double smallestWrittenOut = 1e-5;
constexpr double largestWrittenOut = 1e15;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// Where a decimal mark can stand: behind white space, a sign and the whole part.
qsizetype endOfWholePart(QStringView text)
{
    const auto isBlank = [](QChar character) {
        return character == u' ' || (character >= u'\t' && character <= u'\r');
    };
    auto place = std::ranges::find_if_not(text, isBlank);
    if (place != text.end() && (*place == u'-' || *place == u'+'))
        ++place;
    return std::find_if_not(place, text.end(), isDigit) - text.begin();
}

} // namespace

double localDouble(QStringView text, const QLocale& locale)
{
    const QString mark = locale.decimalPoint();
    const qsizetype place = endOfWholePart(text);
    if (mark.isEmpty() || mark == "."_L1 || !text.sliced(place).startsWith(mark))
        return leadingDouble(text);
    return leadingDouble(text.toString().replace(place, mark.size(), u'.'));
}

QString numberText(double number, const QLocale& locale)
{
    const double magnitude = std::abs(number);
    const bool isWrittenOut =
        magnitude == 0 || (magnitude >= smallestWrittenOut && magnitude < largestWrittenOut);
    QString text =
        QString::number(number, isWrittenOut ? 'f' : 'g', QLocale::FloatingPointShortest);
    // The sign of a zero is part of the number.
    if (number == 0 && std::signbit(number) && !text.startsWith(u'-'))
        text.prepend(u'-');
    if (const QString mark = locale.decimalPoint(); !mark.isEmpty())
        text.replace(u'.', mark);
    return text;
}

} // namespace tomely
