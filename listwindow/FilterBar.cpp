#include "listwindow/FilterBar.h"

#include "document/DisplayNames.h"
#include "listwindow/engine/BookFilter.h"
#include "listwindow/engine/ColumnComparator.h"
#include "listwindow/engine/FilterInput.h"
#include "listwindow/ui_FilterBar.h"
#include "platform/LenientNumbers.h"
#include "platform/widgets/Accessibility.h"
#include "platform/widgets/SymbolicIcon.h"

#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// The page of each filter type.
constexpr std::array pageOfFilterType = {0, 2, 1, 3, 4, 5, 6, 7};

constexpr qint32 lastMonth = 12;
constexpr qint32 largestRating = 5;
constexpr qint32 typeCount = 4;
constexpr qsizetype yearDigits = 4;

ColumnEntry entry(qint32 key, const char* selectionName, FilterType type)
{
    ColumnEntry column;
    column.setKey(key);
    column.setSelectionName(QString::fromLatin1(selectionName));
    column.setFilterType(type);
    return column;
}

bool isCustom(const ColumnEntry& column)
{
    return column.getSelectionName().startsWith(customSelectionName({}));
}

qint32 keyOf(const ColumnEntry& column)
{
    return leadingInt(column.getKey());
}

/// Adds the choices with the tags 0, 1, 2 and so on.
void addTaggedItems(QComboBox& popUp, const QStringList& titles)
{
    for (const QString& title : titles)
        popUp.addItem(title, popUp.count());
}

qint32 tagOf(const QComboBox& popUp)
{
    return popUp.currentData().toInt();
}

/// A menu of fields, too long to walk through: what is typed finds a field by how its name begins
/// or, failing that, by what is in it. It opens at the chosen field.
class FieldMenu : public QMenu {
public:
    using QMenu::QMenu;

protected:
    void showEvent(QShowEvent* event) override
    {
        QMenu::showEvent(event);
        m_typed.clear();
        const QList<QAction*> items = actions();
        const auto chosen = std::ranges::find_if(items, &QAction::isChecked);
        if (chosen != items.end())
            setActiveAction(*chosen);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (m_sinceKey.isValid() && m_sinceKey.hasExpired(QApplication::keyboardInputInterval()))
            m_typed.clear();
        const QString text = event->text();
        const bool isLetter = !text.isEmpty() && text.front().isPrint()
            && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
        // A space chooses a field unless it belongs to a name.
        if (!isLetter || (m_typed.isEmpty() && text == " "_L1))
            return QMenu::keyPressEvent(event);
        m_typed += text;
        m_sinceKey.start();
        if (QAction* const found = find())
            setActiveAction(found);
    }

private:
    /// As it is read: without the signs of a mnemonic.
    static QString nameOf(const QAction& item) { return item.text().replace("&&"_L1, "&"_L1); }

    QAction* find() const
    {
        QList<QAction*> items = actions();
        const qsizetype active = items.indexOf(activeAction());
        // The same letter again goes on to the next field.
        const bool isRepeated = m_typed.count(m_typed.front()) == m_typed.size();
        const QString wanted = isRepeated ? m_typed.first(1) : m_typed;
        const qsizetype first = std::max<qsizetype>(active + (isRepeated ? 1 : 0), 0);
        std::rotate(items.begin(), items.begin() + first, items.end());
        auto found = std::ranges::find_if(items, [&wanted](const QAction* item) {
            return nameOf(*item).startsWith(wanted, Qt::CaseInsensitive);
        });
        if (found == items.end()) {
            found = std::ranges::find_if(items, [&wanted](const QAction* item) {
                return nameOf(*item).contains(wanted, Qt::CaseInsensitive);
            });
        }
        return found == items.end() ? nullptr : *found;
    }

    QString m_typed;
    QElapsedTimer m_sinceKey;
};

} // namespace

FilterBar::FilterBar(
    BookFilter& filter, const ColumnDictionary& columns, const QLocale& locale, QWidget* parent)
    : QWidget(parent)
    , m_filter(filter)
    , m_columns(columns)
    , m_locale(locale)
    , m_ui(std::make_unique<Ui::FilterBar>())
    , m_menu(new FieldMenu(this))
    , m_items(new QActionGroup(this))
{
    m_ui->setupUi(this);
    // As wide as its widest page, so that nothing moves when another page comes.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_ui->m_idFilterDropDown->setIcon(symbolicIcon(u"search"_s));
    m_ui->m_idFilterDropDown->setMenu(m_menu);
    m_ui->m_idFilterPage_Text->setFocusProxy(m_ui->m_idFilter_Text);
    m_ui->m_idFilterPage_Date->setFocusProxy(m_ui->m_idFilter_DateYearText);
    m_ui->m_idFilterPage_Checked->setFocusProxy(m_ui->m_idFilter_CheckedStatusDropDown);
    m_ui->m_idFilterPage_Numeric->setFocusProxy(m_ui->m_idFilter_NumericText);
    m_ui->m_idFilterPage_BookType->setFocusProxy(m_ui->m_idFilter_BookTypeDropDown);
    m_ui->m_idFilterPage_BookRating->setFocusProxy(m_ui->m_idFilter_BookRatingDropDown);
    m_ui->m_idFilterPage_Images->setFocusProxy(m_ui->m_idFilter_ImageStatusDropDown);
    m_ui->m_idFilterPage_Groups->setFocusProxy(m_ui->m_idFilter_GroupStatusDropDown);
    for (QComboBox* const popUp : findChildren<QComboBox*>())
        setAccessiblePurpose(*popUp, popUp->accessibleName());
    for (QLineEdit* const line : findChildren<QLineEdit*>())
        nameClearButton(*line);
    addChoices();
    updateSizes();
    connectControls();
}

FilterBar::~FilterBar() = default;

void FilterBar::addChoices()
{
    addTaggedItems(
        *m_ui->m_idFilter_CheckedStatusDropDown, {tr("All books"), tr("Checked"), tr("Unchecked")});
    addTaggedItems(*m_ui->m_idFilter_ImageStatusDropDown,
        {tr("All books"), tr("With pictures"), tr("Without pictures")});
    addTaggedItems(*m_ui->m_idFilter_GroupStatusDropDown,
        {tr("All books"), tr("In a group"), tr("In no group")});
    addTaggedItems(*m_ui->m_idFilter_NumericDropDown,
        {tr("is"), tr("is not"), tr("less than"), tr("greater than")});
    addTaggedItems(*m_ui->m_idFilter_DateDropDown,
        {tr("is"), tr("is not"), tr("before"), tr("after"), tr("on or before"), tr("on or after")});
    QStringList months{tr("Any month")};
    for (int month = 1; month <= lastMonth; ++month)
        months.append(displayMonth(month));
    addTaggedItems(*m_ui->m_idFilter_DateMonthDropDown, months);
    QStringList types;
    for (qint32 type = 0; type < typeCount; ++type)
        types.append(displayType(type));
    addTaggedItems(*m_ui->m_idFilter_BookTypeDropDown, types);
    QStringList ratings{tr("None")};
    for (qint32 rating = 1; rating <= largestRating; ++rating)
        ratings.append(QString::number(rating));
    addTaggedItems(*m_ui->m_idFilter_BookRatingDropDown, ratings);
}

void FilterBar::connectControls()
{
    connect(m_menu, &QMenu::triggered, this, [this](QAction* item) {
        m_selectedItem = item;
        changedFilterType();
    });
    const auto onChange = [this](const QComboBox* popUp, void (FilterBar::*changed)()) {
        connect(popUp, &QComboBox::currentIndexChanged, this, changed);
    };
    onChange(m_ui->m_idFilter_CheckedStatusDropDown, &FilterBar::changedFilter_CheckedDropDown);
    onChange(m_ui->m_idFilter_ImageStatusDropDown, &FilterBar::changedFilter_ImageDropDown);
    onChange(m_ui->m_idFilter_GroupStatusDropDown, &FilterBar::changedFilter_GroupDropDown);
    onChange(m_ui->m_idFilter_NumericDropDown, &FilterBar::changedFilter_NumericDropDown);
    onChange(m_ui->m_idFilter_BookTypeDropDown, &FilterBar::changedFilter_BookTypeDropDown);
    onChange(m_ui->m_idFilter_BookRatingDropDown, &FilterBar::changedFilter_BookRatingDropDown);
    onChange(m_ui->m_idFilter_DateDropDown, &FilterBar::changedFilter_DateDropDown);
    onChange(m_ui->m_idFilter_DateMonthDropDown, &FilterBar::changedFilter_DateMonthDropDown);
    connect(m_ui->m_idFilter_Text, &QLineEdit::textChanged, this, &FilterBar::filterDidChange);
    connect(m_ui->m_idFilter_NumericText, &QLineEdit::textChanged, this,
        &FilterBar::filterNumericTextDidChange);
    connect(m_ui->m_idFilter_DateYearText, &QLineEdit::textChanged, this,
        &FilterBar::filterDateYearTextDidChange);
}

// The menu of fields

void FilterBar::initFilterDropDown()
{
    QString title = m_selectedItem ? m_selectedItem->data().toString() : QString();
    m_menu->clear();
    collectFilterColumns();
    for (const ColumnEntry& column : m_filterColumns) {
        addFieldItem(column);
        if (keyOf(column) == m_filter.m_nSelectedFilter)
            title = column.getSelectionName();
    }
    m_selectedItem = itemTitled(title);
    changedFilterType();
}

void FilterBar::collectFilterColumns()
{
    std::vector<ColumnEntry> columns{
        entry(ColumnKey::Images, QT_TRANSLATE_NOOP("Columns", "Images"), FilterType::Images),
        entry(ColumnKey::Groups, QT_TRANSLATE_NOOP("Columns", "Groups"), FilterType::Groups),
    };
    for (const auto& [key, column] : m_columns)
        columns.push_back(column);
    std::ranges::stable_sort(columns, precedes);
    m_filterColumns.assign(1,
        entry(ColumnKey::AuthorAndTitle, QT_TRANSLATE_NOOP("Columns", "Author & Title"),
            FilterType::Text));
    std::ranges::copy_if(columns, std::back_inserter(m_filterColumns),
        [](const ColumnEntry& column) { return column.getFilterType() >= FilterType::Text; });
}

void FilterBar::addFieldItem(const ColumnEntry& column)
{
    const QList<QAction*> items = m_menu->actions();
    const bool isFirstOfFields = items.size() == 1;
    const bool isFirstCustom = isCustom(column) && !items.isEmpty()
        && !items.last()->data().toString().startsWith(customSelectionName({}));
    if (isFirstOfFields || isFirstCustom)
        m_menu->addSeparator();
    QString text = displaySelectionName(column);
    QAction* const item = m_menu->addAction(text.replace(u'&', "&&"_L1));
    item->setData(column.getSelectionName());
    item->setCheckable(true);
    item->setActionGroup(m_items);
}

/// The first item with that title; nullptr when there is none.
QAction* FilterBar::itemTitled(const QString& title) const
{
    const QList<QAction*> items = m_menu->actions();
    const auto found = std::ranges::find_if(items, [&title](const QAction* item) {
        return !item->isSeparator() && item->data().toString() == title;
    });
    return found == items.end() ? nullptr : *found;
}

void FilterBar::changedFilterType()
{
    const QList<QAction*> items = m_menu->actions();
    for (QAction* const item : items)
        item->setChecked(item == m_selectedItem);
    m_filter.m_nSelectedFilter = ColumnKey::Title;
    const QString title = m_selectedItem ? m_selectedItem->data().toString() : QString();
    const auto chosen = std::ranges::find(m_filterColumns, title, &ColumnEntry::getSelectionName);
    if (chosen == m_filterColumns.end()) {
        m_ui->m_idFilterTab->setCurrentIndex(0);
        showLabel({});
    } else {
        m_filter.m_nSelectedFilter = keyOf(*chosen);
        const auto type = static_cast<std::size_t>(chosen->getFilterType());
        if (type < pageOfFilterType.size())
            m_ui->m_idFilterTab->setCurrentIndex(pageOfFilterType.at(type));
        showLabel(displaySelectionName(*chosen));
    }
    Q_EMIT filterChanged();
}

void FilterBar::showLabel(const QString& label)
{
    const QString search = label.isEmpty() ? tr("Search") : tr("Search %1").arg(label);
    m_ui->m_idFilter_Text->setPlaceholderText(search);
    m_ui->m_idFilter_Text->setAccessibleName(search);
    setAccessiblePurpose(*m_ui->m_idFilter_CheckedStatusDropDown, label);
    const QString choose =
        label.isEmpty() ? tr("Choose what to search") : tr("Choose what to search: %1").arg(label);
    m_ui->m_idFilterDropDown->setToolTip(choose);
    m_ui->m_idFilterDropDown->setAccessibleDescription(choose);
    m_ui->m_idFilterTab->setAccessibleDescription(label);
    Q_EMIT labelChanged(label);
}

// The controls of the pages

void FilterBar::changedFilter_CheckedDropDown()
{
    m_filter.m_nFilterSelectionForChecks = TriState{tagOf(*m_ui->m_idFilter_CheckedStatusDropDown)};
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_ImageDropDown()
{
    m_filter.m_nFilterSelectionForImages = TriState{tagOf(*m_ui->m_idFilter_ImageStatusDropDown)};
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_GroupDropDown()
{
    m_filter.m_nFilterSelectionForGroup = TriState{tagOf(*m_ui->m_idFilter_GroupStatusDropDown)};
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_NumericDropDown()
{
    m_filter.m_nFilterSelectionForNumeric = NumberTest{tagOf(*m_ui->m_idFilter_NumericDropDown)};
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_BookTypeDropDown()
{
    m_filter.m_nFilterSelectionForBookType = tagOf(*m_ui->m_idFilter_BookTypeDropDown);
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_BookRatingDropDown()
{
    m_filter.m_nFilterSelectionForBookRating = tagOf(*m_ui->m_idFilter_BookRatingDropDown);
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_DateDropDown()
{
    m_filter.m_nFilterSelectionForDate = DateTest{tagOf(*m_ui->m_idFilter_DateDropDown)};
    Q_EMIT filterChanged();
}

void FilterBar::changedFilter_DateMonthDropDown()
{
    m_filter.m_nFilter_DateMonth = tagOf(*m_ui->m_idFilter_DateMonthDropDown);
    Q_EMIT filterChanged();
}

void FilterBar::filterDidChange()
{
    m_filter.m_strFilter = m_ui->m_idFilter_Text->text();
    Q_EMIT filterChanged();
}

void FilterBar::filterNumericTextDidChange()
{
    setFilterNumber(m_filter, m_ui->m_idFilter_NumericText->text(), m_locale);
    Q_EMIT filterChanged();
}

void FilterBar::filterDateYearTextDidChange()
{
    setFilterYear(m_filter, m_ui->m_idFilter_DateYearText->text());
    Q_EMIT filterChanged();
}

// What commands ask for

void FilterBar::focusText()
{
    QWidget* const field = m_ui->m_idFilterTab->currentWidget()->focusProxy();
    field->setFocus(Qt::ShortcutFocusReason);
    if (auto* const line = qobject_cast<QLineEdit*>(field))
        line->selectAll();
}

bool FilterBar::isFiltering() const
{
    if (m_filter.isTextFilter())
        return !m_filter.m_strFilter.isEmpty();
    switch (m_filter.m_nSelectedFilter) {
    case ColumnKey::Images:
        return m_filter.m_nFilterSelectionForImages != TriState::All;
    case ColumnKey::Groups:
        return m_filter.m_nFilterSelectionForGroup != TriState::All;
    case ColumnKey::EstValueDate:
        return true;
    default:
        break;
    }
    switch (columnKind(m_filter.m_nSelectedFilter)) {
    case ColumnKind::Date:
        return m_filter.m_nFilter_DateMonth != 0 || m_filter.m_nFilter_DateYear != 0;
    case ColumnKind::Integer:
    case ColumnKind::Real:
        return m_filter.m_bFilter_NumericHasValue;
    case ColumnKind::Flag:
        return m_filter.m_nFilterSelectionForChecks != TriState::All;
    default:
        return true;
    }
}

void FilterBar::clear()
{
    {
        const QSignalBlocker oneRefresh(this);
        const QWidget& page = *m_ui->m_idFilterTab->currentWidget();
        for (auto* const popUp : page.findChildren<QComboBox*>())
            popUp->setCurrentIndex(0);
        for (auto* const line : page.findChildren<QLineEdit*>())
            line->clear();
        if (isFiltering()) {
            m_ui->m_idFilter_Text->clear();
            m_selectedItem = m_menu->actions().constFirst();
        }
    }
    changedFilterType();
}

// Looks

void FilterBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    if (isFiltering())
        clear();
    Q_EMIT left();
}

void FilterBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // The controls may hear of it later than the bar does.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &FilterBar::updateSizes, Qt::QueuedConnection);
}

void FilterBar::updateSizes()
{
    QToolButton& fields = *m_ui->m_idFilterDropDown;
    fields.setIconSize(QSize(fontMetrics().height(), fontMetrics().height()));
    // The arrow of the menu stands on the icon unless there is room beside it.
    fields.setMinimumWidth(fields.sizeHint().width()
        + fields.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, &fields));
    // The other texts take what room this page makes.
    QLineEdit& year = *m_ui->m_idFilter_DateYearText;
    year.setFixedWidth(year.minimumSizeHint().width()
        + year.fontMetrics().horizontalAdvance(QString(yearDigits, u'0')));
}

} // namespace tomely
