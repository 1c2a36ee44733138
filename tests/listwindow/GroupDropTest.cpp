#include "listwindow/GroupDrop.h"

#include <QtTest>

using namespace tomely;

Q_DECLARE_METATYPE(tomely::GroupDropContext)

class GroupDropTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decides_data();
    void decides();
};

void GroupDropTest::decides_data()
{
    QTest::addColumn<GroupDropContext>("context");
    QTest::addColumn<bool>("isAllowed");
    const GroupDropContext onAGroup{
        .holdsBooks = true, .isFromThisWindow = true, .row = 1, .isOnRow = true};
    const auto row = [&](const char* name, bool isAllowed, auto&& change) {
        GroupDropContext context = onAGroup;
        change(context);
        QTest::newRow(name) << context << isAllowed;
    };
    row("on a group", true, [](GroupDropContext&) {});
    row("on a later group", true, [](GroupDropContext& context) { context.row = 99; });
    row("on the library", false, [](GroupDropContext& context) { context.row = 0; });
    row("below the rows", false, [](GroupDropContext& context) { context.row = -1; });
    row("between two rows", false, [](GroupDropContext& context) { context.isOnRow = false; });
    row("something else", false, [](GroupDropContext& context) { context.holdsBooks = false; });
    row("from elsewhere", false,
        [](GroupDropContext& context) { context.isFromThisWindow = false; });
    row("while a question is open", false,
        [](GroupDropContext& context) { context.isBusy = true; });
    QTest::newRow("nothing") << GroupDropContext{} << false;
}

void GroupDropTest::decides()
{
    QFETCH(const GroupDropContext, context);
    QFETCH(const bool, isAllowed);
    QCOMPARE(validateDrop(context), isAllowed);
}

QTEST_GUILESS_MAIN(GroupDropTest)
#include "GroupDropTest.moc"
