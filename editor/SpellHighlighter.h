// Marks the misspelt words of a document. A small change is checked at once; a long text is checked
// in slices between events, so that typing and painting never wait for it.

#pragma once

#include <QColor>
#include <QSyntaxHighlighter>
#include <QTextCursor>
#include <QTimer>

namespace tomely {

class SpellChecker;

class SpellHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    /// The checker must outlive the highlighter.
    SpellHighlighter(QTextDocument& document, SpellChecker& checker);

    /// The colour of the marks.
    void setColor(const QColor& color);

    /// Whether parts of the document still wait to be checked.
    bool isBusy() const { return !m_pending.isNull(); }

protected:
    void highlightBlock(const QString& text) override;

private:
    void checkLater(const QTextBlock& from);
    void checkSlice();

    SpellChecker& m_checker;
    QTextCursor m_pending; // from here on the document is to be checked; null when it is checked
    QTimer m_timer;
    QColor m_color;
    qsizetype m_budget = 0; // how much may be checked at once until the next slice
    bool m_isSlice = false;
};

} // namespace tomely
