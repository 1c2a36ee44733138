#include "editor/BookEntryWindowController.h"

#include "document/widgets/GroupManagerController.h"
#include "platform/widgets/Waiting.h"
#include "tests/editor/EditorDesk.h"
#include "tests/support/SmallCollection.h"

#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString fiction = u"1"_s;
const QString nonFiction = u"2"_s;

QStringList groupsOf(const BookEntry& book)
{
    QStringList keys;
    for (const GroupMembership::Entry& group : book.getSelectedGroups())
        keys.append(group.key);
    return keys;
}

GroupManagerController* sheetOf(const BookEntryWindowController& editor)
{
    return editor.window()->findChild<GroupManagerController*>();
}

/// Ticks the group in a row of the sheet, or takes its tick away, by keyboard.
void tick(GroupManagerController& sheet, int row)
{
    auto& table = *sheet.findChild<QTableView*>(u"m_idTableView"_s);
    table.setFocus();
    table.selectRow(row);
    QTest::keyClick(&table, Qt::Key_Space);
}

} // namespace

/// The groups of the book that an editor is about.
class EditorGroupsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensTheManagerByButtonMenuAndKey_data();
    void opensTheManagerByButtonMenuAndKey();
    void opensItOnceAndNotWhileTheProgramWaits();
    void storesTheTicksOnSave();
    void countsTicksAsUnsavedWork();
    void forgetsTicksThatWereCancelled();
    void keepsWhatTheMainWindowDidMeanwhile_data();
    void keepsWhatTheMainWindowDidMeanwhile();
    void goesWithItsEditor();

private:
    std::unique_ptr<EditorDesk> m_desk;
    BookEntry* m_book = nullptr; // of the document; in the group Fiction
    QPointer<BookEntryWindowController> m_editor;
};

void EditorGroupsTest::init()
{
    m_desk = std::make_unique<EditorDesk>();
    m_book = &samples::addBook(m_desk->document, u"Emma"_s, u"Jane Austen"_s, fiction);
    m_editor = &m_desk->open(*m_book);
}

void EditorGroupsTest::cleanup()
{
    m_desk.reset();
}

void EditorGroupsTest::opensTheManagerByButtonMenuAndKey_data()
{
    QTest::addColumn<QString>("way");
    for (const QString& way : {u"button"_s, u"menu"_s, u"key"_s})
        QTest::newRow(qUtf8Printable(way)) << way;
}

void EditorGroupsTest::opensTheManagerByButtonMenuAndKey()
{
    QFETCH(const QString, way);
    if (way == u"button"_s)
        EditorDesk::find<QPushButton>(*m_editor, u"m_idGroupButton"_s).click();
    else if (way == u"menu"_s)
        EditorDesk::find<QAction>(*m_editor, u"manageGroups"_s).trigger();
    else
        QTest::keyClick(m_editor->window()->windowHandle(), Qt::Key_G, Qt::ControlModifier);
    QTRY_VERIFY(sheetOf(*m_editor) && sheetOf(*m_editor)->isVisible());
}

void EditorGroupsTest::opensItOnceAndNotWhileTheProgramWaits()
{
    {
        const Waiting waiting;
        m_editor->manageGroups();
        QVERIFY(!sheetOf(*m_editor));
    }
    m_editor->manageGroups();
    m_editor->manageGroups();
    QCOMPARE(m_editor->window()->findChildren<GroupManagerController*>().size(), 1);
    sheetOf(*m_editor)->cancel();
    QTRY_VERIFY(!sheetOf(*m_editor));
    m_editor->manageGroups();
    QVERIFY(sheetOf(*m_editor));
}

void EditorGroupsTest::storesTheTicksOnSave()
{
    m_editor->manageGroups();
    tick(*sheetOf(*m_editor), 0);
    tick(*sheetOf(*m_editor), 1);
    sheetOf(*m_editor)->ok();
    QCOMPARE(groupsOf(*m_book), QStringList{fiction}); // not before the editor saves
    QVERIFY(m_editor->saveEntry(nullptr));
    QCOMPARE(groupsOf(*m_book), QStringList{nonFiction});
}

void EditorGroupsTest::countsTicksAsUnsavedWork()
{
    QVERIFY(!m_editor->unsavedWork());
    m_editor->manageGroups();
    tick(*sheetOf(*m_editor), 1);
    sheetOf(*m_editor)->ok();
    QVERIFY(m_editor->unsavedWork());
    BookEntryWindowController& other = m_desk->openNew();
    QVERIFY(!other.unsavedWork());
}

void EditorGroupsTest::forgetsTicksThatWereCancelled()
{
    m_editor->manageGroups();
    tick(*sheetOf(*m_editor), 1);
    sheetOf(*m_editor)->cancel();
    QVERIFY(!m_editor->unsavedWork());
    QVERIFY(m_editor->saveEntry(nullptr));
    QCOMPARE(groupsOf(*m_book), QStringList{fiction});
}

void EditorGroupsTest::keepsWhatTheMainWindowDidMeanwhile_data()
{
    QTest::addColumn<bool>("alsoTicks");
    QTest::newRow("nothing ticked here") << false;
    QTest::newRow("ticked here, too") << true;
}

void EditorGroupsTest::keepsWhatTheMainWindowDidMeanwhile()
{
    QFETCH(const bool, alsoTicks);
    const QString added = samples::addGroup(m_desk->document, u"Poetry"_s);
    m_book->addToGroup(added);
    m_desk->document.getGroups().remove(fiction);
    m_desk->document.removeBookGroupReferences({fiction});
    if (alsoTicks) {
        m_editor->manageGroups();
        tick(*sheetOf(*m_editor), 0); // "Non Fiction"
        sheetOf(*m_editor)->ok();
    }
    QVERIFY(m_editor->saveEntry(nullptr));
    QStringList expected{added};
    if (alsoTicks)
        expected.prepend(nonFiction);
    QCOMPARE(groupsOf(*m_book), expected);
}

void EditorGroupsTest::goesWithItsEditor()
{
    m_editor->manageGroups();
    const QPointer sheet(sheetOf(*m_editor));
    m_editor->closeEditor();
    QTRY_VERIFY(!m_editor);
    QVERIFY(!sheet);
}

QTEST_MAIN(EditorGroupsTest)
#include "EditorGroupsTest.moc"
