// The list as it is printed: heading, rule, numbered books.

#include "listwindow/engine/PrintTable.h"
#include "listwindow/engine/ColumnKind.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace tomely {

class PrintTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void hasTwoRowsMoreThanTheList()
    {
        QCOMPARE(printRowCount(0), 2);
        QCOMPARE(printRowCount(7), 9);
    }

    void beginsWithHeadingAndRule()
    {
        QCOMPARE(printCellText({}, ColumnKey::Title, u"Title"_s, 0), u"Title"_s);
        QCOMPARE(printCellText({}, ColumnKey::Title, u"Title"_s, 1), QString(249, u'-'));
        QCOMPARE(printCellText({}, ColumnKey::RowNumber, u"#"_s, 1), QString(249, u'-'));
    }

    void numbersBooksFromOneUnderTheRule()
    {
        BookEntry emma;
        emma.setTitle(u"Emma"_s);
        BookEntry persuasion;
        persuasion.setTitle(u"Persuasion"_s);
        const std::vector<BookEntry*> books = {&emma, &persuasion};
        QCOMPARE(printCellText(books, ColumnKey::RowNumber, u"#"_s, 2), u"1"_s);
        QCOMPARE(printCellText(books, ColumnKey::Title, u"Title"_s, 2), u"Emma"_s);
        QCOMPARE(printCellText(books, ColumnKey::RowNumber, u"#"_s, 3), u"2"_s);
        QCOMPARE(printCellText(books, ColumnKey::Title, u"Title"_s, 3), u"Persuasion"_s);
    }
};

} // namespace tomely

QTEST_GUILESS_MAIN(tomely::PrintTableTest)

#include "PrintTableTest.moc"
