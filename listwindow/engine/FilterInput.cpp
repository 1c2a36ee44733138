#include "listwindow/engine/FilterInput.h"

#include "listwindow/engine/BookFilter.h"
#include "platform/LenientNumbers.h"

#include <QLocale>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Far more than any number needs; what stands behind it cannot have been typed by hand.
constexpr qsizetype longestInput = 1000;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isDigitOrMark(QChar character)
{
    return isDigit(character) || character == u'.' || character == u',';
}

QString onlyThose(QStringView text, bool (*keep)(QChar))
{
    QString kept;
    const QStringView read = text.first(std::min(text.size(), longestInput));
    std::ranges::copy_if(read, std::back_inserter(kept), keep);
    return kept;
}

/// Digits and marks as a number of the locale, with its group separators, or else the number at
/// their front.
std::optional<double> readNumber(QString kept, const QLocale& locale)
{
    bool isNumber = false;
    double number = locale.toDouble(kept, &isNumber);
    if (isNumber)
        return number;
    const auto wholeEnd = std::ranges::find_if_not(kept, isDigit);
    auto end = wholeEnd;
    if (wholeEnd != kept.end() && (*wholeEnd == u'.' || locale.decimalPoint() == *wholeEnd)) {
        *wholeEnd = u'.';
        end = std::find_if_not(wholeEnd + 1, kept.end(), isDigit);
    }
    number = QStringView(kept).first(end - kept.begin()).toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

void setFilterNumber(BookFilter& filter, QStringView text, const QLocale& locale)
{
    const QString kept = onlyThose(text, isDigitOrMark);
    filter.m_bFilter_NumericHasValue = !kept.isEmpty();
    if (kept.isEmpty())
        filter.m_dblFilter_Numeric = 0;
    else if (const auto number = readNumber(kept, locale))
        filter.m_dblFilter_Numeric = *number;
}

void setFilterYear(BookFilter& filter, QStringView text)
{
    filter.m_nFilter_DateYear = leadingInt(onlyThose(text, isDigit));
}

} // namespace tomely
