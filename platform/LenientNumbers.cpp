#include "platform/LenientNumbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <type_traits>

#include <QVarLengthArray>

namespace tomely {

namespace {

// Walks over a text and answers what stands at the front of what is left.
class Cursor {
public:
    explicit Cursor(QStringView text) noexcept : m_rest(text) { }

    bool skip(char16_t character) noexcept
    {
        if (!m_rest.startsWith(QChar(character)))
            return false;
        advance();
        return true;
    }

    void skipWhiteSpace() noexcept
    {
        while (!m_rest.isEmpty() && isWhiteSpace(m_rest.front().unicode()))
            advance();
    }

    // Gives whether there was a minus.
    bool skipSign() noexcept
    {
        if (skip(u'-'))
            return true;
        skip(u'+');
        return false;
    }

    bool atDigit() const noexcept
    {
        return !m_rest.isEmpty() && m_rest.front() >= QChar(u'0') && m_rest.front() <= QChar(u'9');
    }

    int takeDigit() noexcept
    {
        const int digit = m_rest.front().unicode() - u'0';
        advance();
        return digit;
    }

private:
    static bool isWhiteSpace(char16_t character) noexcept
    {
        return character == u' ' || (character >= u'\t' && character <= u'\r');
    }

    void advance() noexcept { m_rest = m_rest.sliced(1); }

    QStringView m_rest;
};

template <typename Integer>
Integer readInteger(QStringView text) noexcept
{
    using Magnitude = std::make_unsigned_t<Integer>;
    Cursor cursor(text);
    cursor.skipWhiteSpace();
    const bool isNegative = cursor.skipSign();
    const Magnitude limit = static_cast<Magnitude>(std::numeric_limits<Integer>::max())
        + static_cast<Magnitude>(isNegative);
    Magnitude magnitude = 0;
    while (cursor.atDigit()) {
        const auto digit = static_cast<Magnitude>(cursor.takeDigit());
        magnitude = magnitude > (limit - digit) / 10 ? limit : magnitude * 10 + digit;
    }
    // Unsigned arithmetic, because the smallest integer has no positive counterpart.
    return static_cast<Integer>(isNegative ? Magnitude{0} - magnitude : magnitude);
}

// The characters that std::from_chars accepts, and the power of ten of the first digit that counts:
// it tells too large from too small, which std::from_chars does not.
struct Decimal {
    QVarLengthArray<char, 64> characters;
    bool hasDigits = false;
    bool isZero = true;
    qint64 power = 0;
};

void readFixedPart(Cursor& cursor, Decimal& decimal)
{
    while (cursor.atDigit()) {
        const int digit = cursor.takeDigit();
        decimal.hasDigits = true;
        if (!decimal.isZero)
            ++decimal.power;
        decimal.isZero = decimal.isZero && digit == 0;
        decimal.characters.append(static_cast<char>('0' + digit));
    }
    if (!cursor.skip(u'.'))
        return;
    decimal.characters.append('.');
    while (cursor.atDigit()) {
        const int digit = cursor.takeDigit();
        decimal.hasDigits = true;
        if (decimal.isZero)
            --decimal.power;
        decimal.isZero = decimal.isZero && digit == 0;
        decimal.characters.append(static_cast<char>('0' + digit));
    }
}

// Gives 0 when there is no complete exponent. Saturates far beyond what a double can hold.
qint64 readExponent(Cursor& cursor) noexcept
{
    if (!cursor.skip(u'e') && !cursor.skip(u'E'))
        return 0;
    const bool isNegative = cursor.skipSign();
    constexpr qint64 limit = 1'000'000'000'000;
    qint64 exponent = 0;
    while (cursor.atDigit())
        exponent = qMin(limit, exponent * 10 + cursor.takeDigit());
    return isNegative ? -exponent : exponent;
}

void appendExponent(qint64 exponent, Decimal& decimal)
{
    std::array<char, 24> digits{};
    const auto [end, problem] = std::to_chars(digits.begin(), digits.end(), exponent);
    Q_ASSERT(problem == std::errc());
    decimal.characters.append('e');
    decimal.characters.append(digits.data(), end - digits.data());
}

} // namespace

qint32 leadingInt(QStringView text) noexcept
{
    return readInteger<qint32>(text);
}

qint64 leadingInt64(QStringView text) noexcept
{
    return readInteger<qint64>(text);
}

double leadingDouble(QStringView text)
{
    Cursor cursor(text);
    cursor.skipWhiteSpace();
    const bool isNegative = cursor.skipSign();
    Decimal decimal;
    readFixedPart(cursor, decimal);
    if (!decimal.hasDigits)
        return 0;
    double magnitude = 0;
    if (!decimal.isZero) {
        const qint64 exponent = readExponent(cursor);
        appendExponent(exponent, decimal);
        const auto [end, problem] =
            std::from_chars(decimal.characters.cbegin(), decimal.characters.cend(), magnitude);
        if (problem == std::errc::result_out_of_range)
            magnitude = decimal.power + exponent > 0 ? HUGE_VAL : 0;
    }
    return isNegative ? -magnitude : magnitude;
}

} // namespace tomely
