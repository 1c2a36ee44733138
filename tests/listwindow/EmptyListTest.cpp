#include "listwindow/EmptyList.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

Q_DECLARE_METATYPE(tomely::EmptyReason)

class EmptyListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheReason_data();
    void findsTheReason();
    void saysWhatCanBeDone_data();
    void saysWhatCanBeDone();
    void tellsWhatIsAsked_data();
    void tellsWhatIsAsked();
};

void EmptyListTest::findsTheReason_data()
{
    QTest::addColumn<int>("books");
    QTest::addColumn<bool>("isFiltering");
    QTest::addColumn<EmptyReason>("reason");
    QTest::newRow("no books") << 0 << false << EmptyReason::NoBooks;
    QTest::newRow("no books, filter") << 0 << true << EmptyReason::NoBooks;
    QTest::newRow("books") << 3 << false << EmptyReason::EmptyGroup;
    QTest::newRow("books, filter") << 3 << true << EmptyReason::NothingFound;
}

void EmptyListTest::findsTheReason()
{
    QFETCH(const int, books);
    QFETCH(const bool, isFiltering);
    QTEST(emptyReason({books, isFiltering}), "reason");
}

void EmptyListTest::saysWhatCanBeDone_data()
{
    QTest::addColumn<EmptyReason>("reason");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("button"); // the only one; empty for none
    QTest::newRow("no books") << EmptyReason::NoBooks
                              << u"There are no books in this collection yet."_s
                              << u"Add the First Book"_s;
    QTest::newRow("empty group") << EmptyReason::EmptyGroup
                                 << u"There are no books in this group."_s << QString();
    QTest::newRow("nothing found")
        << EmptyReason::NothingFound << u"No books match the filter."_s << u"Clear Filter"_s;
}

void EmptyListTest::saysWhatCanBeDone()
{
    QFETCH(const EmptyReason, reason);
    EmptyList list;
    list.show();
    // From every other reason.
    for (const auto before :
        {EmptyReason::NoBooks, EmptyReason::EmptyGroup, EmptyReason::NothingFound}) {
        list.showReason(before);
        list.showReason(reason);
        QTEST(list.findChild<QLabel*>(u"m_idEmptyText"_s)->text(), "text");
        QString button;
        for (const auto* const each : list.findChildren<QPushButton*>()) {
            if (each->isVisible())
                button += each->text().remove(u'&');
        }
        QTEST(button, "button");
    }
}

void EmptyListTest::tellsWhatIsAsked_data()
{
    QTest::addColumn<EmptyReason>("reason");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("byMouse");
    QTest::addColumn<int>("addBook");
    QTest::addColumn<int>("clearFilter");
    QTest::newRow("add, mouse") << EmptyReason::NoBooks << u"m_idAddFirstBook"_s << true << 1 << 0;
    QTest::newRow("add, key") << EmptyReason::NoBooks << u"m_idAddFirstBook"_s << false << 1 << 0;
    QTest::newRow("clear, mouse") << EmptyReason::NothingFound << u"m_idClearFilter"_s << true << 0
                                  << 1;
    QTest::newRow("clear, key") << EmptyReason::NothingFound << u"m_idClearFilter"_s << false << 0
                                << 1;
}

void EmptyListTest::tellsWhatIsAsked()
{
    QFETCH(const EmptyReason, reason);
    QFETCH(const QString, button);
    QFETCH(const bool, byMouse);
    EmptyList list;
    QSignalSpy addBook(&list, &EmptyList::addBook);
    QSignalSpy clearFilter(&list, &EmptyList::clearFilter);
    list.showReason(reason);
    list.show();
    auto* const clicked = list.findChild<QPushButton*>(button);
    if (byMouse)
        QTest::mouseClick(clicked, Qt::LeftButton);
    else
        QTest::keyClick(clicked, Qt::Key_Space);
    QTEST(int(addBook.size()), "addBook");
    QTEST(int(clearFilter.size()), "clearFilter");
}

QTEST_MAIN(EmptyListTest)
#include "EmptyListTest.moc"
