#include "editor/SpellHighlighter.h"

#include "editor/SpellChecker.h"

#include <QDeadlineTimer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>

namespace tomely {

namespace {

// A paragraph as it is typed or pasted, but not a whole book.
constexpr qsizetype checkedAtOnce = 20'000;
constexpr int sliceMilliseconds = 8;
// Reading the dictionary waits until the window has come up.
constexpr int loadingDelayMilliseconds = 150;

} // namespace

SpellHighlighter::SpellHighlighter(QTextDocument& document, SpellChecker& checker)
    : QSyntaxHighlighter(&document)
    , m_checker(checker)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SpellHighlighter::checkSlice);
    connect(&checker, &SpellChecker::wordsChanged, this,
        [this] { checkLater(this->document()->firstBlock()); });
}

void SpellHighlighter::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    checkLater(document()->firstBlock());
}

void SpellHighlighter::highlightBlock(const QString& text)
{
    if (text.isEmpty())
        return;
    if (!m_isSlice && (!m_checker.isLoaded() || text.size() > m_budget))
        return checkLater(currentBlock());
    if (!m_isSlice) {
        m_budget -= text.size();
        m_timer.start(); // which fills the budget up again
    }
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    format.setUnderlineColor(m_color);
    for (const auto& [start, length] : m_checker.misspelledWords(text))
        setFormat(static_cast<int>(start), static_cast<int>(length), format);
}

void SpellHighlighter::checkLater(const QTextBlock& from)
{
    if (m_pending.isNull() || from.position() < m_pending.position())
        m_pending = QTextCursor(from);
    if (!m_timer.isActive())
        m_timer.start(m_checker.isLoaded() ? 0 : loadingDelayMilliseconds);
}

void SpellHighlighter::checkSlice()
{
    m_timer.setInterval(0);
    m_budget = checkedAtOnce;
    if (m_pending.isNull())
        return;
    const QScopedValueRollback slice(m_isSlice, true);
    // Marks are no change to the text. The layout learns of them without signals.
    const QSignalBlocker quiet(document());
    const QDeadlineTimer deadline(sliceMilliseconds);
    QTextBlock block = m_pending.block();
    for (; block.isValid() && !deadline.hasExpired(); block = block.next())
        rehighlightBlock(block);
    m_pending = block.isValid() ? QTextCursor(block) : QTextCursor();
    if (block.isValid())
        m_timer.start();
}

} // namespace tomely
