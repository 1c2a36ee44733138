#include "tests/app/ProgramOnScreen.h"

#include "model/BookField.h"
#include "tests/support/ExchangeDesk.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// Chooses from the menu File by the keys of its items.
bool chooseFromFile(const CollectionWindow& window, Qt::Key key)
{
    QTest::keyClick(&window.window(), Qt::Key_F, Qt::AltModifier);
    QWidget* const menu = QApplication::activePopupWidget();
    if (menu)
        QTest::keyClick(menu, key);
    return menu != nullptr;
}

/// The sheet of that name, when it has become active.
QDialog* sheetOf(const CollectionWindow& window, const QString& name)
{
    QDialog* sheet = nullptr;
    const bool isActive = QTest::qWaitFor([&] {
        sheet = window.window().findChild<QDialog*>(name);
        return sheet && QApplication::activeWindow() == sheet;
    });
    return isActive ? sheet : nullptr;
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

} // namespace

// How a person takes books from one collection to another, and to a spreadsheet.
class ExchangeStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesAGroupToAnotherCollection();
    void makesASpreadsheet();
    void editsABookWhileAPanelIsOpen();
    void goesBackToTheFileWhileASheetIsOpen();
};

void ExchangeStoriesTest::takesAGroupToAnotherCollection()
{
    ProgramOnScreen program;
    const QString xml = program.path(u"Fiction.xml"_s);
    {
        const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
        window.clickGroup(u"Fiction"_s);
        QCOMPARE(window.status(), u"2 of 4 displayed"_s);
        QVERIFY(chooseFromFile(window, Qt::Key_X));
        QVERIFY(sheetOf(window, u"ExportOptions"_s));
        press(Qt::Key_Down); // to the displayed books
        press(Qt::Key_Return);
        QTRY_COMPARE(program.panels.savePanels.size(), 1);
        QCOMPARE(program.panels.savePanels.first().suggestedPath, program.path(u"small.xml"_s));
        program.panels.savePanels.takeLast().picked(xml);
        QVERIFY(!window.window().isWindowModified());
        window.choose(u"closeWindow"_s);
    }
    const CollectionWindow window = program.open(program.classics());
    const qsizetype count = window.document().getBookListSize();
    QTest::keyClick(&window.books(), Qt::Key_Down);
    const int selectedRow = window.books().currentIndex().row();
    QVERIFY(chooseFromFile(window, Qt::Key_I));
    QTRY_COMPARE(program.panels.openPanels.size(), 1);
    program.panels.openPanels.takeLast().picked({xml});
    QCOMPARE(window.status(), u"%1 of %1 displayed"_s.arg(count + 2));
    QVERIFY(window.window().isWindowModified());
    QCOMPARE(window.books().currentIndex().row(), selectedRow);
    QVERIFY(window.books().selectionModel()->isRowSelected(selectedRow, {}));
    const QStringList titles = window.cells(0, static_cast<int>(count + 2));
    QVERIFY(titles.contains(u"Kim"_s) && titles.contains(u"Emma"_s));
    window.document().clearChangeCount();
}

void ExchangeStoriesTest::makesASpreadsheet()
{
    ProgramOnScreen program;
    const QString csv = program.path(u"small.csv"_s);
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.clickGroup(u"Fiction"_s);
    QVERIFY(chooseFromFile(window, Qt::Key_E));
    QDialog* const sheet = sheetOf(window, u"ExportCSVOptions"_s);
    QVERIFY(sheet);
    press(Qt::Key_D, Qt::AltModifier); // displayed books
    press(Qt::Key_G, Qt::AltModifier); // groups:
    auto& delimeter = *sheet->findChild<QLineEdit*>(u"exportGroupDelimeter"_s);
    QVERIFY(!delimeter.isEnabled());
    press(Qt::Key_Down);
    press(Qt::Key_Down); // their names
    QVERIFY(delimeter.isEnabled());
    press(Qt::Key_Tab);
    QVERIFY(delimeter.hasFocus());
    QTest::keyClicks(&delimeter, u" & "_s);
    const auto& shown = *sheet->findChild<QPlainTextEdit*>(u"m_idPreview"_s);
    QTRY_COMPARE(shown.blockCount(), 3); // a key's click takes a moment
    const QString preview = shown.toPlainText();
    QVERIFY(preview.endsWith(u",Fiction"_s));
    press(Qt::Key_Return);
    QTRY_COMPARE(program.panels.savePanels.size(), 1);
    QCOMPARE(program.panels.savePanels.first().suggestedPath, csv);
    program.panels.savePanels.takeLast().picked(csv);
    QCOMPARE(utf16Text(csv), preview + u'\n');
    QVERIFY(!window.window().isWindowModified());
}

void ExchangeStoriesTest::editsABookWhileAPanelIsOpen()
{
    ProgramOnScreen program;
    const QString csv = program.path(u"small.csv"_s);
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow editor = program.edit(window, u"Emma"_s);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    QVERIFY(chooseFromFile(window, Qt::Key_E));
    QDialog* const sheet = sheetOf(window, u"ExportCSVOptions"_s);
    QVERIFY(sheet);
    editor.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&editor.window()));
    editor.type(u"m_idTitle"_s, u"Emma Woodhouse"_s);
    editor.click(u"m_idSaveButton"_s);
    QTRY_COMPARE(QApplication::activeWindow(), sheet);
    QVERIFY(sheet->findChild<QPlainTextEdit*>(u"m_idPreview"_s)
                ->toPlainText()
                .contains(u"Emma Woodhouse"_s));
    press(Qt::Key_Return);
    QTRY_COMPARE(program.panels.savePanels.size(), 1);
    program.panels.savePanels.takeLast().picked(csv);
    QVERIFY(utf16Text(csv).contains(u"\nEmma Woodhouse,"_s));
    window.document().clearChangeCount();
}

void ExchangeStoriesTest::goesBackToTheFileWhileASheetIsOpen()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(chooseFromFile(window, Qt::Key_E));
    const QPointer<QDialog> sheet = sheetOf(window, u"ExportCSVOptions"_s);
    QVERIFY(sheet);
    program.application.documents().revert(window.document());
    QTRY_VERIFY(!sheet);
    const CollectionWindow again = program.onlyWindow();
    QVERIFY(QTest::qWaitForWindowActive(&again.window()));
    QVERIFY(chooseFromFile(again, Qt::Key_X));
    QTRY_COMPARE(program.panels.savePanels.size(), 1);
    program.panels.savePanels.takeLast().picked(program.path(u"again.xml"_s));
    QCOMPARE(utf16Text(program.path(u"again.xml"_s)).count(u"<Book>"_s), 4);
}

QTEST_MAIN(ExchangeStoriesTest)
#include "ExchangeStoriesTest.moc"
