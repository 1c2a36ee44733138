#include "cli/DisplayWidth.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// The wide and full-width characters of Unicode's EastAsianWidth.txt. Ranges are joined where only
// unassigned or hardly ever used characters lie between: counting one column too many leaves a gap,
// counting one too few breaks the line.
constexpr std::array wideRanges = std::to_array<Range>({
    {0x1100, 0x115F}, // Hangul leading consonants
    {0x231A, 0x231B}, {0x2329, 0x232A}, {0x23E9, 0x23EC}, {0x23F0, 0x23F0}, {0x23F3, 0x23F3},
    {0x25FD, 0x25FE}, {0x2614, 0x2615}, {0x2648, 0x2653}, {0x267F, 0x267F}, {0x2693, 0x2693},
    {0x26A1, 0x26A1}, {0x26AA, 0x26AB}, {0x26BD, 0x26BE}, {0x26C4, 0x26C5}, {0x26CE, 0x26CE},
    {0x26D4, 0x26D4}, {0x26EA, 0x26EA}, {0x26F2, 0x26F3}, {0x26F5, 0x26F5}, {0x26FA, 0x26FA},
    {0x26FD, 0x26FD}, {0x2705, 0x2705}, {0x270A, 0x270B}, {0x2728, 0x2728}, {0x274C, 0x274C},
    {0x274E, 0x274E}, {0x2753, 0x2755}, {0x2757, 0x2757}, {0x2795, 0x2797}, {0x27B0, 0x27B0},
    {0x27BF, 0x27BF}, {0x2B1B, 0x2B1C}, {0x2B50, 0x2B50}, {0x2B55, 0x2B55},
    {0x2E80, 0x303E}, // radicals, CJK punctuation
    {0x3041, 0x4DBF}, // kana, Hangul compatibility, CJK extension A
    {0x4E00, 0xA4CF}, // CJK, Yi
    {0xA960, 0xA97F}, {0xAC00, 0xD7A3}, // Hangul syllables
    {0xF900, 0xFAFF}, {0xFE10, 0xFE19}, {0xFE30, 0xFE6F}, {0xFF01, 0xFF60}, // full-width forms
    {0xFFE0, 0xFFE6}, {0x16FE0, 0x1B2FF}, // Tangut, Khitan, kana supplements
    {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A},
    {0x1F200, 0x1F265}, {0x1F300, 0x1F64F}, // pictographs
    {0x1F680, 0x1F6FF}, {0x1F7E0, 0x1F7F0}, {0x1F90C, 0x1F9FF}, {0x1FA70, 0x1FAFF},
    {0x20000, 0x3FFFD}, // CJK extensions B and later
});

bool isWide(char32_t character)
{
    const auto range = std::ranges::lower_bound(wideRanges, character, {}, &Range::last);
    return range != wideRanges.end() && character >= range->first;
}

bool takesNoSpace(char32_t character)
{
    constexpr char32_t softHyphen = 0xAD; // terminals show it
    if (character >= 0x1160 && character <= 0x11FF) // joins the Hangul consonant before it
        return true;
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
        return true;
    case QChar::Other_Format:
        return character != softHyphen;
    default:
        return false;
    }
}

int characterWidth(char32_t character)
{
    if (character < 0x7F)
        return 1;
    if (takesNoSpace(character))
        return 0;
    return isWide(character) ? 2 : 1;
}

/// Calls `visit(end, width)` for each character, with the index behind it, until it answers false.
template <class Visit>
void forEachCharacter(QStringView text, Visit&& visit)
{
    qsizetype i = 0;
    while (i < text.size()) {
        char32_t character = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            character = QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        }
        ++i;
        if (!visit(i, characterWidth(character)))
            return;
    }
}

} // namespace

int displayWidth(QStringView text)
{
    int total = 0;
    forEachCharacter(text, [&total](qsizetype, int width) {
        total += width;
        return true;
    });
    return total;
}

QString fittedTo(const QString& text, int width)
{
    if (displayWidth(text) <= width)
        return text;
    int taken = 0;
    qsizetype end = 0;
    forEachCharacter(text, [&](qsizetype next, int characterWidth) {
        if (taken + characterWidth > width - 1)
            return false;
        taken += characterWidth;
        end = next;
        return true;
    });
    return text.first(end) + u'…';
}

} // namespace tomely
