#include "editor/CompletingComboBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace tomely {

namespace {

constexpr int fewVisibleItems = 3;
constexpr int mostVisibleItems = 15;
constexpr int shortestField = 10; // characters

// The field, which adds the rest of an entry to what is typed.
class CompletingField : public QLineEdit {
public:
    explicit CompletingField(const CompletingComboBox& comboBox) : m_comboBox(comboBox)
    {
        // A longer text would be cut, and lost by the next save.
        setMaxLength(std::numeric_limits<int>::max());
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool takesOver = event->matches(QKeySequence::MoveToNextChar)
            || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (takesOver && isCompleted()) {
            end(false);
            m_completed.clear();
            if (event->matches(QKeySequence::MoveToNextChar))
                return;
        }
        const Before before = remember();
        QLineEdit::keyPressEvent(event);
        if (m_isComposing)
            return;
        if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo))
            m_completed.clear();
        else
            complete(before, event->text());
    }

    void inputMethodEvent(QInputMethodEvent* event) override
    {
        const Before before = remember();
        const QString written = event->commitString();
        m_isComposing = !event->preeditString().isEmpty();
        QLineEdit::inputMethodEvent(event);
        // Until it is composed, what stands in for the completion is not known.
        m_isOverwriting = m_isComposing && before.isCompleted;
        if (!m_isComposing)
            complete(before, written);
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        QLineEdit::focusOutEvent(event);
        m_isComposing = false;
        m_isOverwriting = false;
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        m_completed.clear();
        QLineEdit::mousePressEvent(event);
    }

private:
    struct Before {
        QString unselected; // what stands in front of the selection or the cursor
        bool isCompleted;
    };

    Before remember() const
    {
        const int start = hasSelectedText() ? selectionStart() : cursorPosition();
        return {text().first(start), m_isOverwriting || isCompleted()};
    }

    // Whether the field still shows the completion as it was added.
    bool isCompleted() const
    {
        return !m_completed.isEmpty() && text() == m_completed && cursorPosition() == m_typed.size()
            && selectedText() == QStringView(m_completed).sliced(m_typed.size());
    }

    // What the person typed, where the text has it in the letter case of the entry.
    QString typedText() const
    {
        const QStringView entryCase = QStringView(m_completed).first(m_typed.size());
        QString shown = text();
        if (shown.startsWith(entryCase))
            return m_typed + shown.sliced(m_typed.size());
        if (entryCase.startsWith(shown))
            return m_typed.first(shown.size());
        return shown;
    }

    void complete(const Before& before, const QString& written)
    {
        const bool isSame = before.isCompleted && text() == m_completed;
        const bool isTypedOn = !written.isEmpty() && text() == before.unselected + written;
        if (isSame && !isTypedOn) {
            if (!isCompleted())
                m_completed.clear();
            return;
        }
        const QString typed = before.isCompleted ? typedText() : text();
        m_completed = isTypedOn ? m_comboBox.completion(typed) : QString();
        m_typed = typed;
        if (!m_completed.isEmpty())
            showCompletion();
        else if (typed != text())
            replaceEnd(0, typed);
    }

    void showCompletion()
    {
        const auto length = static_cast<int>(m_typed.size());
        if (m_completed.startsWith(text()))
            replaceEnd(length, m_completed.sliced(length));
        else
            replaceEnd(0, m_completed);
        // With the cursor behind the typed part, a narrow field keeps showing that.
        if (m_completed.size() > length)
            setSelection(static_cast<int>(m_completed.size()),
                length - static_cast<int>(m_completed.size()));
    }

    // By inserting, which can be undone.
    void replaceEnd(int start, const QString& replacement)
    {
        const auto length = static_cast<int>(text().size()) - start;
        if (length > 0)
            setSelection(start, length);
        if (!replacement.isEmpty())
            insert(replacement);
    }

    const CompletingComboBox& m_comboBox;
    QString m_typed; // as it was typed
    QString m_completed; // the entry that was shown for it
    bool m_isComposing = false; // with an input method
    bool m_isOverwriting = false; // composing in place of a completion
};

} // namespace

CompletingComboBox::CompletingComboBox(QWidget* parent)
    : QComboBox(parent)
    , m_model(new QStringListModel(this))
{
    // The wheel is not to bring the focus along either.
    setFocusPolicy(Qt::StrongFocus);
    setModel(m_model);
    // A new list would empty the field.
    disconnect(m_model, &QAbstractItemModel::modelReset, this, nullptr);
    setLineEdit(new CompletingField(*this));
    setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);
    // The other policies measure every entry.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(shortestField);
    updateVisibleItems();
}

void CompletingComboBox::setValues(const QStringList& values)
{
    if (values != m_model->stringList())
        m_model->setStringList(values);
}

QStringList CompletingComboBox::values() const
{
    return m_model->stringList();
}

QString CompletingComboBox::completion(const QString& typed) const
{
    if (typed.isEmpty())
        return {};
    const QStringList entries = m_model->stringList();
    const auto place = std::ranges::find_if(entries,
        [&typed](const QString& entry) { return entry.startsWith(typed, Qt::CaseInsensitive); });
    return place == entries.end() ? QString() : *place;
}

void CompletingComboBox::updateVisibleItems()
{
    setMaxVisibleItems(
        count() <= fewVisibleItems ? fewVisibleItems : qMin(count(), mostVisibleItems));
}

void CompletingComboBox::showPopup()
{
    selectEntryOfText();
    // Measuring each row of a long list takes seconds.
    if (auto* const list = qobject_cast<QListView*>(view()))
        list->setUniformItemSizes(true);
    QComboBox::showPopup();
}

void CompletingComboBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        selectEntryOfText();
        break;
    default:
        break;
    }
    QComboBox::keyPressEvent(event);
}

void CompletingComboBox::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus())
        return event->ignore();
    selectEntryOfText();
    QComboBox::wheelEvent(event);
}

// Walking the list starts at what the field shows, however that came there.
void CompletingComboBox::selectEntryOfText()
{
    const QString text = currentText();
    if (currentIndex() >= 0 && itemText(currentIndex()) == text)
        return;
    const auto index = m_model->stringList().indexOf(text);
    if (index >= 0)
        setCurrentIndex(static_cast<int>(index));
}

} // namespace tomely
