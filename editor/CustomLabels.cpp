#include "editor/CustomLabels.h"

#include "document/BookListDocument.h"
#include "document/DisplayNames.h"
#include "editor/EditableLabel.h"
#include "platform/widgets/Accessibility.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int fieldCount = 7;
constexpr int dateCount = 3;
constexpr int switchCount = 8;

// The column keys of the first field, date and switch; every next one is two more.
constexpr qint32 firstField = 42;
constexpr qint32 firstDate = 56;
constexpr qint32 firstSwitch = 62;

} // namespace

CustomLabels::CustomLabels(QWidget& window, BookListDocument& document) : m_document(document)
{
    for (int index = 0; index < fieldCount; ++index) {
        const QString name = u"m_idCustomField%1"_s.arg(index + 1);
        addRow(window, name, {name}, firstField + 2 * index, true);
    }
    for (int index = 0; index < dateCount; ++index) {
        addRow(window, u"m_idCustomDate%1"_s.arg(index + 1),
            {u"m_idCustomMonth%1"_s.arg(index + 1), u"m_idCustomYear%1"_s.arg(index + 1)},
            firstDate + 2 * index, true);
    }
    for (int index = 0; index < switchCount; ++index) {
        const QString name = u"m_idCustomSwitch%1"_s.arg(index + 1);
        addRow(window, name, {name}, firstSwitch + 2 * index, false);
    }
}

void CustomLabels::addRow(QWidget& window, const QString& name, const QStringList& controls,
    qint32 columnKey, bool hasColon)
{
    Row row{window.findChild<EditableLabel*>(name + "Label"_L1), {}, columnKey, hasColon};
    for (const QString& control : controls) {
        row.controls.push_back(window.findChild<QWidget*>(control));
        row.controls.back()->installEventFilter(this);
    }
    row.label->setBuddy(row.controls.front());
    connect(row.label, &EditableLabel::edited, this,
        [this, row](const QString& text) { editCustomLabel(row, text); });
    m_rows.push_back(std::move(row));
}

void CustomLabels::initCustomLabels()
{
    for (const Row& row : m_rows) {
        const QString label =
            displayLabel(row.columnKey, m_document.getCustomFieldLabel(row.columnKey));
        row.label->setText(row.hasColon ? label + u':' : label);
        for (QWidget* const control : row.controls) {
            control->setAccessibleName(label);
            // The toolkit takes for a label only one that cannot be edited.
            if (auto* const popUp = qobject_cast<QComboBox*>(control))
                setAccessiblePurpose(*popUp, label);
        }
    }
}

void CustomLabels::editCustomLabel(const Row& row, const QString& text)
{
    m_document.setCustomFieldLabel(text, row.columnKey);
    initCustomLabels();
}

void CustomLabels::endEditing()
{
    for (const Row& row : m_rows) {
        if (row.label->isEditing())
            row.label->endEditing();
    }
}

bool CustomLabels::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2) {
        const auto place = std::ranges::find_if(m_rows,
            [watched](const Row& row) { return std::ranges::count(row.controls, watched) > 0; });
        if (place != m_rows.end()) {
            place->label->startEditing();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tomely
