#include "editor/CustomLabels.h"

#include "editor/EditableLabel.h"
#include "tests/editor/EditorDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

// The names of the custom fields in a real editor, on its custom tab.
class CustomLabelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsTheDocumentsLabels_data();
    void showsTheDocumentsLabels();
    void renamesByADoubleClick_data();
    void renamesByADoubleClick();
    void endsWhenSomethingElseIsClicked();
    void ignoresASingleClick();
    void leavesTheNameOnEscape();
    void renamesByKeyboard_data();
    void renamesByKeyboard();
    void changesNothingWithoutAChange();
    void followsTheList();
    void takesOverANameWhenItIsAskedTo();
    void namesTheControlsForAScreenReader();

private:
    EditableLabel& label(const QString& name) const
    {
        return EditorDesk::find<EditableLabel>(*m_editor, "m_id"_L1 + name + "Label"_L1);
    }

    void doubleClick(const QString& name) const
    {
        QTest::mouseDClick(&label(name), Qt::LeftButton);
    }

    std::unique_ptr<EditorDesk> m_desk;
    BookEntryWindowController* m_editor = nullptr; // owned by the document
};

void CustomLabelsTest::init()
{
    m_desk = std::make_unique<EditorDesk>();
    m_desk->defaults.setBool(u"OpenCustomTab"_s, true);
    m_editor = &m_desk->openNew();
    QVERIFY(QTest::qWaitForWindowActive(m_editor->window()));
}

void CustomLabelsTest::cleanup()
{
    m_desk.reset();
}

void CustomLabelsTest::showsTheDocumentsLabels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("columnKey");
    QTest::addColumn<QString>("shown");
    for (int index = 1; index <= 7; ++index) {
        const QString name = u"CustomField%1"_s.arg(index);
        QTest::newRow(qPrintable(name))
            << name << 40 + 2 * index << u"Custom Field %1:"_s.arg(index);
    }
    for (int index = 1; index <= 3; ++index) {
        const QString name = u"CustomDate%1"_s.arg(index);
        QTest::newRow(qPrintable(name))
            << name << 54 + 2 * index << u"Custom Date %1:"_s.arg(index);
    }
    for (int index = 1; index <= 8; ++index) {
        const QString name = u"CustomSwitch%1"_s.arg(index);
        QTest::newRow(qPrintable(name))
            << name << 60 + 2 * index << u"Custom Switch %1"_s.arg(index);
    }
}

void CustomLabelsTest::showsTheDocumentsLabels()
{
    QFETCH(const QString, name);
    QFETCH(const int, columnKey);
    QFETCH(const QString, shown);
    QCOMPARE(label(name).text(), shown);
    m_desk->document.setCustomFieldLabel(u"Shelf"_s, columnKey);
    m_editor->updateColumnName();
    QCOMPARE(label(name).text(), shown.endsWith(u':') ? u"Shelf:"_s : u"Shelf"_s);
}

void CustomLabelsTest::renamesByADoubleClick_data()
{
    showsTheDocumentsLabels_data();
}

void CustomLabelsTest::renamesByADoubleClick()
{
    QFETCH(const QString, name);
    QFETCH(const int, columnKey);
    QFETCH(const QString, shown);
    doubleClick(name);
    QVERIFY(label(name).isEditing());
    QTRY_COMPARE(m_editor->window()->focusWidget(), &label(name));
    label(name).selectAll();
    QTest::keyClicks(&label(name), u" Signed by: "_s);
    QTest::keyClick(&label(name), Qt::Key_Return);
    QVERIFY(!label(name).isEditing());
    QCOMPARE(m_desk->document.getCustomFieldLabel(columnKey), u"Signed by"_s); // without the colon
    QCOMPARE(samples::column(m_desk->document, columnKey).getColumnName(), u" Signed by: "_s);
    QCOMPARE(label(name).text(), shown.endsWith(u':') ? u"Signed by:"_s : u"Signed by"_s);
    QVERIFY(m_desk->document.isDocumentEdited());
    QVERIFY(m_editor->window()->isVisible());
}

void CustomLabelsTest::endsWhenSomethingElseIsClicked()
{
    doubleClick(u"CustomField2"_s);
    label(u"CustomField2"_s).selectAll();
    QTest::keyClicks(&label(u"CustomField2"_s), u"Shelf"_s);
    QWidget& page = EditorDesk::find<QWidget>(*m_editor, u"m_idCustomPage"_s);
    QTest::mouseClick(&page, Qt::LeftButton, {}, page.rect().bottomLeft() + QPoint(3, -3));
    QTRY_VERIFY(!label(u"CustomField2"_s).isEditing());
    QCOMPARE(m_desk->document.getCustomFieldLabel(44), u"Shelf"_s);
}

void CustomLabelsTest::ignoresASingleClick()
{
    QTest::mouseClick(&label(u"CustomField1"_s), Qt::LeftButton);
    QVERIFY(!label(u"CustomField1"_s).isEditing());
}

void CustomLabelsTest::leavesTheNameOnEscape()
{
    doubleClick(u"CustomSwitch1"_s);
    QTest::keyClicks(&label(u"CustomSwitch1"_s), u"Shelf"_s);
    QTest::keyClick(&label(u"CustomSwitch1"_s), Qt::Key_Escape);
    QVERIFY(!label(u"CustomSwitch1"_s).isEditing());
    QCOMPARE(label(u"CustomSwitch1"_s).text(), u"Custom Switch 1"_s);
    QCOMPARE(m_desk->document.getCustomFieldLabel(62), u"Custom Switch 1"_s);
    QVERIFY(m_editor->window()->isVisible()); // Escape meant the name, not the editor
    QVERIFY(!m_desk->document.isDocumentEdited());
}

void CustomLabelsTest::renamesByKeyboard_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("name");
    QTest::newRow("field") << u"m_idCustomField3"_s << u"CustomField3"_s;
    QTest::newRow("month") << u"m_idCustomMonth2"_s << u"CustomDate2"_s;
    QTest::newRow("year") << u"m_idCustomYear2"_s << u"CustomDate2"_s;
    QTest::newRow("switch") << u"m_idCustomSwitch8"_s << u"CustomSwitch8"_s;
}

void CustomLabelsTest::renamesByKeyboard()
{
    QFETCH(const QString, control);
    QFETCH(const QString, name);
    auto& field = EditorDesk::find<QWidget>(*m_editor, control);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_F2);
    QVERIFY(label(name).isEditing());
    QTRY_COMPARE(m_editor->window()->focusWidget(), &label(name));
}

void CustomLabelsTest::changesNothingWithoutAChange()
{
    doubleClick(u"CustomField1"_s);
    QTest::keyClick(&label(u"CustomField1"_s), Qt::Key_Return);
    QVERIFY(!label(u"CustomField1"_s).isEditing());
    QVERIFY(!m_desk->document.isDocumentEdited());
    QCOMPARE(samples::column(m_desk->document, 42).getColumnName(), u"Custom Field 1"_s);
}

void CustomLabelsTest::followsTheList()
{
    m_desk->document.setCustomFieldLabel(u"Shelf"_s, 76);
    QCOMPARE(label(u"CustomSwitch8"_s).text(), u"Custom Switch 8"_s); // the list tells editors
    m_editor->updateColumnName();
    QCOMPARE(label(u"CustomSwitch8"_s).text(), u"Shelf"_s);
}

void CustomLabelsTest::takesOverANameWhenItIsAskedTo()
{
    doubleClick(u"CustomDate1"_s);
    label(u"CustomDate1"_s).selectAll();
    QTest::keyClicks(&label(u"CustomDate1"_s), u"Lent on"_s);
    m_editor->endEditing();
    QVERIFY(!label(u"CustomDate1"_s).isEditing());
    QCOMPARE(m_desk->document.getCustomFieldLabel(56), u"Lent on"_s);
    QVERIFY(m_desk->document.isDocumentEdited());
}

void CustomLabelsTest::namesTheControlsForAScreenReader()
{
    const auto accessibleName = [this](const QString& name) {
        return EditorDesk::find<QWidget>(*m_editor, name).accessibleName();
    };
    QCOMPARE(accessibleName(u"m_idCustomField4"_s), u"Custom Field 4"_s);
    QCOMPARE(accessibleName(u"m_idCustomYear3"_s), u"Custom Date 3"_s);
    QCOMPARE(accessibleName(u"m_idCustomSwitch5"_s), u"Custom Switch 5"_s);
}

QTEST_MAIN(CustomLabelsTest)
#include "CustomLabelsTest.moc"
