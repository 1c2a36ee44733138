// The notes of a book: plain text of any length with marks under misspelt words. Notes that nobody
// edits come back exactly as they were given, whatever the toolkit makes of them on the screen.

#pragma once

#include <QPlainTextEdit>
#include <QPointer>

class QMenu;

namespace tomely {

class SpellChecker;
class SpellHighlighter;

class NotesView : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit NotesView(QWidget* parent = nullptr);

    /// Shows other notes, as unedited; what was typed before cannot be undone any more.
    void setNotes(const QString& notes);

    /// The notes as they were set while they are unedited. Otherwise as they stand, with "\n" at
    /// the end of each line; no-break spaces and line separators stay what they are.
    QString notes() const;

    /// Whether the person changed the notes, and not back again.
    bool isEdited() const;

    /// Checks the spelling from now on, or no more with nullptr. The checker must outlive this
    /// view.
    void setSpellChecker(SpellChecker* checker);

    /// Whether the spelling of a part is still to be checked.
    bool isChecking() const;

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    QString shownText() const;
    void addSpelling(QMenu& menu, const QTextCursor& place);
    QTextCursor misspelledWordAt(const QTextCursor& place) const;

    QString m_notes; // as they were set
    QString m_shownNotes; // what was shown of them then
    SpellChecker* m_checker = nullptr;
    QPointer<SpellHighlighter> m_highlighter;
};

} // namespace tomely
