#include "model/CaseFolding.h"

#include <QChar>

#include <algorithm>

namespace tomely {

namespace {

struct NextCharacter {
    char32_t folded;
    qsizetype units; // how many UTF-16 units it took
};

NextCharacter foldedCharacterAt(QStringView text, qsizetype index)
{
    const char16_t unit = text.at(index).unicode();
    if (unit < 0x80)
        return {unit >= u'A' && unit <= u'Z' ? char32_t(unit + 32) : char32_t(unit), 1};
    if (QChar::isHighSurrogate(unit) && index + 1 < text.size()
        && text.at(index + 1).isLowSurrogate()) {
        const char32_t character = QChar::surrogateToUcs4(unit, text.at(index + 1).unicode());
        return {QChar::toCaseFolded(character), 2};
    }
    return {QChar::toCaseFolded(char32_t(unit)), 1};
}

void appendUtf8(char32_t character, std::vector<char>& bytes)
{
    const auto push = [&bytes](char32_t byte) {
        bytes.push_back(static_cast<char>(byte));
    };
    if (character < 0x80) {
        push(character);
    } else if (character < 0x800) {
        push(0xC0 | (character >> 6));
        push(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        push(0xE0 | (character >> 12));
        push(0x80 | ((character >> 6) & 0x3F));
        push(0x80 | (character & 0x3F));
    } else {
        push(0xF0 | (character >> 18));
        push(0x80 | ((character >> 12) & 0x3F));
        push(0x80 | ((character >> 6) & 0x3F));
        push(0x80 | (character & 0x3F));
    }
}

} // namespace

void appendFolded(QStringView text, std::vector<char>& bytes)
{
    for (qsizetype index = 0; index < text.size();) {
        const NextCharacter next = foldedCharacterAt(text, index);
        appendUtf8(next.folded, bytes);
        index += next.units;
    }
}

int compareIgnoringCase(QStringView left, QStringView right)
{
    qsizetype leftIndex = 0;
    qsizetype rightIndex = 0;
    while (leftIndex < left.size() && rightIndex < right.size()) {
        const NextCharacter leftNext = foldedCharacterAt(left, leftIndex);
        const NextCharacter rightNext = foldedCharacterAt(right, rightIndex);
        if (leftNext.folded != rightNext.folded)
            return leftNext.folded < rightNext.folded ? -1 : 1;
        leftIndex += leftNext.units;
        rightIndex += rightNext.units;
    }
    if (leftIndex < left.size())
        return 1;
    return rightIndex < right.size() ? -1 : 0;
}

bool containsIgnoringCase(QStringView text, QStringView part)
{
    std::vector<char> foldedText;
    std::vector<char> foldedPart;
    appendFolded(text, foldedText);
    appendFolded(part, foldedPart);
    // UTF-8 synchronises itself: a match of bytes is a match of characters.
    return std::search(foldedText.begin(), foldedText.end(), foldedPart.begin(), foldedPart.end())
        != foldedText.end()
        || foldedPart.empty();
}

} // namespace tomely
