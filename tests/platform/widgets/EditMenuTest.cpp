#include "platform/widgets/EditMenu.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

// The menu Edit of a window with a line, a text and a button.
class EditMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void worksOnTheLineWithTheFocus();
    void worksOnTheTextWithTheFocus();
    void enablesWhatIsPossibleInALine();
    void enablesWhatIsPossibleInAText();
    void enablesNothingForAButton();
    void offersNothingButCopyForAReadOnlyLine();
    void answersKeysWhateverTheMenuShowedLast();
    void worksOnTheLineOfAComboBox();
    void worksOnWhatHadTheFocusBeforeTheMenuBar();
    void takesFurtherItems();

private:
    QAction& action(const char* name) const
    {
        return *m_menu->findChild<QAction*>(QString::fromLatin1(name));
    }

    /// Names of the items that are enabled when the menu opens.
    QStringList enabled() const
    {
        Q_EMIT m_menu->aboutToShow();
        QStringList names;
        for (const QAction* const item : m_menu->actions()) {
            if (item->isEnabled() && !item->isSeparator())
                names.append(item->objectName());
        }
        Q_EMIT m_menu->aboutToHide();
        return names;
    }

    std::unique_ptr<QMainWindow> m_window;
    QLineEdit* m_line = nullptr;
    QPlainTextEdit* m_text = nullptr;
    QPushButton* m_button = nullptr;
    QComboBox* m_combo = nullptr;
    QMenu* m_menu = nullptr;
};

void EditMenuTest::init()
{
    QGuiApplication::clipboard()->clear();
    m_window = std::make_unique<QMainWindow>();
    auto* const contents = new QWidget;
    m_line = new QLineEdit(contents);
    m_text = new QPlainTextEdit(contents);
    m_button = new QPushButton(contents);
    m_combo = new QComboBox(contents);
    m_combo->setEditable(true);
    m_window->setCentralWidget(contents);
    m_menu = &addEditMenu(*m_window->menuBar());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void EditMenuTest::cleanup()
{
    m_window.reset();
}

void EditMenuTest::worksOnTheLineWithTheFocus()
{
    m_line->setFocus();
    QTest::keyClicks(m_line, u"Emma"_s);
    action("selectAll").trigger();
    QCOMPARE(m_line->selectedText(), u"Emma"_s);
    action("cut").trigger();
    QCOMPARE(m_line->text(), QString());
    action("paste").trigger();
    action("paste").trigger();
    QCOMPARE(m_line->text(), u"EmmaEmma"_s);
    action("undo").trigger();
    QCOMPARE(m_line->text(), u"Emma"_s);
    action("redo").trigger();
    QCOMPARE(m_line->text(), u"EmmaEmma"_s);
}

void EditMenuTest::worksOnTheTextWithTheFocus()
{
    m_text->setFocus();
    QTest::keyClicks(m_text, u"Kim"_s);
    action("selectAll").trigger();
    action("copy").trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Kim"_s);
    action("cut").trigger();
    QCOMPARE(m_text->toPlainText(), QString());
    action("undo").trigger();
    QCOMPARE(m_text->toPlainText(), u"Kim"_s);
    QVERIFY(m_line->text().isEmpty());
}

void EditMenuTest::enablesWhatIsPossibleInALine()
{
    m_line->setFocus();
    QCOMPARE(enabled(), QStringList());
    QTest::keyClicks(m_line, u"Emma"_s);
    QCOMPARE(enabled(), QStringList({u"undo"_s, u"selectAll"_s}));
    m_line->selectAll();
    QGuiApplication::clipboard()->setText(u"x"_s);
    QCOMPARE(enabled(), QStringList({u"undo"_s, u"cut"_s, u"copy"_s, u"paste"_s, u"selectAll"_s}));
    m_line->undo();
    QVERIFY(enabled().contains(u"redo"_s));
}

void EditMenuTest::enablesWhatIsPossibleInAText()
{
    m_text->setFocus();
    QCOMPARE(enabled(), QStringList());
    QTest::keyClicks(m_text, u"Kim"_s);
    m_text->selectAll();
    QGuiApplication::clipboard()->setText(u"x"_s);
    QCOMPARE(enabled(), QStringList({u"undo"_s, u"cut"_s, u"copy"_s, u"paste"_s, u"selectAll"_s}));
    m_text->undo();
    QVERIFY(enabled().contains(u"redo"_s));
}

void EditMenuTest::enablesNothingForAButton()
{
    m_button->setFocus();
    QGuiApplication::clipboard()->setText(u"x"_s);
    QCOMPARE(enabled(), QStringList());
    action("paste").trigger(); // nothing to paste into, and no harm
}

void EditMenuTest::offersNothingButCopyForAReadOnlyLine()
{
    m_line->setText(u"Emma"_s);
    m_line->setReadOnly(true);
    m_line->setFocus();
    m_line->selectAll();
    QGuiApplication::clipboard()->setText(u"x"_s);
    QCOMPARE(enabled(), QStringList({u"copy"_s, u"selectAll"_s}));
}

void EditMenuTest::answersKeysWhateverTheMenuShowedLast()
{
    m_line->setFocus();
    QVERIFY(!enabled().contains(u"undo"_s));
    for (const QAction* const item : m_menu->actions())
        QVERIFY(item->isEnabled());
}

void EditMenuTest::worksOnTheLineOfAComboBox()
{
    m_combo->setFocus();
    QTest::keyClicks(m_combo, u"Emma"_s);
    QCOMPARE(enabled(), QStringList({u"undo"_s, u"selectAll"_s}));
    action("selectAll").trigger();
    action("cut").trigger();
    QCOMPARE(m_combo->currentText(), QString());
    action("paste").trigger();
    QCOMPARE(m_combo->currentText(), u"Emma"_s);
}

void EditMenuTest::worksOnWhatHadTheFocusBeforeTheMenuBar()
{
    m_line->setFocus();
    QTest::keyClicks(m_line, u"Emma"_s);
    m_window->menuBar()->setFocus(Qt::MenuBarFocusReason); // as walking through menus by keys does
    QCOMPARE(enabled(), QStringList({u"undo"_s, u"selectAll"_s}));
    action("selectAll").trigger();
    QCOMPARE(m_line->selectedText(), u"Emma"_s);
}

void EditMenuTest::takesFurtherItems()
{
    QCOMPARE(m_menu->objectName(), u"editMenu"_s);
    QAction* const further = m_menu->addAction(u"Further"_s);
    QVERIFY(m_menu->actions().endsWith(further));
    m_button->setFocus();
    Q_EMIT m_menu->aboutToShow();
    QVERIFY(further->isEnabled()); // its state is its own affair
    Q_EMIT m_menu->aboutToHide();
}

QTEST_MAIN(EditMenuTest)
#include "EditMenuTest.moc"
