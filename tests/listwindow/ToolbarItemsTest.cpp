#include "listwindow/ToolbarItems.h"

#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace tomely;

Q_DECLARE_METATYPE(tomely::CommandId)

class ToolbarItemsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasAnItemForACommand_data();
    void hasAnItemForACommand();
    void hasTheSearch();
    void hasSpacers_data();
    void hasSpacers();
    void hasNothingForUnknownIdentifiers();
    void offersTheAllowedSet();
    void hasADefaultSet();
    void offersWhateverIsInTheDefaultSet();
    void drawsEveryItem();
    void keepsWhatAToolbarCanShow_data();
    void keepsWhatAToolbarCanShow();
};

void ToolbarItemsTest::hasAnItemForACommand_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<CommandId>("command");
    QTest::newRow("addbook") << u"Add Book"_s << CommandId::AddBook;
    QTest::newRow("editbook") << u"Edit Book"_s << CommandId::EditBook;
    QTest::newRow("deletebook") << u"Delete Book"_s << CommandId::DeleteBook;
    QTest::newRow("removeFromGroup") << u"Remove"_s << CommandId::RemoveFromGroup;
    QTest::newRow("addgroup") << u"Add Group"_s << CommandId::AddGroup;
    QTest::newRow("deletegroup") << u"Delete Group"_s << CommandId::DeleteGroup;
    QTest::newRow("print") << u"Print"_s << CommandId::Print;
    QTest::newRow("customizelist") << u"Columns"_s << CommandId::CustomizeList;
    QTest::newRow("customizetoolbar") << u"Customise"_s << CommandId::CustomizeToolbar;
}

void ToolbarItemsTest::hasAnItemForACommand()
{
    QFETCH(const QString, label);
    QFETCH(const CommandId, command);
    const ToolbarItem* const item = toolbarItem(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(item);
    QCOMPARE(item->kind, ToolbarItemKind::Command);
    QCOMPARE(item->command, command);
    QCOMPARE(toolbarItemLabel(*item), label);
    QVERIFY(!item->isSpacer());
}

void ToolbarItemsTest::hasTheSearch()
{
    const ToolbarItem* const item = toolbarItem(u"search");
    QVERIFY(item);
    QCOMPARE(item->kind, ToolbarItemKind::Search);
    QCOMPARE(toolbarItemLabel(*item), u"Author & Title"_s);
    QVERIFY(!item->isSpacer());
}

void ToolbarItemsTest::hasSpacers_data()
{
    QTest::addColumn<ToolbarItemKind>("kind");
    QTest::addColumn<QString>("label");
    QTest::newRow("separator") << ToolbarItemKind::Separator << u"Separator"_s;
    QTest::newRow("space") << ToolbarItemKind::Space << u"Space"_s;
    QTest::newRow("flexiblespace") << ToolbarItemKind::FlexibleSpace << u"Flexible Space"_s;
}

void ToolbarItemsTest::hasSpacers()
{
    QFETCH(const ToolbarItemKind, kind);
    QFETCH(const QString, label);
    const ToolbarItem* const item = toolbarItem(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(item);
    QCOMPARE(item->kind, kind);
    QCOMPARE(toolbarItemLabel(*item), label);
    QVERIFY(item->isSpacer());
}

void ToolbarItemsTest::hasNothingForUnknownIdentifiers()
{
    QVERIFY(!toolbarItem(u"nothing"));
    QVERIFY(!toolbarItem(u""));
    QVERIFY(!toolbarItem(u"AddBook"));
}

void ToolbarItemsTest::offersTheAllowedSet()
{
    QStringList identifiers;
    for (const ToolbarItem& item : allowedToolbarItems())
        identifiers.append(item.identifier);
    QCOMPARE(identifiers,
        QStringList({u"addbook"_s, u"editbook"_s, u"deletebook"_s, u"removeFromGroup"_s,
            u"customizelist"_s, u"addgroup"_s, u"deletegroup"_s, u"search"_s, u"print"_s,
            u"flexiblespace"_s, u"customizetoolbar"_s, u"space"_s, u"separator"_s}));
}

void ToolbarItemsTest::hasADefaultSet()
{
    QCOMPARE(defaultToolbarItems(),
        QStringList({u"addbook"_s, u"editbook"_s, u"deletebook"_s, u"removeFromGroup"_s,
            u"separator"_s, u"addgroup"_s, u"deletegroup"_s, u"flexiblespace"_s, u"customizelist"_s,
            u"separator"_s, u"search"_s}));
}

void ToolbarItemsTest::offersWhateverIsInTheDefaultSet()
{
    QCOMPARE(validToolbarItems(defaultToolbarItems()), defaultToolbarItems());
}

void ToolbarItemsTest::drawsEveryItem()
{
    QSet<QByteArray> pictures;
    for (const ToolbarItem& item : allowedToolbarItems()) {
        for (const int size : {24, 32}) {
            const QImage picture = toolbarItemIcon(item).pixmap(size, size).toImage();
            QCOMPARE(picture.size(), QSize(size, size));
            const QByteArray bytes(
                reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
            QVERIFY2(bytes.count('\0') < bytes.size(), item.identifier.data());
            QVERIFY2(!pictures.contains(bytes), item.identifier.data());
            pictures.insert(bytes);
        }
    }
}

void ToolbarItemsTest::keepsWhatAToolbarCanShow_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("valid");
    QTest::newRow("nothing") << u""_s << u""_s;
    QTest::newRow("unknown ones") << u"nothing addbook other"_s << u"addbook"_s;
    QTest::newRow("twice") << u"addbook editbook addbook"_s << u"addbook editbook"_s;
    QTest::newRow("search twice") << u"search space search"_s << u"search space"_s;
    QTest::newRow("spacers many times")
        << u"space space separator separator flexiblespace flexiblespace"_s
        << u"space space separator separator flexiblespace flexiblespace"_s;
}

void ToolbarItemsTest::keepsWhatAToolbarCanShow()
{
    QFETCH(const QString, stored);
    QFETCH(const QString, valid);
    QCOMPARE(validToolbarItems(stored.split(u' ', Qt::SkipEmptyParts)),
        valid.split(u' ', Qt::SkipEmptyParts));
}

QTEST_MAIN(ToolbarItemsTest)
#include "ToolbarItemsTest.moc"
