#include "listwindow/SingleLineDelegate.h"

#include <algorithm>

namespace tomely {

namespace {

constexpr qsizetype longestShown = 600; // characters; more than any column is wide

bool breaksLine(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator;
}

} // namespace

QString SingleLineDelegate::displayText(const QVariant& value, const QLocale&) const
{
    QString text = value.toString().left(longestShown);
    std::replace_if(text.begin(), text.end(), breaksLine, QChar(u' '));
    return text;
}

} // namespace tomely
