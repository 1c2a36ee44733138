#include "listwindow/engine/CsvChoices.h"

#include "platform/UserDefaults.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace tomely {

class CsvChoicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void startsWithTheDefaults()
    {
        const UserDefaults defaults(m_folder.filePath(u"empty.ini"_s));
        QCOMPARE(CsvChoices::of(defaults), CsvChoices());
        QCOMPARE(CsvChoices().options.groupDelimeter, u";"_s);
    }

    void remembersEveryChoice()
    {
        CsvChoices choices;
        choices.filterSelection = ExportFilter::DisplayedBooks;
        choices.options = {CsvOptions::ColumnSelection::Visible,
            CsvOptions::DateSelection::YearMonthDay, CsvOptions::GroupSelection::Names, u" | "_s,
            CsvOptions::CheckboxSelection::YesNo, CsvOptions::ISBNSelection::None,
            CsvOptions::CarriageReturnSelection::Escape};
        const QString path = m_folder.filePath(u"kept.ini"_s);
        {
            UserDefaults defaults(path);
            choices.remember(defaults);
        }
        QCOMPARE(CsvChoices::of(UserDefaults(path)), choices);
    }

    void remembersAnEmptyDelimeter()
    {
        CsvChoices choices;
        choices.options.groupDelimeter.clear();
        const QString path = m_folder.filePath(u"delimeter.ini"_s);
        {
            UserDefaults defaults(path);
            choices.remember(defaults);
        }
        QCOMPARE(CsvChoices::of(UserDefaults(path)).options.groupDelimeter, QString());
    }

    void readsNoChoiceThatNobodyOffers_data()
    {
        QTest::addColumn<qint64>("number");
        QTest::newRow("negative") << qint64{-1};
        QTest::newRow("one too many") << qint64{4};
        QTest::newRow("32 bits too many") << (qint64{1} << 32) + 1;
    }

    void readsNoChoiceThatNobodyOffers()
    {
        QFETCH(const qint64, number);
        UserDefaults defaults(m_folder.filePath(u"odd.ini"_s));
        for (const auto key :
            {"FilterSelection"_L1, "ColumnSelection"_L1, "DateSelection"_L1, "GroupSelection"_L1,
                "CheckboxSelection"_L1, "ISBNSelection"_L1, "CarriageReturnSelection"_L1})
            defaults.setInteger(u"ExportCSV/"_s + key, number);
        QCOMPARE(CsvChoices::of(defaults), CsvChoices());
    }

private:
    QTemporaryDir m_folder;
};

} // namespace tomely

QTEST_GUILESS_MAIN(tomely::CsvChoicesTest)

#include "CsvChoicesTest.moc"
