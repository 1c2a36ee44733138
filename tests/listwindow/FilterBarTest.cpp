#include "listwindow/FilterBar.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/BookFilter.h"
#include "tests/listwindow/FilterHands.h"
#include "tests/support/SmallCollection.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::chooseTag;
using samples::clickField;
using samples::control;
using samples::fieldButton;
using samples::fieldItems;
using samples::pages;
using samples::typeText;
using samples::withOpenMenu;

class FilterBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void offersFieldsInOrder();
    void offersCustomFieldsByTheirNames();
    void offersNoColumnWithoutFilterType();
    void startsAtTheFiltersField_data();
    void startsAtTheFiltersField();
    void showsThePageOfTheField_data();
    void showsThePageOfTheField();
    void leavesThePageForAnUnknownType();
    void tellsWhatFieldIsChosen();
    void keepsWhatOtherPagesHold();
    void offersTaggedChoices_data();
    void offersTaggedChoices();
    void namesMonthsInTheLocale();
    void actsAtEveryKey_data();
    void actsAtEveryKey();
    void readsNumbersLeniently();
    void readsNumbersOfTheLocale();
    void readsYearsLeniently();
    void keepsTheFieldThatWasRenamed();
    void takesTheFirstOfTwoFieldsOfOneName();
    void movesToTheFirstFieldThatTakesTheName();
    void findsAFieldThatIsGoneByItsName();
    void fallsBackToTitlesWithoutAField();
    void focusesTheMainField_data();
    void focusesTheMainField();
    void knowsWhetherItFilters();
    void clearsTheCondition_data();
    void clearsTheCondition();
    void escapeClearsAndLeaves();
    void leavesAFieldThatCannotBeCleared_data();
    void leavesAFieldThatCannotBeCleared();
    void opensTheMenuByKeyAtTheChosenField();
    void findsFieldsByTyping_data();
    void findsFieldsByTyping();
    void goesOnWithTheSameLetter();
    void namesEveryControl();
    void isAsWideOnEveryPage();
    void followsTheFont();

private:
    void makeBar(const QLocale& locale = QLocale::c());
    void rename(qint32 key, const QString& label);
    QStringList offered() const;
    QString marked() const;

    std::unique_ptr<BookListDocument> m_document;
    BookFilter m_filter;
    std::unique_ptr<FilterBar> m_bar;
};

void FilterBarTest::init()
{
    m_document = std::make_unique<BookListDocument>();
    m_filter = {};
    m_filter.m_nSelectedFilter = ColumnKey::AuthorAndTitle;
    makeBar();
}

void FilterBarTest::cleanup()
{
    m_bar.reset();
    m_document.reset();
}

void FilterBarTest::makeBar(const QLocale& locale)
{
    m_bar.reset();
    m_bar = std::make_unique<FilterBar>(m_filter, m_document->getListColumns(), locale);
    m_bar->initFilterDropDown();
    m_bar->show();
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
}

void FilterBarTest::rename(qint32 key, const QString& label)
{
    m_document->setCustomFieldLabel(label, key);
}

QStringList FilterBarTest::offered() const
{
    QStringList names;
    for (const QAction* const item : fieldItems(*m_bar))
        names.append(item->text().replace("&&"_L1, "&"_L1));
    return names;
}

/// The items with a check mark.
QString FilterBarTest::marked() const
{
    QStringList names;
    for (const QAction* const item : fieldItems(*m_bar)) {
        if (item->isChecked())
            names.append(item->text());
    }
    return names.join(u'|');
}

void FilterBarTest::offersFieldsInOrder()
{
    const QStringList builtIn{u"Author & Title"_s, u"Author"_s, u"Copyright Date"_s, u"Est Value"_s,
        u"Est Value Date"_s, u"First Edition"_s, u"First Read Date"_s, u"Groups"_s, u"Images"_s,
        u"ISBN"_s, u"Last Read Date"_s, u"Lent Date"_s, u"Lent To"_s, u"Location"_s, u"Notes"_s,
        u"Own"_s, u"Pages"_s, u"Price Paid"_s, u"Price Paid From"_s, u"Published Date"_s,
        u"Publisher"_s, u"Purchased Date"_s, u"Rating"_s, u"Read / Listened To"_s, u"Signed"_s,
        u"Title"_s, u"Type"_s};
    QCOMPARE(offered().first(builtIn.size()), builtIn);
    QCOMPARE(offered().size(), builtIn.size() + 18);
    QCOMPARE(offered().at(builtIn.size()), u"Custom: Custom Date 1"_s);
    QCOMPARE(offered().last(), u"Custom: Custom Switch 8"_s);

    samples::showColumns(*m_document, {ColumnKey::Title});
    m_bar->initFilterDropDown();
    QCOMPARE(offered().size(), builtIn.size() + 18);
}

void FilterBarTest::offersCustomFieldsByTheirNames()
{
    rename(76, u"A switch"_s);
    rename(42, u"mood & <mind>"_s);
    m_bar->initFilterDropDown();
    const qsizetype first = offered().indexOf(u"Custom: A switch"_s);
    QCOMPARE(offered().at(first - 1), u"Type"_s);
    QCOMPARE(offered().at(first + 1), u"Custom: mood & <mind>"_s);
    QCOMPARE(offered().at(first + 2), u"Custom: Custom Date 1"_s);
    clickField(*m_bar, u"Custom: mood & <mind>"_s);
    QCOMPARE(m_filter.m_nSelectedFilter, 42);
}

void FilterBarTest::offersNoColumnWithoutFilterType()
{
    samples::column(*m_document, 44).setFilterType(FilterType::NotSet);
    ColumnEntry foreign;
    foreign.setKey(100);
    foreign.setSelectionName(u"Foreign"_s);
    m_document->getListColumns()[u"100"_s] = foreign;
    m_bar->initFilterDropDown();
    QVERIFY(!offered().contains(u"Custom: Custom Field 2"_s));
    QVERIFY(!offered().contains(u"Foreign"_s));
    QVERIFY(offered().contains(u"Custom: Custom Field 1"_s));
}

void FilterBarTest::startsAtTheFiltersField_data()
{
    QTest::addColumn<qint32>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("author and title") << ColumnKey::AuthorAndTitle << u"Author && Title"_s;
    QTest::newRow("title") << ColumnKey::Title << u"Title"_s;
    QTest::newRow("images") << ColumnKey::Images << u"Images"_s;
    QTest::newRow("custom") << 42 << u"Custom: Custom Field 1"_s;
}

void FilterBarTest::startsAtTheFiltersField()
{
    QFETCH(const qint32, key);
    m_filter.m_nSelectedFilter = key;
    makeBar();
    QTEST(marked(), "name");
    QCOMPARE(m_filter.m_nSelectedFilter, key);
}

void FilterBarTest::showsThePageOfTheField_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<qint32>("key");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("control");
    QTest::newRow("text") << u"Author & Title"_s << -1 << 0 << u"m_idFilter_Text"_s;
    QTest::newRow("check box") << u"Own"_s << 18 << 2 << u"m_idFilter_CheckedStatusDropDown"_s;
    QTest::newRow("date") << u"Lent Date"_s << 80 << 1 << u"m_idFilter_DateDropDown"_s;
    QTest::newRow("number") << u"Pages"_s << 28 << 3 << u"m_idFilter_NumericDropDown"_s;
    QTest::newRow("type") << u"Type"_s << 84 << 4 << u"m_idFilter_BookTypeDropDown"_s;
    QTest::newRow("rating") << u"Rating"_s << 6 << 5 << u"m_idFilter_BookRatingDropDown"_s;
    QTest::newRow("images") << u"Images"_s << -2 << 6 << u"m_idFilter_ImageStatusDropDown"_s;
    QTest::newRow("groups") << u"Groups"_s << -3 << 7 << u"m_idFilter_GroupStatusDropDown"_s;
}

void FilterBarTest::showsThePageOfTheField()
{
    QFETCH(const QString, field);
    QFETCH(const QString, control);
    clickField(*m_bar, u"Title"_s);
    clickField(*m_bar, field);
    QTEST(m_filter.m_nSelectedFilter, "key");
    QTEST(pages(*m_bar).currentIndex(), "page");
    QCOMPARE(marked().replace("&&"_L1, "&"_L1), field);
    for (const auto* const widget : pages(*m_bar).findChildren<QWidget*>(
             QRegularExpression(u"^m_idFilter_.*(Text|DropDown)$"_s))) {
        const bool isOnPage = pages(*m_bar).currentWidget()->isAncestorOf(widget);
        QCOMPARE(widget->isVisible(), isOnPage);
        QVERIFY(widget->objectName() != control || isOnPage);
    }
}

void FilterBarTest::leavesThePageForAnUnknownType()
{
    clickField(*m_bar, u"Pages"_s);
    samples::column(*m_document, 42).setFilterType(static_cast<FilterType>(8));
    m_bar->initFilterDropDown();
    clickField(*m_bar, u"Custom: Custom Field 1"_s);
    QCOMPARE(m_filter.m_nSelectedFilter, 42);
    QCOMPARE(pages(*m_bar).currentIndex(), 3);
}

void FilterBarTest::tellsWhatFieldIsChosen()
{
    QSignalSpy label(m_bar.get(), &FilterBar::labelChanged);
    QSignalSpy changed(m_bar.get(), &FilterBar::filterChanged);
    auto& text = control<QLineEdit>(*m_bar, u"m_idFilter_Text"_s);
    QCOMPARE(text.placeholderText(), u"Search Author & Title"_s);
    clickField(*m_bar, u"Publisher"_s);
    QCOMPARE(label.size(), 1);
    QCOMPARE(label.first().first().toString(), u"Publisher"_s);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(text.placeholderText(), u"Search Publisher"_s);
    QCOMPARE(text.accessibleName(), u"Search Publisher"_s);
    clickField(*m_bar, u"Publisher"_s); // the mark does not go away by a second click
    QCOMPARE(marked(), u"Publisher"_s);
    clickField(*m_bar, u"Author & Title"_s);
    QCOMPARE(label.last().first().toString(), u"Author & Title"_s);
}

void FilterBarTest::keepsWhatOtherPagesHold()
{
    typeText(*m_bar, u"m_idFilter_Text"_s, u"emma"_s);
    clickField(*m_bar, u"Pages"_s);
    typeText(*m_bar, u"m_idFilter_NumericText"_s, u"300"_s);
    chooseTag(*m_bar, u"m_idFilter_NumericDropDown"_s, 3);
    clickField(*m_bar, u"Lent Date"_s);
    chooseTag(*m_bar, u"m_idFilter_DateMonthDropDown"_s, 6);
    typeText(*m_bar, u"m_idFilter_DateYearText"_s, u"2001"_s);
    clickField(*m_bar, u"Own"_s);
    chooseTag(*m_bar, u"m_idFilter_CheckedStatusDropDown"_s, 2);
    const BookFilter before = m_filter;
    for (const QString& field : {u"Rating"_s, u"Images"_s, u"Author & Title"_s})
        clickField(*m_bar, field);
    QCOMPARE(m_filter.m_strFilter, u"emma"_s);
    QCOMPARE(m_filter.m_dblFilter_Numeric, 300.0);
    QVERIFY(m_filter.m_bFilter_NumericHasValue);
    QVERIFY(m_filter.m_nFilterSelectionForNumeric == NumberTest::Greater);
    QCOMPARE(m_filter.m_nFilter_DateMonth, 6);
    QCOMPARE(m_filter.m_nFilter_DateYear, 2001);
    QVERIFY(m_filter.m_nFilterSelectionForChecks == TriState::OnlyUnset);
    QCOMPARE(control<QLineEdit>(*m_bar, u"m_idFilter_Text"_s).text(), u"emma"_s);
    QCOMPARE(control<QLineEdit>(*m_bar, u"m_idFilter_NumericText"_s).text(), u"300"_s);
}

void FilterBarTest::offersTaggedChoices_data()
{
    QTest::addColumn<QString>("popUp");
    QTest::addColumn<QStringList>("titles"); // by their tags
    QTest::newRow("checks") << u"m_idFilter_CheckedStatusDropDown"_s
                            << QStringList{u"All books"_s, u"Checked"_s, u"Unchecked"_s};
    QTest::newRow("images") << u"m_idFilter_ImageStatusDropDown"_s
                            << QStringList{
                                   u"All books"_s, u"With pictures"_s, u"Without pictures"_s};
    QTest::newRow("groups") << u"m_idFilter_GroupStatusDropDown"_s
                            << QStringList{u"All books"_s, u"In a group"_s, u"In no group"_s};
    QTest::newRow("numbers") << u"m_idFilter_NumericDropDown"_s
                             << QStringList{
                                    u"is"_s, u"is not"_s, u"less than"_s, u"greater than"_s};
    QTest::newRow("dates") << u"m_idFilter_DateDropDown"_s
                           << QStringList{u"is"_s, u"is not"_s, u"before"_s, u"after"_s,
                                  u"on or before"_s, u"on or after"_s};
    QTest::newRow("months") << u"m_idFilter_DateMonthDropDown"_s
                            << QStringList{u"Any month"_s, u"January"_s, u"February"_s, u"March"_s,
                                   u"April"_s, u"May"_s, u"June"_s, u"July"_s, u"August"_s,
                                   u"September"_s, u"October"_s, u"November"_s, u"December"_s};
    QTest::newRow("types") << u"m_idFilter_BookTypeDropDown"_s
                           << QStringList{
                                  u"Hardcover"_s, u"Paperback"_s, u"Audio Book"_s, u"eBook"_s};
    QTest::newRow("ratings") << u"m_idFilter_BookRatingDropDown"_s
                             << QStringList{u"None"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s};
}

void FilterBarTest::offersTaggedChoices()
{
    QFETCH(const QString, popUp);
    const auto& box = control<QComboBox>(*m_bar, popUp);
    QStringList titles;
    for (int index = 0; index < box.count(); ++index) {
        titles.append(box.itemText(index));
        QCOMPARE(box.itemData(index).toInt(), index);
    }
    QTEST(titles, "titles");
}

void FilterBarTest::namesMonthsInTheLocale()
{
    makeBar(QLocale(u"de_DE"_s));
    const auto& months = control<QComboBox>(*m_bar, u"m_idFilter_DateMonthDropDown"_s);
    QCOMPARE(months.itemText(3), u"März"_s);
}

void FilterBarTest::actsAtEveryKey_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("line");
    QTest::newRow("text") << u"Author & Title"_s << u"m_idFilter_Text"_s;
    QTest::newRow("number") << u"Pages"_s << u"m_idFilter_NumericText"_s;
    QTest::newRow("year") << u"Lent Date"_s << u"m_idFilter_DateYearText"_s;
}

void FilterBarTest::actsAtEveryKey()
{
    QFETCH(const QString, field);
    QFETCH(const QString, line);
    clickField(*m_bar, field);
    auto& text = control<QLineEdit>(*m_bar, line);
    text.setFocus();
    QStringList seen; // at each change, in the filter
    connect(
        m_bar.get(), &FilterBar::filterChanged, &text,
        [&] {
            seen.append(m_filter.m_strFilter + QString::number(m_filter.m_dblFilter_Numeric)
                + QString::number(m_filter.m_nFilter_DateYear));
            m_bar->initFilterDropDown(); // even if the names were to change just then
        },
        Qt::SingleShotConnection);
    QSignalSpy changed(m_bar.get(), &FilterBar::filterChanged);
    QTest::keyClicks(&text, u"1984"_s);
    QVERIFY(changed.size() >= 4);
    QCOMPARE(seen.size(), 1);
    QVERIFY(seen.first().contains(u'1'));
    QCOMPARE(text.text(), u"1984"_s);
    QVERIFY(text.hasFocus());
    QCOMPARE(text.cursorPosition(), 4);
    changed.clear();
    QTest::keyClick(&text, Qt::Key_Backspace);
    QCOMPARE(changed.size(), 1);
    QTest::mouseClick(text.findChild<QToolButton*>(), Qt::LeftButton); // what clears the field
    QCOMPARE(changed.size(), 2);
    QVERIFY(!m_bar->isFiltering());
}

void FilterBarTest::readsNumbersLeniently()
{
    clickField(*m_bar, u"Pages"_s);
    const auto type = [this](const QString& text) {
        typeText(*m_bar, u"m_idFilter_NumericText"_s, text);
    };
    type(u"12abc"_s);
    QCOMPARE(m_filter.m_dblFilter_Numeric, 12.0);
    type(u"-5"_s);
    QCOMPARE(m_filter.m_dblFilter_Numeric, 5.0);
    QVERIFY(m_filter.m_bFilter_NumericHasValue);
    type(u"abc"_s);
    QCOMPARE(m_filter.m_dblFilter_Numeric, 0.0);
    QVERIFY(!m_filter.m_bFilter_NumericHasValue);
    // A point in place of a whole number, at one go, leaves the number.
    type(u"7"_s);
    control<QLineEdit>(*m_bar, u"m_idFilter_NumericText"_s).selectAll();
    QTest::keyClick(&control<QLineEdit>(*m_bar, u"m_idFilter_NumericText"_s), Qt::Key_Period);
    QCOMPARE(m_filter.m_dblFilter_Numeric, 7.0);
    QVERIFY(m_filter.m_bFilter_NumericHasValue);
}

void FilterBarTest::readsNumbersOfTheLocale()
{
    makeBar(QLocale(u"de_DE"_s));
    clickField(*m_bar, u"Price Paid"_s);
    typeText(*m_bar, u"m_idFilter_NumericText"_s, u"1,5"_s);
    QCOMPARE(m_filter.m_dblFilter_Numeric, 1.5);
}

void FilterBarTest::readsYearsLeniently()
{
    clickField(*m_bar, u"Lent Date"_s);
    typeText(*m_bar, u"m_idFilter_DateYearText"_s, u"19x9"_s);
    QCOMPARE(m_filter.m_nFilter_DateYear, 199);
    typeText(*m_bar, u"m_idFilter_DateYearText"_s, {});
    QCOMPARE(m_filter.m_nFilter_DateYear, 0);
}

void FilterBarTest::keepsTheFieldThatWasRenamed()
{
    clickField(*m_bar, u"Custom: Custom Date 2"_s);
    QSignalSpy label(m_bar.get(), &FilterBar::labelChanged);
    rename(58, u"Bound"_s);
    rename(60, u"Custom Date 2"_s); // the name that the field had
    m_bar->initFilterDropDown();
    QCOMPARE(m_filter.m_nSelectedFilter, 58);
    QCOMPARE(marked(), u"Custom: Bound"_s);
    QCOMPARE(pages(*m_bar).currentIndex(), 1);
    QCOMPARE(label.last().first().toString(), u"Custom: Bound"_s);
}

void FilterBarTest::takesTheFirstOfTwoFieldsOfOneName()
{
    rename(44, u"Mood"_s);
    rename(62, u"Mood"_s);
    m_bar->initFilterDropDown();
    const qsizetype first = offered().indexOf(u"Custom: Mood"_s);
    QCOMPARE(offered().at(first + 1), u"Custom: Mood"_s);
    clickField(*m_bar, first + 1);
    QCOMPARE(m_filter.m_nSelectedFilter, 44);
    QCOMPARE(pages(*m_bar).currentIndex(), 0);
    QVERIFY(fieldItems(*m_bar).at(first + 1)->isChecked());
    QCOMPARE(marked(), u"Custom: Mood"_s); // once
    m_bar->initFilterDropDown();
    QCOMPARE(m_filter.m_nSelectedFilter, 44);
    QVERIFY(fieldItems(*m_bar).at(first)->isChecked());
}

void FilterBarTest::movesToTheFirstFieldThatTakesTheName()
{
    rename(62, u"Mood"_s);
    m_bar->initFilterDropDown();
    clickField(*m_bar, u"Custom: Mood"_s);
    QCOMPARE(m_filter.m_nSelectedFilter, 62);
    rename(44, u"Mood"_s);
    m_bar->initFilterDropDown();
    QCOMPARE(m_filter.m_nSelectedFilter, 44);
    QCOMPARE(pages(*m_bar).currentIndex(), 0);
}

void FilterBarTest::findsAFieldThatIsGoneByItsName()
{
    clickField(*m_bar, u"Custom: Custom Field 1"_s);
    samples::column(*m_document, 42).setFilterType(FilterType::NotSet);
    samples::column(*m_document, 62).setSelectionName(u"Custom: Custom Field 1"_s);
    m_bar->initFilterDropDown();
    QCOMPARE(m_filter.m_nSelectedFilter, 62);
    QCOMPARE(pages(*m_bar).currentIndex(), 2);
}

void FilterBarTest::fallsBackToTitlesWithoutAField()
{
    clickField(*m_bar, u"Custom: Custom Switch 1"_s);
    samples::column(*m_document, 62).setFilterType(FilterType::NotSet);
    QSignalSpy label(m_bar.get(), &FilterBar::labelChanged);
    QSignalSpy changed(m_bar.get(), &FilterBar::filterChanged);
    m_bar->initFilterDropDown();
    QCOMPARE(m_filter.m_nSelectedFilter, ColumnKey::Title);
    QCOMPARE(pages(*m_bar).currentIndex(), 0);
    QCOMPARE(label.size(), 1);
    QCOMPARE(label.first().first().toString(), QString());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(marked(), QString());
    QCOMPARE(control<QLineEdit>(*m_bar, u"m_idFilter_Text"_s).placeholderText(), u"Search"_s);
}

void FilterBarTest::focusesTheMainField_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("main");
    QTest::newRow("text") << u"Title"_s << u"m_idFilter_Text"_s;
    QTest::newRow("check box") << u"Own"_s << u"m_idFilter_CheckedStatusDropDown"_s;
    QTest::newRow("date") << u"Lent Date"_s << u"m_idFilter_DateYearText"_s;
    QTest::newRow("number") << u"Pages"_s << u"m_idFilter_NumericText"_s;
    QTest::newRow("type") << u"Type"_s << u"m_idFilter_BookTypeDropDown"_s;
    QTest::newRow("rating") << u"Rating"_s << u"m_idFilter_BookRatingDropDown"_s;
    QTest::newRow("images") << u"Images"_s << u"m_idFilter_ImageStatusDropDown"_s;
    QTest::newRow("groups") << u"Groups"_s << u"m_idFilter_GroupStatusDropDown"_s;
}

void FilterBarTest::focusesTheMainField()
{
    QFETCH(const QString, field);
    QFETCH(const QString, main);
    clickField(*m_bar, field);
    auto* const line = m_bar->findChild<QLineEdit*>(main);
    if (line)
        line->setText(u"1984"_s);
    for (int time = 0; time < 2; ++time) { // the second time it has the focus already
        m_bar->focusText();
        QVERIFY(m_bar->findChild<QWidget*>(main)->hasFocus());
        if (line) {
            QCOMPARE(line->selectedText(), u"1984"_s);
            line->deselect();
        }
    }
}

void FilterBarTest::knowsWhetherItFilters()
{
    const auto afterChoosing = [this](const QString& field) {
        clickField(*m_bar, field);
        return m_bar->isFiltering();
    };
    QVERIFY(!m_bar->isFiltering());
    typeText(*m_bar, u"m_idFilter_Text"_s, u"a"_s);
    QVERIFY(m_bar->isFiltering());
    // What a page that is not shown holds does not count.
    for (const QString& field : {u"Own"_s, u"Lent Date"_s, u"Pages"_s, u"Images"_s, u"Groups"_s})
        QVERIFY2(!afterChoosing(field), qPrintable(field));
    QVERIFY(afterChoosing(u"Publisher"_s));
    // These always ask for one value.
    for (const QString& field : {u"Rating"_s, u"Type"_s, u"Est Value Date"_s})
        QVERIFY2(afterChoosing(field), qPrintable(field));
}

void FilterBarTest::escapeClearsAndLeaves()
{
    const QSignalSpy left(m_bar.get(), &FilterBar::left);
    auto& field = samples::control<QLineEdit>(*m_bar, u"m_idFilter_Text"_s);
    field.setFocus();
    QTest::keyClicks(&field, u"emma"_s);
    QTest::keyClick(&field, Qt::Key_Escape);
    QCOMPARE(field.text(), QString());
    QVERIFY(!m_bar->isFiltering());
    QCOMPARE(left.size(), 1);
    QTest::keyClick(&field, Qt::Key_Escape);
    QCOMPARE(left.size(), 2);
}

void FilterBarTest::clearsTheCondition_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("control");
    QTest::newRow("text") << u"Author & Title"_s << u"m_idFilter_Text"_s;
    QTest::newRow("text of one field") << u"Notes"_s << u"m_idFilter_Text"_s;
    QTest::newRow("check box") << u"Own"_s << u"m_idFilter_CheckedStatusDropDown"_s;
    QTest::newRow("month") << u"Lent Date"_s << u"m_idFilter_DateMonthDropDown"_s;
    QTest::newRow("year") << u"Lent Date"_s << u"m_idFilter_DateYearText"_s;
    QTest::newRow("number") << u"Pages"_s << u"m_idFilter_NumericText"_s;
    QTest::newRow("images") << u"Images"_s << u"m_idFilter_ImageStatusDropDown"_s;
    QTest::newRow("groups") << u"Groups"_s << u"m_idFilter_GroupStatusDropDown"_s;
}

void FilterBarTest::clearsTheCondition()
{
    QFETCH(const QString, field);
    QFETCH(const QString, control);
    clickField(*m_bar, field);
    if (m_bar->findChild<QLineEdit*>(control))
        typeText(*m_bar, control, u"12"_s);
    else
        chooseTag(*m_bar, control, 2);
    QVERIFY(m_bar->isFiltering());
    const qint32 key = m_filter.m_nSelectedFilter;
    QSignalSpy changed(m_bar.get(), &FilterBar::filterChanged);
    m_bar->clear();
    QVERIFY(!m_bar->isFiltering());
    QCOMPARE(m_filter.m_nSelectedFilter, key);
    QCOMPARE(changed.size(), 1);
    if (const auto* const line = m_bar->findChild<QLineEdit*>(control))
        QVERIFY(line->text().isEmpty());
    else
        QCOMPARE(m_bar->findChild<QComboBox*>(control)->currentIndex(), 0);
}

void FilterBarTest::leavesAFieldThatCannotBeCleared_data()
{
    QTest::addColumn<QString>("field");
    QTest::newRow("rating") << u"Rating"_s;
    QTest::newRow("type") << u"Type"_s;
    QTest::newRow("the date that hides all") << u"Est Value Date"_s;
}

void FilterBarTest::leavesAFieldThatCannotBeCleared()
{
    QFETCH(const QString, field);
    typeText(*m_bar, u"m_idFilter_Text"_s, u"nowhere"_s);
    clickField(*m_bar, field);
    QSignalSpy changed(m_bar.get(), &FilterBar::filterChanged);
    QSignalSpy label(m_bar.get(), &FilterBar::labelChanged);
    m_bar->clear();
    QVERIFY(!m_bar->isFiltering());
    QCOMPARE(m_filter.m_nSelectedFilter, ColumnKey::AuthorAndTitle);
    QCOMPARE(m_filter.m_strFilter, QString());
    QCOMPARE(marked(), u"Author && Title"_s);
    QCOMPARE(pages(*m_bar).currentIndex(), 0);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(label.last().first().toString(), u"Author & Title"_s);
}

void FilterBarTest::opensTheMenuByKeyAtTheChosenField()
{
    clickField(*m_bar, u"Pages"_s);
    QString active;
    QTimer::singleShot(0, m_bar.get(), [this, &active] {
        QMenu& menu = *fieldButton(*m_bar).menu();
        if (menu.activeAction())
            active = menu.activeAction()->text();
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    fieldButton(*m_bar).setFocus(Qt::TabFocusReason);
    QVERIFY(fieldButton(*m_bar).hasFocus());
    QTest::keyClick(&fieldButton(*m_bar), Qt::Key_Space);
    QCOMPARE(active, u"Pages"_s);
    QCOMPARE(m_filter.m_nSelectedFilter, 30);
}

void FilterBarTest::findsFieldsByTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::newRow("a letter") << u"n"_s << u"Notes"_s;
    QTest::newRow("a beginning") << u"pub"_s << u"Published Date"_s;
    QTest::newRow("a longer one") << u"publishER"_s << u"Publisher"_s;
    QTest::newRow("with a space") << u"lent t"_s << u"Lent To"_s;
    QTest::newRow("with an ampersand") << u"author &"_s << u"Author && Title"_s;
    QTest::newRow("within") << u"mood"_s << u"Custom: Mood"_s;
    QTest::newRow("a custom one") << u"custom: m"_s << u"Custom: Mood"_s;
    QTest::newRow("nothing") << u"qq"_s << u"Title"_s;
}

void FilterBarTest::findsFieldsByTyping()
{
    QFETCH(const QString, typed);
    rename(62, u"Mood"_s);
    m_bar->initFilterDropDown();
    clickField(*m_bar, u"Title"_s);
    withOpenMenu(*m_bar, [&typed](QMenu& menu) {
        for (const QChar letter : typed)
            QTest::sendKeyEvent(QTest::Click, &menu, Qt::Key_unknown, QString(letter), {});
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    QTEST(marked(), "found");
}

void FilterBarTest::goesOnWithTheSameLetter()
{
    QStringList active;
    withOpenMenu(*m_bar, [&active](QMenu& menu) {
        for (int time = 0; time < 4; ++time) {
            QTest::keyClick(&menu, Qt::Key_L);
            active.append(menu.activeAction()->text());
        }
        QTest::keyClick(&menu, Qt::Key_L);
    });
    QCOMPARE(
        active, (QStringList{u"Last Read Date"_s, u"Lent Date"_s, u"Lent To"_s, u"Location"_s}));
    QCOMPARE(marked(), u"Author && Title"_s); // none was chosen
}

void FilterBarTest::namesEveryControl()
{
    clickField(*m_bar, u"Own"_s);
    QVERIFY(!fieldButton(*m_bar).accessibleName().isEmpty());
    QVERIFY(!fieldButton(*m_bar).icon().isNull());
    QCOMPARE(control<QComboBox>(*m_bar, u"m_idFilter_CheckedStatusDropDown"_s).accessibleName(),
        u"Own"_s);
    for (const auto* const widget : pages(*m_bar).findChildren<QWidget*>(
             QRegularExpression(u"^m_idFilter_.*(Text|DropDown)$"_s)))
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
}

void FilterBarTest::isAsWideOnEveryPage()
{
    const QSize size = m_bar->sizeHint();
    for (qsizetype place = 0; place < fieldItems(*m_bar).size(); ++place) {
        clickField(*m_bar, place);
        for (auto* const line : pages(*m_bar).currentWidget()->findChildren<QLineEdit*>())
            line->setText(u"1984"_s); // and its clear button
        QCOMPARE(m_bar->sizeHint(), size);
        QCOMPARE(m_bar->minimumSizeHint(), size);
    }
}

void FilterBarTest::followsTheFont()
{
    const QSize size = m_bar->sizeHint();
    QFont font = m_bar->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    m_bar->setFont(font);
    // Pages that were never shown count too.
    QTRY_VERIFY(m_bar->sizeHint().width() > size.width() * 3 / 2);
    QCOMPARE(fieldButton(*m_bar).iconSize().height(), m_bar->fontMetrics().height());
    const QSize larger = m_bar->sizeHint();
    clickField(*m_bar, u"Lent Date"_s);
    QCOMPARE(m_bar->sizeHint(), larger);
    const auto& year = control<QLineEdit>(*m_bar, u"m_idFilter_DateYearText"_s);
    QVERIFY(year.width() > year.fontMetrics().horizontalAdvance(u"1984"_s));
}

QTEST_MAIN(FilterBarTest)
#include "FilterBarTest.moc"
