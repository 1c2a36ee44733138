#include "listwindow/FilterBar.h"

#include "tests/listwindow/FilterDesk.h"
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

// The pages of the filter bar: their controls and what these write into the filter.
class FilterPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsThePageOfTheField_data();
    void showsThePageOfTheField();
    void leavesThePageForAnUnknownType();
    void keepsWhatOtherPagesHold();
    void offersTaggedChoices_data();
    void offersTaggedChoices();
    void actsAtEveryKey_data();
    void actsAtEveryKey();
    void readsNumbersLeniently();
    void readsNumbersOfTheLocale();
    void readsYearsLeniently();
    void focusesTheMainField_data();
    void focusesTheMainField();
    void knowsWhetherItFilters();
    void clearsTheCondition_data();
    void clearsTheCondition();
    void escapeClearsAndLeaves();
    void leavesAFieldThatCannotBeCleared_data();
    void leavesAFieldThatCannotBeCleared();
    void namesEveryControl();
    void isAsWideOnEveryPage();
    void followsTheFont();

private:
    QString marked() const;

    std::unique_ptr<FilterDesk> m_desk;
};

void FilterPagesTest::init()
{
    m_desk = std::make_unique<FilterDesk>();
}

void FilterPagesTest::cleanup()
{
    m_desk.reset();
}

/// The items with a check mark.
QString FilterPagesTest::marked() const
{
    QStringList names;
    for (const QAction* const item : fieldItems(*m_desk->bar)) {
        if (item->isChecked())
            names.append(item->text());
    }
    return names.join(u'|');
}

void FilterPagesTest::showsThePageOfTheField_data()
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

void FilterPagesTest::showsThePageOfTheField()
{
    QFETCH(const QString, field);
    QFETCH(const QString, control);
    clickField(*m_desk->bar, u"Title"_s);
    clickField(*m_desk->bar, field);
    QTEST(m_desk->filter.m_nSelectedFilter, "key");
    QTEST(pages(*m_desk->bar).currentIndex(), "page");
    QCOMPARE(marked().replace("&&"_L1, "&"_L1), field);
    for (const auto* const widget :
        pages(*m_desk->bar)
            .findChildren<QWidget*>(QRegularExpression(u"^m_idFilter_.*(Text|DropDown)$"_s))) {
        const bool isOnPage = pages(*m_desk->bar).currentWidget()->isAncestorOf(widget);
        QCOMPARE(widget->isVisible(), isOnPage);
        QVERIFY(widget->objectName() != control || isOnPage);
    }
}

void FilterPagesTest::leavesThePageForAnUnknownType()
{
    clickField(*m_desk->bar, u"Pages"_s);
    samples::column(m_desk->document, 42).setFilterType(static_cast<FilterType>(8));
    m_desk->bar->initFilterDropDown();
    clickField(*m_desk->bar, u"Custom: Custom Field 1"_s);
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 42);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 3);
}

void FilterPagesTest::keepsWhatOtherPagesHold()
{
    typeText(*m_desk->bar, u"m_idFilter_Text"_s, u"emma"_s);
    clickField(*m_desk->bar, u"Pages"_s);
    typeText(*m_desk->bar, u"m_idFilter_NumericText"_s, u"300"_s);
    chooseTag(*m_desk->bar, u"m_idFilter_NumericDropDown"_s, 3);
    clickField(*m_desk->bar, u"Lent Date"_s);
    chooseTag(*m_desk->bar, u"m_idFilter_DateMonthDropDown"_s, 6);
    typeText(*m_desk->bar, u"m_idFilter_DateYearText"_s, u"2001"_s);
    clickField(*m_desk->bar, u"Own"_s);
    chooseTag(*m_desk->bar, u"m_idFilter_CheckedStatusDropDown"_s, 2);
    const BookFilter before = m_desk->filter;
    for (const QString& field : {u"Rating"_s, u"Images"_s, u"Author & Title"_s})
        clickField(*m_desk->bar, field);
    QCOMPARE(m_desk->filter.m_strFilter, u"emma"_s);
    QCOMPARE(m_desk->filter.m_dblFilter_Numeric, 300.0);
    QVERIFY(m_desk->filter.m_bFilter_NumericHasValue);
    QVERIFY(m_desk->filter.m_nFilterSelectionForNumeric == NumberTest::Greater);
    QCOMPARE(m_desk->filter.m_nFilter_DateMonth, 6);
    QCOMPARE(m_desk->filter.m_nFilter_DateYear, 2001);
    QVERIFY(m_desk->filter.m_nFilterSelectionForChecks == TriState::OnlyUnset);
    QCOMPARE(control<QLineEdit>(*m_desk->bar, u"m_idFilter_Text"_s).text(), u"emma"_s);
    QCOMPARE(control<QLineEdit>(*m_desk->bar, u"m_idFilter_NumericText"_s).text(), u"300"_s);
}

void FilterPagesTest::offersTaggedChoices_data()
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

void FilterPagesTest::offersTaggedChoices()
{
    QFETCH(const QString, popUp);
    const auto& box = control<QComboBox>(*m_desk->bar, popUp);
    QStringList titles;
    for (int index = 0; index < box.count(); ++index) {
        titles.append(box.itemText(index));
        QCOMPARE(box.itemData(index).toInt(), index);
    }
    QTEST(titles, "titles");
}

void FilterPagesTest::actsAtEveryKey_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("line");
    QTest::newRow("text") << u"Author & Title"_s << u"m_idFilter_Text"_s;
    QTest::newRow("number") << u"Pages"_s << u"m_idFilter_NumericText"_s;
    QTest::newRow("year") << u"Lent Date"_s << u"m_idFilter_DateYearText"_s;
}

void FilterPagesTest::actsAtEveryKey()
{
    QFETCH(const QString, field);
    QFETCH(const QString, line);
    clickField(*m_desk->bar, field);
    auto& text = control<QLineEdit>(*m_desk->bar, line);
    text.setFocus();
    QStringList seen; // at each change, in the filter
    connect(
        m_desk->bar.get(), &FilterBar::filterChanged, &text,
        [&] {
            seen.append(m_desk->filter.m_strFilter
                + QString::number(m_desk->filter.m_dblFilter_Numeric)
                + QString::number(m_desk->filter.m_nFilter_DateYear));
            m_desk->bar->initFilterDropDown(); // even if the names were to change just then
        },
        Qt::SingleShotConnection);
    QSignalSpy changed(m_desk->bar.get(), &FilterBar::filterChanged);
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
    QVERIFY(!m_desk->bar->isFiltering());
}

void FilterPagesTest::readsNumbersLeniently()
{
    clickField(*m_desk->bar, u"Pages"_s);
    const auto type = [this](const QString& text) {
        typeText(*m_desk->bar, u"m_idFilter_NumericText"_s, text);
    };
    type(u"12abc"_s);
    QCOMPARE(m_desk->filter.m_dblFilter_Numeric, 12.0);
    type(u"-5"_s);
    QCOMPARE(m_desk->filter.m_dblFilter_Numeric, 5.0);
    QVERIFY(m_desk->filter.m_bFilter_NumericHasValue);
    type(u"abc"_s);
    QCOMPARE(m_desk->filter.m_dblFilter_Numeric, 0.0);
    QVERIFY(!m_desk->filter.m_bFilter_NumericHasValue);
    // A point in place of a whole number, at one go, leaves the number.
    type(u"7"_s);
    control<QLineEdit>(*m_desk->bar, u"m_idFilter_NumericText"_s).selectAll();
    QTest::keyClick(&control<QLineEdit>(*m_desk->bar, u"m_idFilter_NumericText"_s), Qt::Key_Period);
    QCOMPARE(m_desk->filter.m_dblFilter_Numeric, 7.0);
    QVERIFY(m_desk->filter.m_bFilter_NumericHasValue);
}

void FilterPagesTest::readsNumbersOfTheLocale()
{
    m_desk->makeBar(QLocale(u"de_DE"_s));
    clickField(*m_desk->bar, u"Price Paid"_s);
    typeText(*m_desk->bar, u"m_idFilter_NumericText"_s, u"1,5"_s);
    QCOMPARE(m_desk->filter.m_dblFilter_Numeric, 1.5);
}

void FilterPagesTest::readsYearsLeniently()
{
    clickField(*m_desk->bar, u"Lent Date"_s);
    typeText(*m_desk->bar, u"m_idFilter_DateYearText"_s, u"19x9"_s);
    QCOMPARE(m_desk->filter.m_nFilter_DateYear, 199);
    typeText(*m_desk->bar, u"m_idFilter_DateYearText"_s, {});
    QCOMPARE(m_desk->filter.m_nFilter_DateYear, 0);
}

void FilterPagesTest::focusesTheMainField_data()
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

void FilterPagesTest::focusesTheMainField()
{
    QFETCH(const QString, field);
    QFETCH(const QString, main);
    clickField(*m_desk->bar, field);
    auto* const line = m_desk->bar->findChild<QLineEdit*>(main);
    if (line)
        line->setText(u"1984"_s);
    for (int time = 0; time < 2; ++time) { // the second time it has the focus already
        m_desk->bar->focusText();
        QVERIFY(m_desk->bar->findChild<QWidget*>(main)->hasFocus());
        if (line) {
            QCOMPARE(line->selectedText(), u"1984"_s);
            line->deselect();
        }
    }
}

void FilterPagesTest::knowsWhetherItFilters()
{
    const auto afterChoosing = [this](const QString& field) {
        clickField(*m_desk->bar, field);
        return m_desk->bar->isFiltering();
    };
    QVERIFY(!m_desk->bar->isFiltering());
    typeText(*m_desk->bar, u"m_idFilter_Text"_s, u"a"_s);
    QVERIFY(m_desk->bar->isFiltering());
    // What a page that is not shown holds does not count.
    for (const QString& field : {u"Own"_s, u"Lent Date"_s, u"Pages"_s, u"Images"_s, u"Groups"_s})
        QVERIFY2(!afterChoosing(field), qPrintable(field));
    QVERIFY(afterChoosing(u"Publisher"_s));
    // These always ask for one value.
    for (const QString& field : {u"Rating"_s, u"Type"_s, u"Est Value Date"_s})
        QVERIFY2(afterChoosing(field), qPrintable(field));
}

void FilterPagesTest::clearsTheCondition_data()
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

void FilterPagesTest::clearsTheCondition()
{
    QFETCH(const QString, field);
    QFETCH(const QString, control);
    clickField(*m_desk->bar, field);
    if (m_desk->bar->findChild<QLineEdit*>(control))
        typeText(*m_desk->bar, control, u"12"_s);
    else
        chooseTag(*m_desk->bar, control, 2);
    QVERIFY(m_desk->bar->isFiltering());
    const qint32 key = m_desk->filter.m_nSelectedFilter;
    QSignalSpy changed(m_desk->bar.get(), &FilterBar::filterChanged);
    m_desk->bar->clear();
    QVERIFY(!m_desk->bar->isFiltering());
    QCOMPARE(m_desk->filter.m_nSelectedFilter, key);
    QCOMPARE(changed.size(), 1);
    if (const auto* const line = m_desk->bar->findChild<QLineEdit*>(control))
        QVERIFY(line->text().isEmpty());
    else
        QCOMPARE(m_desk->bar->findChild<QComboBox*>(control)->currentIndex(), 0);
}

void FilterPagesTest::escapeClearsAndLeaves()
{
    const QSignalSpy left(m_desk->bar.get(), &FilterBar::left);
    auto& field = samples::control<QLineEdit>(*m_desk->bar, u"m_idFilter_Text"_s);
    field.setFocus();
    QTest::keyClicks(&field, u"emma"_s);
    QTest::keyClick(&field, Qt::Key_Escape);
    QCOMPARE(field.text(), QString());
    QVERIFY(!m_desk->bar->isFiltering());
    QCOMPARE(left.size(), 1);
    QTest::keyClick(&field, Qt::Key_Escape);
    QCOMPARE(left.size(), 2);
}

void FilterPagesTest::leavesAFieldThatCannotBeCleared_data()
{
    QTest::addColumn<QString>("field");
    QTest::newRow("rating") << u"Rating"_s;
    QTest::newRow("type") << u"Type"_s;
    QTest::newRow("the date that hides all") << u"Est Value Date"_s;
}

void FilterPagesTest::leavesAFieldThatCannotBeCleared()
{
    QFETCH(const QString, field);
    typeText(*m_desk->bar, u"m_idFilter_Text"_s, u"nowhere"_s);
    clickField(*m_desk->bar, field);
    QSignalSpy changed(m_desk->bar.get(), &FilterBar::filterChanged);
    QSignalSpy label(m_desk->bar.get(), &FilterBar::labelChanged);
    m_desk->bar->clear();
    QVERIFY(!m_desk->bar->isFiltering());
    QCOMPARE(m_desk->filter.m_nSelectedFilter, ColumnKey::AuthorAndTitle);
    QCOMPARE(m_desk->filter.m_strFilter, QString());
    QCOMPARE(marked(), u"Author && Title"_s);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 0);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(label.last().first().toString(), u"Author & Title"_s);
}

void FilterPagesTest::namesEveryControl()
{
    clickField(*m_desk->bar, u"Own"_s);
    QVERIFY(!fieldButton(*m_desk->bar).accessibleName().isEmpty());
    QVERIFY(!fieldButton(*m_desk->bar).icon().isNull());
    QCOMPARE(
        control<QComboBox>(*m_desk->bar, u"m_idFilter_CheckedStatusDropDown"_s).accessibleName(),
        u"Own"_s);
    for (const auto* const widget :
        pages(*m_desk->bar)
            .findChildren<QWidget*>(QRegularExpression(u"^m_idFilter_.*(Text|DropDown)$"_s)))
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
}

void FilterPagesTest::isAsWideOnEveryPage()
{
    const QSize size = m_desk->bar->sizeHint();
    for (qsizetype place = 0; place < fieldItems(*m_desk->bar).size(); ++place) {
        clickField(*m_desk->bar, place);
        for (auto* const line : pages(*m_desk->bar).currentWidget()->findChildren<QLineEdit*>())
            line->setText(u"1984"_s); // and its clear button
        QCOMPARE(m_desk->bar->sizeHint(), size);
        QCOMPARE(m_desk->bar->minimumSizeHint(), size);
    }
}

void FilterPagesTest::followsTheFont()
{
    const QSize size = m_desk->bar->sizeHint();
    QFont font = m_desk->bar->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    m_desk->bar->setFont(font);
    // Pages that were never shown count too.
    QTRY_VERIFY(m_desk->bar->sizeHint().width() > size.width() * 3 / 2);
    QCOMPARE(fieldButton(*m_desk->bar).iconSize().height(), m_desk->bar->fontMetrics().height());
    const QSize larger = m_desk->bar->sizeHint();
    clickField(*m_desk->bar, u"Lent Date"_s);
    QCOMPARE(m_desk->bar->sizeHint(), larger);
    const auto& year = control<QLineEdit>(*m_desk->bar, u"m_idFilter_DateYearText"_s);
    QVERIFY(year.width() > year.fontMetrics().horizontalAdvance(u"1984"_s));
}

QTEST_MAIN(FilterPagesTest)
#include "FilterPagesTest.moc"
