#include "editor/NotesView.h"

#include "editor/SpellChecker.h"
#include "editor/SpellHighlighter.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

#include <memory>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int linesWithoutScrolling = 6;

constexpr qsizetype mostSuggestions = 5;

// Red as people know it from other programs, light on dark and dark on light.
QColor markColor(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return QColor::fromHsl(0, 255, isDark ? 175 : 110);
}

} // namespace

NotesView::NotesView(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
}

void NotesView::setNotes(const QString& notes)
{
    m_notes = notes;
    setPlainText(notes);
    m_shownNotes = shownText();
}

QString NotesView::notes() const
{
    return isEdited() ? shownText() : m_notes;
}

bool NotesView::isEdited() const
{
    return document()->isModified() && shownText() != m_shownNotes;
}

// Not toPlainText(), which makes no-break spaces spaces and line separators line ends.
QString NotesView::shownText() const
{
    QString text;
    text.reserve(document()->characterCount());
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
        if (block.blockNumber() > 0)
            text += u'\n';
        text += block.text();
    }
    return text;
}

void NotesView::setSpellChecker(SpellChecker* checker)
{
    if (checker == m_checker)
        return;
    m_checker = checker;
    delete m_highlighter;
    if (checker) {
        m_highlighter = new SpellHighlighter(*document(), *checker);
        m_highlighter->setColor(markColor(palette()));
    }
}

QSize NotesView::sizeHint() const
{
    const int lines = fontMetrics().lineSpacing() * linesWithoutScrolling;
    return {QPlainTextEdit::sizeHint().width(), lines + 2 * frameWidth()};
}

bool NotesView::isChecking() const
{
    return m_highlighter && m_highlighter->isBusy();
}

void NotesView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_highlighter)
        m_highlighter->setColor(markColor(palette()));
}

void NotesView::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* const menu = createStandardContextMenu(event->pos());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!isReadOnly()) {
        const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
        addSpelling(*menu, isByKey ? textCursor() : cursorForPosition(event->pos()));
    }
    menu->popup(event->globalPos());
    event->accept();
}

void NotesView::addSpelling(QMenu& menu, const QTextCursor& place)
{
    const QTextCursor word = misspelledWordAt(place);
    if (!word.hasSelection() || menu.isEmpty())
        return;
    QAction* const first = menu.actions().constFirst();
    const auto add = [&menu, first](const QString& text) {
        auto* const action = new QAction(text, &menu);
        menu.insertAction(first, action);
        return action;
    };
    const QString text = word.selectedText();
    const QStringList suggestions = m_checker->suggestions(text).mid(0, mostSuggestions);
    for (const QString& suggestion : suggestions) {
        // An ampersand would underline a letter.
        QAction* const action = add(QString(suggestion).replace("&"_L1, "&&"_L1));
        connect(action, &QAction::triggered, this,
            [cursor = QTextCursor(word), suggestion]() mutable { cursor.insertText(suggestion); });
    }
    if (suggestions.isEmpty())
        add(tr("No Suggestions"))->setEnabled(false);
    menu.insertSeparator(first);
    connect(add(tr("Ignore Spelling")), &QAction::triggered, this,
        [this, text] { m_checker->ignore(text); });
    menu.insertSeparator(first);
}

// The word as a selection; nothing is selected where no misspelt word stands.
QTextCursor NotesView::misspelledWordAt(const QTextCursor& place) const
{
    QTextCursor word(place);
    word.clearSelection();
    if (!m_checker)
        return word;
    const int inBlock = place.positionInBlock();
    for (const auto& [start, length] : m_checker->misspelledWords(place.block().text())) {
        if (inBlock >= start && inBlock <= start + length) {
            const int blockStart = place.block().position();
            word.setPosition(blockStart + static_cast<int>(start));
            word.setPosition(
                blockStart + static_cast<int>(start + length), QTextCursor::KeepAnchor);
            break;
        }
    }
    return word;
}

// The toolkit's own would make no-break spaces spaces on the way from one place to another.
QMimeData* NotesView::createMimeDataFromSelection() const
{
    auto copied = std::make_unique<QMimeData>();
    copied->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
    return copied.release();
}

} // namespace tomely
