#include "editor/BookEntryWindowController.h"

#include "editor/EntryForm.h"
#include "tests/editor/EditorDesk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

int currentTab(const BookEntryWindowController& editor)
{
    return EditorDesk::find<QTabWidget>(editor, u"m_idTab"_s).currentIndex();
}

} // namespace

// An editor by keyboard, on a small screen and for a screen reader.
class EditorUsabilityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesReturnInALineAlone();
    void closesAnOpenListByEscapeAlone_data();
    void closesAnOpenListByEscapeAlone();
    void showsEverythingWithoutScrolling();
    void changesItsTabByKeys();
    void walksThroughTheFieldsInReadingOrder();
    void namesEachFieldForAScreenReader();
    void namesEveryControlOnce();
    void givesNoTwoControlsTheSameMnemonic();
};

void EditorUsabilityTest::leavesReturnInALineAlone()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u"Emma"_s));
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    for (const QString& name : {u"m_idTitle"_s, u"m_idAuthor"_s, u"m_idYearLent"_s}) {
        auto& field = EditorDesk::find<QWidget>(editor, name);
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_Return);
        QVERIFY(editor.window()->isVisible());
    }
    QVERIFY(!desk.document.isDocumentEdited());
}

void EditorUsabilityTest::closesAnOpenListByEscapeAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("pop-up") << u"m_idType"_s;
    QTest::newRow("combo box") << u"m_idAuthor"_s;
}

void EditorUsabilityTest::closesAnOpenListByEscapeAlone()
{
    QFETCH(const QString, name);
    EditorDesk desk;
    desk.document.setAuthors({u"Jane Austen"_s});
    const QPointer<BookEntryWindowController> editor = &desk.openNew();
    QVERIFY(QTest::qWaitForWindowActive(editor->window()));
    auto& combo = EditorDesk::find<QComboBox>(*editor, name);
    combo.setFocus();
    combo.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(combo.view()->window()));
    QTest::keyClick(combo.view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo.view()->isVisible());
    QVERIFY(editor && editor->window()->isVisible());
    QTest::keyClick(&combo, Qt::Key_Escape);
    QTRY_VERIFY(!editor);
}

void EditorUsabilityTest::showsEverythingWithoutScrolling()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QVERIFY(QTest::qWaitForWindowExposed(editor.window()));
    const auto& area = EditorDesk::find<QScrollArea>(editor, u"m_idStandardScroll"_s);
    const QSize missing = area.widget()->minimumSizeHint() - area.viewport()->size();
    const QSize screen = editor.window()->screen()->availableSize();
    QVERIFY(missing.width() <= 0 || editor.window()->width() >= screen.width());
    QVERIFY(missing.height() <= 0 || editor.window()->height() + 60 >= screen.height());
}

void EditorUsabilityTest::changesItsTabByKeys()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    QTest::keyClick(editor.window()->focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(currentTab(editor), 1);
    QTest::keyClick(editor.window(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(currentTab(editor), 0);
}

void EditorUsabilityTest::walksThroughTheFieldsInReadingOrder()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    QWidget* const page = &EditorDesk::find<QWidget>(editor, u"m_idStandardPage"_s);
    QPoint last(0, -1);
    EditorDesk::find<QWidget>(editor, u"m_idISBN"_s).setFocus();
    for (QWidget* field = editor.window()->focusWidget(); field->objectName() != u"m_idNotes"_s;
         field = editor.window()->focusWidget()) {
        const QPoint place = field->mapTo(page, field->rect().center());
        QVERIFY2(place.y() > last.y() + 3 || (place.y() > last.y() - 3 && place.x() > last.x()),
            qPrintable(field->objectName()));
        last = place;
        QTest::keyClick(field, Qt::Key_Tab);
        QVERIFY(editor.window()->focusWidget() != field);
    }
}

void EditorUsabilityTest::namesEachFieldForAScreenReader()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    for (const QWidget* const control : editor.window()->findChildren<QWidget*>()) {
        if (!control->objectName().startsWith(u"m_id"_s) || control->focusPolicy() == Qt::NoFocus
            || control->objectName().endsWith(u"Page"_s)
            || control->objectName() == u"m_idContents"_s)
            continue;
        const QAccessibleInterface* const face =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
        QVERIFY(face);
        const bool isTabs = control->objectName() == u"m_idTab"_s; // its tabs have names
        QVERIFY2(
            isTabs || !face->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
    }
}

void EditorUsabilityTest::namesEveryControlOnce()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QSet<QString> names;
    for (const QWidget* const control : editor.window()->findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (!name.startsWith(u"m_id"_s))
            continue;
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.insert(name);
    }
    QStringList wanted{u"m_idTab"_s, u"m_idCancelButton"_s, u"m_idSaveButton"_s,
        u"m_idAddMoreButton"_s, u"m_idGroupButton"_s, u"m_idLookupButton"_s,
        u"m_idProgressIndicator"_s};
    for (const BookField& field : bookFields())
        wanted.append(EntryForm::controlName(field));
    for (int index = 1; index <= 8; ++index) {
        wanted.append(u"m_idCustomSwitch%1Label"_s.arg(index));
        if (index <= 7)
            wanted.append(u"m_idCustomField%1Label"_s.arg(index));
        if (index <= 5)
            wanted.append({u"m_idImage%1"_s.arg(index), u"m_idImage%1ClearButton"_s.arg(index)});
        if (index <= 3)
            wanted.append(u"m_idCustomDate%1Label"_s.arg(index));
    }
    for (const QString& name : std::as_const(wanted))
        QVERIFY2(names.contains(name), qPrintable(name));
}

void EditorUsabilityTest::givesNoTwoControlsTheSameMnemonic()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QStringList texts;
    for (const QLabel* const label : editor.window()->findChildren<QLabel*>())
        texts.append(label->buddy() ? label->text() : QString());
    for (const QAbstractButton* const control : editor.window()->findChildren<QAbstractButton*>())
        texts.append(control->text());
    for (const QAction* const menu : editor.window()->menuBar()->actions())
        texts.append(menu->text());
    QMap<QString, QString> taken;
    for (const QString& text : texts) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(text);
        if (mnemonic.isEmpty())
            continue;
        const QString key = mnemonic.toString();
        QVERIFY2(
            !taken.contains(key), qPrintable(u"%1: %2 and %3"_s.arg(key, taken.value(key), text)));
        taken.insert(key, text);
    }
    QVERIFY(taken.size() > 15);
}

QTEST_MAIN(EditorUsabilityTest)
#include "EditorUsabilityTest.moc"
