// The filter bar: a menu that chooses the field to filter by and, beside it, the controls that suit
// the field's kind. Every change is written into the filter at once and told; which books that
// shows is not the bar's business, and it knows neither the list nor the toolbar that it stands in.

#pragma once

#include "document/ColumnCatalogue.h"

#include <QLocale>
#include <QWidget>

#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;

namespace Ui {
class FilterBar;
}

namespace tomely {

struct BookFilter;

class FilterBar : public QWidget {
    Q_OBJECT

public:
    /// Filter and records must outlive the bar. Of the filter only the chosen field is taken over;
    /// the controls begin where a fresh filter does. The menu is empty until initFilterDropDown().
    FilterBar(BookFilter& filter, const ColumnDictionary& columns, const QLocale& locale = {},
        QWidget* parent = nullptr);
    ~FilterBar() override;

    /// Makes the menu of fields from the records, for their names may have changed. The filter's
    /// field stays chosen under its new name.
    void initFilterDropDown();

    /// Gives the focus to the current page's main field and selects what is in it.
    void focusText();

    /// True when the filter as it stands hides books, or would hide some that might come.
    bool isFiltering() const;

    /// Takes the condition off the chosen field. A field that cannot be without one gives way to
    /// "Author & Title" without a text. What the pages of other fields hold stays.
    void clear();

Q_SIGNALS:
    /// The filter was changed; the list is to be refreshed.
    void filterChanged();

    /// The person is done with the bar: Escape, which has taken the condition off.
    void left();

    /// The selection name of the chosen field; empty when none of the fields is.
    void labelChanged(const QString& label);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addChoices();
    void connectControls();
    void collectFilterColumns();
    void addFieldItem(const ColumnEntry& column);
    QAction* itemTitled(const QString& title) const;
    void showLabel(const QString& label);
    void updateSizes();

    void changedFilterType();
    void changedFilter_CheckedDropDown();
    void changedFilter_ImageDropDown();
    void changedFilter_GroupDropDown();
    void changedFilter_NumericDropDown();
    void changedFilter_BookTypeDropDown();
    void changedFilter_BookRatingDropDown();
    void changedFilter_DateDropDown();
    void changedFilter_DateMonthDropDown();
    void filterDidChange();
    void filterNumericTextDidChange();
    void filterDateYearTextDidChange();

    BookFilter& m_filter;
    const ColumnDictionary& m_columns;
    QLocale m_locale;
    std::unique_ptr<Ui::FilterBar> m_ui;
    QMenu* m_menu = nullptr;
    QActionGroup* m_items = nullptr; // of the menu: one of them is marked
    std::vector<ColumnEntry> m_filterColumns; // what the menu offers, in its order
    QAction* m_selectedItem = nullptr;
};

} // namespace tomely
