#include "listwindow/CommandTable.h"

#include <QFile>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

Q_DECLARE_METATYPE(tomely::CommandId)
Q_DECLARE_METATYPE(tomely::EnabledWhen)

class CommandTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsCommandsInTheOrderOfTheirNumbers();
    void hasEachCommand_data();
    void hasEachCommand();
    void enablesByWhatIsSelected_data();
    void enablesByWhatIsSelected();
    void hasNoTwoCommandsWithTheSameNameOrKeys();
    void keepsKeysWithoutModifiersToThePlaceWhereTheyMeanIt();
    void namesIconsThatThereAre();
};

void CommandTableTest::listsCommandsInTheOrderOfTheirNumbers()
{
    int number = 0;
    for (const Command& row : commandTable()) {
        QCOMPARE(static_cast<int>(row.id), number++);
        QCOMPARE(command(row.id).name, row.name);
    }
    QCOMPARE(number, static_cast<int>(CommandId::Print) + 1);
}

void CommandTableTest::hasEachCommand_data()
{
    QTest::addColumn<CommandId>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<EnabledWhen>("enabledWhen");
    const auto row = [](const char* name, CommandId id, const QString& text, const QString& keys,
                         EnabledWhen enabledWhen) {
        QTest::newRow(name) << id << text << keys << enabledWhen;
    };
    using enum CommandId;
    using enum EnabledWhen;
    row("addBook", AddBook, u"&Add Book…"_s, u"Ctrl+B"_s, Always);
    row("editBook", EditBook, u"&Edit Book…"_s, u"Return; Enter"_s, BookSelected);
    row("deleteBook", DeleteBook, u"&Delete Book…"_s, u"Del"_s, BookSelected);
    row("removeFromGroup", RemoveFromGroup, u"&Remove from Group…"_s, {}, BookAndGroupSelected);
    row("scaleAllImages", ScaleAllImages, u"&Scale All Pictures…"_s, {}, Always);
    row("removeAllImages", RemoveAllImages, u"Remove All &Pictures…"_s, {}, Always);
    row("addGroup", AddGroup, u"&New Group"_s, u"Ctrl+G"_s, Always);
    row("renameGroup", RenameGroup, u"&Rename Group"_s, u"F2"_s, GroupSelected);
    row("deleteGroup", DeleteGroup, u"&Delete Group…"_s, {}, GroupSelected);
    row("customizeGroups", CustomizeGroups, u"&Manage Groups…"_s, {}, Always);
    row("customizeList", CustomizeList, u"&Columns…"_s, {}, Always);
    row("customizeToolbar", CustomizeToolbar, u"Customise &Toolbar…"_s, {}, Always);
    row("find", Find, u"&Find"_s, u"Ctrl+F"_s, Always);
    row("clearFilter", ClearFilter, u"Clear &Filter"_s, {}, Always);
    row("importXML", ImportXML, u"&Import XML…"_s, {}, Always);
    row("exportXML", ExportXML, u"Export &XML…"_s, {}, Always);
    row("exportCSV", ExportCSV, u"&Export CSV…"_s, {}, Always);
    row("printPreview", PrintPreview, u"Print Previe&w…"_s, {}, Always);
    row("print", Print, u"&Print…"_s, u"Ctrl+P"_s, Always);
}

void CommandTableTest::hasEachCommand()
{
    QFETCH(const CommandId, id);
    QFETCH(const QString, text);
    QFETCH(const QString, keys);
    QFETCH(const EnabledWhen, enabledWhen);
    const Command& row = command(id);
    QCOMPARE(row.name, QLatin1StringView(QTest::currentDataTag()));
    QCOMPARE(QString::fromUtf8(row.text), text);
    QCOMPARE(QKeySequence::listToString(row.keys, QKeySequence::PortableText), keys);
    QCOMPARE(row.enabledWhen, enabledWhen);
}

void CommandTableTest::enablesByWhatIsSelected_data()
{
    QTest::addColumn<EnabledWhen>("enabledWhen");
    QTest::addColumn<bool>("withNothing");
    QTest::addColumn<bool>("withBook");
    QTest::addColumn<bool>("withGroup");
    QTest::newRow("always") << EnabledWhen::Always << true << true << true;
    QTest::newRow("book") << EnabledWhen::BookSelected << false << true << false;
    QTest::newRow("group") << EnabledWhen::GroupSelected << false << false << true;
    QTest::newRow("both") << EnabledWhen::BookAndGroupSelected << false << false << false;
}

void CommandTableTest::enablesByWhatIsSelected()
{
    QFETCH(const EnabledWhen, enabledWhen);
    QFETCH(const bool, withNothing);
    QFETCH(const bool, withBook);
    QFETCH(const bool, withGroup);
    Command row;
    row.enabledWhen = enabledWhen;
    QCOMPARE(enableOption(row, {}), withNothing);
    QCOMPARE(enableOption(row, {.hasSelectedBook = true}), withBook);
    QCOMPARE(enableOption(row, {.hasSelectedGroup = true}), withGroup);
    QVERIFY(enableOption(row, {.hasSelectedBook = true, .hasSelectedGroup = true}));
}

void CommandTableTest::hasNoTwoCommandsWithTheSameNameOrKeys()
{
    QSet<QString> taken;
    for (const Command& row : commandTable()) {
        QStringList names{row.name};
        for (const QKeySequence& keys : row.keys)
            names.append(keys.toString());
        for (const QString& name : names) {
            QVERIFY2(!taken.contains(name), qPrintable(name));
            taken.insert(name);
        }
    }
}

void CommandTableTest::keepsKeysWithoutModifiersToThePlaceWhereTheyMeanIt()
{
    const QList<QKeySequence> meantEverywhere{QKeySequence(Qt::Key_F2)};
    for (const Command& row : commandTable()) {
        for (const QKeySequence& keys : row.keys) {
            const bool isPlain = keys[0].keyboardModifiers() == Qt::NoModifier;
            const bool isForTable = isPlain && !meantEverywhere.contains(keys);
            QCOMPARE(row.keyScope, isForTable ? KeyScope::BookTable : KeyScope::Window);
        }
    }
}

void CommandTableTest::namesIconsThatThereAre()
{
    for (const Command& row : commandTable()) {
        const QString file =
            QStringLiteral(TOMELY_SOURCE_DIR "/resources/icons/%1.svg").arg(row.icon);
        QVERIFY2(row.icon.isEmpty() || QFile::exists(file), qPrintable(file));
    }
}

QTEST_MAIN(CommandTableTest) // keys are the platform's
#include "CommandTableTest.moc"
