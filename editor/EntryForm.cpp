#include "editor/EntryForm.h"

#include "document/DisplayNames.h"
#include "editor/CompletingComboBox.h"
#include "editor/NotesView.h"
#include "editor/PopUpButton.h"
#include "platform/LenientNumbers.h"
#include "platform/LocalNumbers.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLineEdit>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qint32 lastMonth = 12;
constexpr qint32 largestRating = 5;
constexpr qint32 typeCount = 4;
constexpr qint32 emptyType = 4;

/// A line or a combo box for text, as its text is reached; nullptr for any other control.
QLineEdit* lineOf(QWidget* control)
{
    if (auto* const combo = qobject_cast<CompletingComboBox*>(control))
        return combo->lineEdit();
    return qobject_cast<QLineEdit*>(control);
}

QString textOf(QWidget* control)
{
    if (const auto* const notes = qobject_cast<NotesView*>(control))
        return notes->notes();
    const QLineEdit* const line = lineOf(control);
    return line ? line->text() : QString();
}

void setTextOf(QWidget* control, const QString& text)
{
    if (auto* const notes = qobject_cast<NotesView*>(control))
        return notes->setNotes(text);
    if (QLineEdit* const line = lineOf(control))
        EntryForm::showText(*line, text);
}

void addTypeItems(PopUpButton& popUp)
{
    for (qint32 type = 0; type < typeCount; ++type)
        popUp.addTaggedItem(displayType(type), type);
    popUp.addTaggedItem({}, emptyType);
}

void addRatingItems(PopUpButton& popUp)
{
    popUp.addTaggedItem(QCoreApplication::translate("EntryForm", "None"), 0);
    for (qint32 rating = 1; rating <= largestRating; ++rating)
        popUp.addTaggedItem(QString::number(rating), rating);
}

void addMonthItems(PopUpButton& popUp)
{
    popUp.addTaggedItem(u"–"_s, 0);
    for (qint32 month = 1; month <= lastMonth; ++month)
        popUp.addTaggedItem(displayMonth(month), month);
}

} // namespace

EntryForm::EntryForm(QWidget& window, const QLocale& locale) : m_locale(locale)
{
    for (const BookField& field : bookFields()) {
        auto* const control = window.findChild<QWidget*>(controlName(field));
        Q_ASSERT(control);
        m_rows.push_back({&field, control, {}, {}});
        prepare(m_rows.back());
    }
}

QString EntryForm::controlName(const BookField& field)
{
    if (field.id == BookField::Id::ISBN)
        return u"m_idISBN"_s;
    QString name =
        QString::fromLatin1(field.name.data(), static_cast<qsizetype>(field.name.size()));
    name[0] = name[0].toUpper();
    return "m_id"_L1 + name;
}

void EntryForm::prepare(const Row& row) const
{
    if (QLineEdit* const line = lineOf(row.control))
        line->setMaxLength(std::numeric_limits<int>::max()); // a cut text would be lost by a save
    auto* const popUp = qobject_cast<PopUpButton*>(row.control);
    if (!popUp)
        return;
    if (row.field->kind == FieldKind::Type)
        addTypeItems(*popUp);
    else if (row.field->kind == FieldKind::Rating)
        addRatingItems(*popUp);
    else
        addMonthItems(*popUp);
}

void EntryForm::clear()
{
    m_filledFrom = BookEntry();
    for (Row& row : m_rows) {
        if (auto* const popUp = qobject_cast<PopUpButton*>(row.control))
            popUp->setCurrentIndex(0);
        else if (auto* const box = qobject_cast<QCheckBox*>(row.control))
            box->setChecked(false);
        else
            setTextOf(row.control, {});
        row.filled = shown(row);
    }
    settle();
}

void EntryForm::showText(QLineEdit& line, const QString& text)
{
    line.setText(text);
    line.setCursorPosition(0); // of a long text the beginning tells more
}

void EntryForm::fill(const BookEntry& book)
{
    m_filledFrom = book;
    for (Row& row : m_rows) {
        show(row, book);
        row.filled = shown(row);
    }
    settle();
}

void EntryForm::settle()
{
    for (Row& row : m_rows)
        row.settled = shown(row);
}

bool EntryForm::isChanged() const
{
    return std::ranges::any_of(m_rows, [](const Row& row) { return shown(row) != row.settled; });
}

void EntryForm::write(BookEntry& book) const
{
    for (const Row& row : m_rows)
        writeRow(row, book);
}

EntryForm::Shown EntryForm::shown(const Row& row)
{
    if (const auto* const popUp = qobject_cast<PopUpButton*>(row.control))
        return popUp->selectedTag();
    if (const auto* const box = qobject_cast<QCheckBox*>(row.control))
        return box->isChecked();
    return textOf(row.control);
}

void EntryForm::show(const Row& row, const BookEntry& book) const
{
    const BookField& field = *row.field;
    switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Year:
        return setTextOf(row.control, field.text(book));
    case FieldKind::Integer:
        return setTextOf(row.control, QString::number(field.integer(book)));
    case FieldKind::Real:
        return setTextOf(row.control, numberText(field.real(book), m_locale));
    case FieldKind::Flag:
        return static_cast<QCheckBox*>(row.control)->setChecked(field.flag(book));
    case FieldKind::Month:
    case FieldKind::Rating:
    case FieldKind::Type:
        return static_cast<PopUpButton*>(row.control)->selectTag(field.integer(book));
    }
}

void EntryForm::writeRow(const Row& row, BookEntry& book) const
{
    const BookField& field = *row.field;
    const Shown now = shown(row);
    const bool isAsFilled = now == row.filled;
    switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Year:
        return field.setText(book, isAsFilled ? field.text(m_filledFrom) : std::get<QString>(now));
    case FieldKind::Integer:
        return field.setInteger(
            book, isAsFilled ? field.integer(m_filledFrom) : leadingInt(std::get<QString>(now)));
    case FieldKind::Real:
        return field.setReal(book,
            isAsFilled ? field.real(m_filledFrom) : localDouble(std::get<QString>(now), m_locale));
    case FieldKind::Flag:
        return field.setFlag(book, std::get<bool>(now));
    case FieldKind::Month:
    case FieldKind::Rating:
    case FieldKind::Type:
        return field.setInteger(book, std::get<qint32>(now));
    }
}

} // namespace tomely
