#include "listwindow/FilterBar.h"

#include "tests/listwindow/FilterDesk.h"
#include "tests/support/SmallCollection.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::clickField;
using samples::control;
using samples::fieldButton;
using samples::fieldItems;
using samples::pages;
using samples::withOpenMenu;

// The menu of fields: what it offers, and what choosing one means.
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
    void tellsWhatFieldIsChosen();
    void keepsTheFieldThatWasRenamed();
    void takesTheFirstOfTwoFieldsOfOneName();
    void movesToTheFirstFieldThatTakesTheName();
    void findsAFieldThatIsGoneByItsName();
    void fallsBackToTitlesWithoutAField();
    void opensTheMenuByKeyAtTheChosenField();
    void findsFieldsByTyping_data();
    void findsFieldsByTyping();
    void goesOnWithTheSameLetter();

private:
    void rename(qint32 key, const QString& label);
    QStringList offered() const;
    QString marked() const;

    std::unique_ptr<FilterDesk> m_desk;
};

void FilterBarTest::init()
{
    m_desk = std::make_unique<FilterDesk>();
}

void FilterBarTest::cleanup()
{
    m_desk.reset();
}

void FilterBarTest::rename(qint32 key, const QString& label)
{
    m_desk->document.setCustomFieldLabel(label, key);
}

QStringList FilterBarTest::offered() const
{
    QStringList names;
    for (const QAction* const item : fieldItems(*m_desk->bar))
        names.append(item->text().replace("&&"_L1, "&"_L1));
    return names;
}

/// The items with a check mark.
QString FilterBarTest::marked() const
{
    QStringList names;
    for (const QAction* const item : fieldItems(*m_desk->bar)) {
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

    samples::showColumns(m_desk->document, {ColumnKey::Title});
    m_desk->bar->initFilterDropDown();
    QCOMPARE(offered().size(), builtIn.size() + 18);
}

void FilterBarTest::offersCustomFieldsByTheirNames()
{
    rename(76, u"A switch"_s);
    rename(42, u"mood & <mind>"_s);
    m_desk->bar->initFilterDropDown();
    const qsizetype first = offered().indexOf(u"Custom: A switch"_s);
    QCOMPARE(offered().at(first - 1), u"Type"_s);
    QCOMPARE(offered().at(first + 1), u"Custom: mood & <mind>"_s);
    QCOMPARE(offered().at(first + 2), u"Custom: Custom Date 1"_s);
    clickField(*m_desk->bar, u"Custom: mood & <mind>"_s);
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 42);
}

void FilterBarTest::offersNoColumnWithoutFilterType()
{
    samples::column(m_desk->document, 44).setFilterType(FilterType::NotSet);
    ColumnEntry foreign;
    foreign.setKey(100);
    foreign.setSelectionName(u"Foreign"_s);
    m_desk->document.getListColumns()[u"100"_s] = foreign;
    m_desk->bar->initFilterDropDown();
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
    m_desk->filter.m_nSelectedFilter = key;
    m_desk->makeBar();
    QTEST(marked(), "name");
    QCOMPARE(m_desk->filter.m_nSelectedFilter, key);
}

void FilterBarTest::tellsWhatFieldIsChosen()
{
    QSignalSpy label(m_desk->bar.get(), &FilterBar::labelChanged);
    QSignalSpy changed(m_desk->bar.get(), &FilterBar::filterChanged);
    auto& text = control<QLineEdit>(*m_desk->bar, u"m_idFilter_Text"_s);
    QCOMPARE(text.placeholderText(), u"Search Author & Title"_s);
    clickField(*m_desk->bar, u"Publisher"_s);
    QCOMPARE(label.size(), 1);
    QCOMPARE(label.first().first().toString(), u"Publisher"_s);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(text.placeholderText(), u"Search Publisher"_s);
    QCOMPARE(text.accessibleName(), u"Search Publisher"_s);
    clickField(*m_desk->bar, u"Publisher"_s); // the mark does not go away by a second click
    QCOMPARE(marked(), u"Publisher"_s);
    clickField(*m_desk->bar, u"Author & Title"_s);
    QCOMPARE(label.last().first().toString(), u"Author & Title"_s);
}

void FilterBarTest::keepsTheFieldThatWasRenamed()
{
    clickField(*m_desk->bar, u"Custom: Custom Date 2"_s);
    QSignalSpy label(m_desk->bar.get(), &FilterBar::labelChanged);
    rename(58, u"Bound"_s);
    rename(60, u"Custom Date 2"_s); // the name that the field had
    m_desk->bar->initFilterDropDown();
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 58);
    QCOMPARE(marked(), u"Custom: Bound"_s);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 1);
    QCOMPARE(label.last().first().toString(), u"Custom: Bound"_s);
}

void FilterBarTest::takesTheFirstOfTwoFieldsOfOneName()
{
    rename(44, u"Mood"_s);
    rename(62, u"Mood"_s);
    m_desk->bar->initFilterDropDown();
    const qsizetype first = offered().indexOf(u"Custom: Mood"_s);
    QCOMPARE(offered().at(first + 1), u"Custom: Mood"_s);
    clickField(*m_desk->bar, first + 1);
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 44);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 0);
    QVERIFY(fieldItems(*m_desk->bar).at(first + 1)->isChecked());
    QCOMPARE(marked(), u"Custom: Mood"_s); // once
    m_desk->bar->initFilterDropDown();
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 44);
    QVERIFY(fieldItems(*m_desk->bar).at(first)->isChecked());
}

void FilterBarTest::movesToTheFirstFieldThatTakesTheName()
{
    rename(62, u"Mood"_s);
    m_desk->bar->initFilterDropDown();
    clickField(*m_desk->bar, u"Custom: Mood"_s);
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 62);
    rename(44, u"Mood"_s);
    m_desk->bar->initFilterDropDown();
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 44);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 0);
}

void FilterBarTest::findsAFieldThatIsGoneByItsName()
{
    clickField(*m_desk->bar, u"Custom: Custom Field 1"_s);
    samples::column(m_desk->document, 42).setFilterType(FilterType::NotSet);
    samples::column(m_desk->document, 62).setSelectionName(u"Custom: Custom Field 1"_s);
    m_desk->bar->initFilterDropDown();
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 62);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 2);
}

void FilterBarTest::fallsBackToTitlesWithoutAField()
{
    clickField(*m_desk->bar, u"Custom: Custom Switch 1"_s);
    samples::column(m_desk->document, 62).setFilterType(FilterType::NotSet);
    QSignalSpy label(m_desk->bar.get(), &FilterBar::labelChanged);
    QSignalSpy changed(m_desk->bar.get(), &FilterBar::filterChanged);
    m_desk->bar->initFilterDropDown();
    QCOMPARE(m_desk->filter.m_nSelectedFilter, ColumnKey::Title);
    QCOMPARE(pages(*m_desk->bar).currentIndex(), 0);
    QCOMPARE(label.size(), 1);
    QCOMPARE(label.first().first().toString(), QString());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(marked(), QString());
    QCOMPARE(control<QLineEdit>(*m_desk->bar, u"m_idFilter_Text"_s).placeholderText(), u"Search"_s);
}

void FilterBarTest::opensTheMenuByKeyAtTheChosenField()
{
    clickField(*m_desk->bar, u"Pages"_s);
    QString active;
    QTimer::singleShot(0, m_desk->bar.get(), [this, &active] {
        QMenu& menu = *fieldButton(*m_desk->bar).menu();
        if (menu.activeAction())
            active = menu.activeAction()->text();
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    fieldButton(*m_desk->bar).setFocus(Qt::TabFocusReason);
    QVERIFY(fieldButton(*m_desk->bar).hasFocus());
    QTest::keyClick(&fieldButton(*m_desk->bar), Qt::Key_Space);
    QCOMPARE(active, u"Pages"_s);
    QCOMPARE(m_desk->filter.m_nSelectedFilter, 30);
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
    m_desk->bar->initFilterDropDown();
    clickField(*m_desk->bar, u"Title"_s);
    withOpenMenu(*m_desk->bar, [&typed](QMenu& menu) {
        for (const QChar letter : typed)
            QTest::sendKeyEvent(QTest::Click, &menu, Qt::Key_unknown, QString(letter), {});
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    QTEST(marked(), "found");
}

void FilterBarTest::goesOnWithTheSameLetter()
{
    QStringList active;
    withOpenMenu(*m_desk->bar, [&active](QMenu& menu) {
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

QTEST_MAIN(FilterBarTest)
#include "FilterBarTest.moc"
