#include "editor/EditableLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFrame>
#include <QStylePainter>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int shortestLabel = 8; // average characters
constexpr int longestLabel = 24;
constexpr int innerMargin = 2; // what the toolkit leaves at either side of the text in a field
// More than is ever seen of a label, so that a text of a megabyte is not measured.
constexpr qsizetype longestShownText = 500;

bool endsEditing(const QKeyEvent& event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false; // a key of the window
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter
        || event.key() == Qt::Key_Escape;
}

} // namespace

EditableLabel::EditableLabel(QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max()); // a longer text would be cut
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textChanged, this, &EditableLabel::followText);
    setEditing(false);
    followText();
}

void EditableLabel::setText(const QString& text)
{
    const bool isTypedIn = m_isEditing && this->text() != m_labelText;
    m_labelText = text;
    if (isTypedIn)
        return;
    QLineEdit::setText(text);
    if (m_isEditing)
        selectAll();
    else
        describe();
}

void EditableLabel::startEditing()
{
    if (m_isEditing)
        return;
    m_previousFocus = window()->focusWidget();
    // From one renaming to the next, back to where the first one began.
    if (const auto* const other = qobject_cast<EditableLabel*>(m_previousFocus.data()))
        m_previousFocus = other->m_previousFocus;
    m_labelText = text();
    QLineEdit::setText(m_labelText); // an earlier renaming is not to be undone in this one
    setEditing(true);
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

void EditableLabel::endEditing()
{
    if (!m_isEditing)
        return;
    const bool isChanged = text() != m_labelText;
    m_labelText = text();
    becomeLabel();
    if (isChanged)
        Q_EMIT edited(m_labelText);
}

// Gives the focus back to where the person came from, who may have come by keyboard.
void EditableLabel::becomeLabel()
{
    const bool hadFocus = hasFocus();
    setEditing(false);
    deselect();
    followText();
    if (!hadFocus)
        return;
    const auto canTakeFocus = [this](const QWidget* widget) {
        return widget && widget != this && widget->isVisible()
            && (widget->focusPolicy() & Qt::TabFocus) != 0;
    };
    if (canTakeFocus(m_previousFocus))
        m_previousFocus->setFocus(Qt::OtherFocusReason);
    else if (canTakeFocus(m_buddy))
        m_buddy->setFocus(Qt::OtherFocusReason);
    else
        clearFocus();
}

void EditableLabel::setEditing(bool isEditing)
{
    m_isEditing = isEditing;
    setReadOnly(!isEditing);
    setFocusPolicy(isEditing ? Qt::StrongFocus : Qt::NoFocus);
    setContextMenuPolicy(isEditing ? Qt::DefaultContextMenu : Qt::NoContextMenu);
    describe();
    update();
}

void EditableLabel::describe()
{
    setAccessibleName(m_labelText);
    if (m_isEditing)
        return setToolTip({});
    const QString shown = m_labelText.first(qMin(m_labelText.size(), longestShownText));
    setToolTip(u"<p>%1</p><p>%2</p>"_s.arg(shown.toHtmlEscaped(), tr("Double-click to rename")));
}

void EditableLabel::followText()
{
    const QString shown = text().first(qMin(text().size(), longestShownText));
    const int width = fontMetrics().horizontalAdvance(shown);
    // A field that shrinks under the cursor would make the whole form jump.
    m_shownWidth = m_isEditing ? qMax(m_shownWidth, width) : width;
    updateGeometry();
}

QSize EditableLabel::sizeFor(int textWidth) const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize contents(textWidth + 2 * innerMargin, fontMetrics().height());
    const QSize size = style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, this);
    return {size.width(), QLineEdit::sizeHint().height()};
}

QSize EditableLabel::sizeHint() const
{
    const int character = fontMetrics().averageCharWidth();
    return sizeFor(std::clamp(m_shownWidth, shortestLabel * character, longestLabel * character));
}

QSize EditableLabel::minimumSizeHint() const
{
    return sizeFor(shortestLabel * fontMetrics().averageCharWidth());
}

bool EditableLabel::event(QEvent* event)
{
    // Otherwise these keys would close or save the window that has them as shortcuts.
    if (event->type() == QEvent::ShortcutOverride && m_isEditing
        && endsEditing(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        followText();
    return QLineEdit::event(event);
}

void EditableLabel::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // The context menu and other windows bring the focus back.
    const bool comesBack = event->reason() == Qt::PopupFocusReason
        || event->reason() == Qt::MenuBarFocusReason
        || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack)
        endEditing();
}

void EditableLabel::keyPressEvent(QKeyEvent* event)
{
    if (!m_isEditing)
        return event->ignore();
    if (!endsEditing(*event))
        return QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape)
        QLineEdit::setText(m_labelText);
    event->accept();
    endEditing();
}

void EditableLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_isEditing)
        return QLineEdit::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    startEditing();
}

void EditableLabel::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isEditing)
        QLineEdit::mouseMoveEvent(event);
    else
        event->ignore();
}

void EditableLabel::mousePressEvent(QMouseEvent* event)
{
    if (m_isEditing)
        QLineEdit::mousePressEvent(event);
    else
        event->ignore();
}

void EditableLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_isEditing)
        QLineEdit::mouseReleaseEvent(event);
    else
        event->ignore();
}

void EditableLabel::paintEvent(QPaintEvent* event)
{
    if (m_isEditing)
        return QLineEdit::paintEvent(event);
    QStylePainter painter(this);
    const QString beginning = text().first(qMin(text().size(), longestShownText));
    const QString shown = fontMetrics().elidedText(
        beginning, Qt::ElideRight, contentsRect().width(), Qt::TextSingleLine);
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
    const int flags = static_cast<int>(place | Qt::AlignVCenter) | Qt::TextSingleLine;
    painter.drawItemText(
        contentsRect(), flags, palette(), isEnabled(), shown, QPalette::WindowText);
}

} // namespace tomely
