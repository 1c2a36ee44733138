#include "platform/widgets/ListFocus.h"

#include "platform/widgets/MixedColor.h"

#include <QStyleOptionViewItem>
#include <QWidget>

namespace tomely {

namespace {

// Of the colour of a selection: enough to be seen, and too little to come near to that of the text.
constexpr float selectionShare = 0.3F;

} // namespace

void paleWithoutFocus(QStyleOptionViewItem& option, const QWidget& view)
{
    if (view.hasFocus())
        return;
    const QPalette& palette = view.palette();
    option.palette.setColor(QPalette::Highlight,
        between(palette.color(QPalette::Base), palette.color(QPalette::Active, QPalette::Highlight),
            selectionShare));
    option.palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
}

} // namespace tomely
