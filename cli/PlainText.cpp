#include "cli/PlainText.h"

#include <algorithm>

namespace tomely {

namespace {

bool breaksLine(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QByteArray wellFormedUtf8(QStringView text)
{
    if (text.isValidUtf16())
        return text.toUtf8();
    // The toolkit's own conversion writes a question mark instead.
    QString repaired;
    repaired.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            repaired += text[i++];
        repaired += text[i].isSurrogate() && !isPair ? QChar(QChar::ReplacementCharacter) : text[i];
    }
    return repaired.toUtf8();
}

QString onOneLine(QString text)
{
    std::ranges::replace_if(text, breaksLine, QChar(u' '));
    return text;
}

} // namespace tomely
