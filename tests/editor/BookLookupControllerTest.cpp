#include "editor/BookLookupController.h"

#include "platform/PreferenceKeys.h"
#include "tests/editor/LookupDesk.h"

#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

} // namespace

/// The sheet that asks for an ISBN to look up.
class BookLookupControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensByButtonMenuAndKey_data();
    void opensByButtonMenuAndKey();
    void opensOnceAtATime();
    void beginsWithTheIsbnOfTheEditor();
    void wantsSomethingToLookUp_data();
    void wantsSomethingToLookUp();
    void showsTheBookInTheEditorAndCloses();
    void looksUpAlsoWhenThatDoesNotStartByItself();
    void leavesNothingForTheEditorToLookUp();
    void staysWhenNothingIsFound();
    void changesNothingWhenItIsLeft_data();
    void changesNothingWhenItIsLeft();
    void escapeStopsTheLookUpAndNotTheSheet();
    void escapeDuringTheCoverKeepsTheTexts();
    void goesWithItsEditor();

private:
    LookupServer& server() { return m_desk->server; }

    /// The sheet that is open; nullptr when there is none.
    BookLookupController* sheet() const;

    QLineEdit& field() const { return *sheet()->findChild<QLineEdit*>(u"m_ISBNField"_s); }

    QPushButton& button(const QString& name) const
    {
        return *sheet()->findChild<QPushButton*>(name);
    }

    QString title() const { return EditorDesk::find<QLineEdit>(*m_editor, u"m_idTitle"_s).text(); }

    std::unique_ptr<LookupDesk> m_desk;
    QPointer<BookEntryWindowController> m_editor;
};

void BookLookupControllerTest::init()
{
    m_desk = std::make_unique<LookupDesk>();
    m_editor = &m_desk->openNew();
    QVERIFY(QTest::qWaitForWindowActive(m_editor->window()));
}

void BookLookupControllerTest::cleanup()
{
    m_desk.reset();
    QVERIFY(!Waiting::isWaiting());
}

BookLookupController* BookLookupControllerTest::sheet() const
{
    auto* const found = m_editor->window()->findChild<BookLookupController*>();
    return found && found->isVisible() ? found : nullptr;
}

void BookLookupControllerTest::opensByButtonMenuAndKey_data()
{
    QTest::addColumn<QString>("way");
    for (const QString& way : {u"button"_s, u"menu"_s, u"key"_s})
        QTest::newRow(qUtf8Printable(way)) << way;
}

void BookLookupControllerTest::opensByButtonMenuAndKey()
{
    QFETCH(const QString, way);
    QVERIFY(!sheet());
    if (way == u"button"_s)
        EditorDesk::find<QPushButton>(*m_editor, u"m_idLookupButton"_s).click();
    else if (way == u"menu"_s)
        EditorDesk::find<QAction>(*m_editor, u"lookUpBook"_s).trigger();
    else
        QTest::keyClick(m_editor->window()->windowHandle(), Qt::Key_L, Qt::ControlModifier);
    QTRY_VERIFY(sheet());
    QCOMPARE(sheet()->windowModality(), Qt::WindowModal);
    QVERIFY(!sheet()->findChild<QWidget*>(u"m_idLookupProgress"_s)->isVisible());
}

void BookLookupControllerTest::opensOnceAtATime()
{
    m_editor->lookupBook();
    m_editor->lookupBook();
    QCOMPARE(m_editor->window()->findChildren<BookLookupController*>().size(), 1);
    sheet()->cancel();
    QTRY_VERIFY(!m_editor->window()->findChild<BookLookupController*>());
    m_editor->lookupBook();
    QVERIFY(sheet());
}

void BookLookupControllerTest::beginsWithTheIsbnOfTheEditor()
{
    EditorDesk::find<QLineEdit>(*m_editor, u"m_idISBN"_s).setText(u"978-0-14"_s);
    m_editor->lookupBook();
    QCOMPARE(field().text(), u"978-0-14"_s);
    QCOMPARE(field().selectedText(), u"978-0-14"_s);
    QTRY_VERIFY(field().hasFocus());
}

void BookLookupControllerTest::wantsSomethingToLookUp_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isEnough");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("hyphens") << u"---"_s << false;
    QTest::newRow("white space") << u" \t "_s << false;
    QTest::newRow("no letter of the alphabet") << u"ĀЖ本"_s << false;
    QTest::newRow("a digit") << u"-9-"_s << true;
    QTest::newRow("a letter") << u"x"_s << true;
}

void BookLookupControllerTest::wantsSomethingToLookUp()
{
    QFETCH(const QString, text);
    EditorDesk::find<QLineEdit>(*m_editor, u"m_idISBN"_s).setText(text);
    m_editor->lookupBook();
    QTEST(button(u"m_OKButton"_s).isEnabled(), "isEnough"); // as it opens
    field().setText(u"978"_s);
    QVERIFY(button(u"m_OKButton"_s).isEnabled());
    field().setText(text);
    QTEST(button(u"m_OKButton"_s).isEnabled(), "isEnough");
}

void BookLookupControllerTest::showsTheBookInTheEditorAndCloses()
{
    serveFullBook(server(), isbn);
    m_editor->lookupBook();
    QTest::keyClicks(&field(), u"978-0-14-303943-3"_s);
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_VERIFY(!sheet());
    QCOMPARE(server().targets().first(), viewTarget(isbn));
    QCOMPARE(title(), u"The Grapes of Wrath"_s);
    QCOMPARE(m_editor->getISBN(), isbn);
    QVERIFY(EditorDesk::find<QWidget>(*m_editor, u"m_idImage1ClearButton"_s).isVisible());
    QCOMPARE(m_desk->alerts.sheets.size(), 0);
}

void BookLookupControllerTest::looksUpAlsoWhenThatDoesNotStartByItself()
{
    m_desk->defaults.setBool(PreferenceKeys::DisableAutoLookup, true);
    serveFullBook(server(), isbn);
    m_editor->lookupBook();
    field().setText(isbn);
    sheet()->ok();
    QCOMPARE(title(), u"The Grapes of Wrath"_s);
}

void BookLookupControllerTest::leavesNothingForTheEditorToLookUp()
{
    serveFullBook(server(), isbn);
    m_editor->lookupBook();
    field().setText(isbn);
    sheet()->ok();
    server().forgetRequests();
    LookupDesk::leaveISBN(*m_editor);
    QCOMPARE(server().targets(), QList<QByteArray>());
}

void BookLookupControllerTest::staysWhenNothingIsFound()
{
    m_editor->lookupBook();
    field().setText(u"978-0"_s);
    QTest::mouseClick(&button(u"m_OKButton"_s), Qt::LeftButton);
    QCOMPARE(m_desk->alerts.sheets.size(), 1);
    QCOMPARE(m_desk->alerts.sheets.first().window, sheet());
    QCOMPARE(m_desk->alerts.sheets.first().alert.informativeText,
        u"Book lookup did not find the requested book."_s);
    QCOMPARE(m_desk->alerts.sheets.first().alert.buttons, QStringList{u"OK"_s});
    QCOMPARE(field().text(), u"978-0"_s);
    QCOMPARE(title(), QString());
    QCOMPARE(m_editor->getISBN(), QString());
}

void BookLookupControllerTest::changesNothingWhenItIsLeft_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void BookLookupControllerTest::changesNothingWhenItIsLeft()
{
    // Escape means something again.
    QTRY_VERIFY(!qApp->findChild<QObject*>(u"escapeAftermath"_s));
    QFETCH(const bool, byKey);
    m_editor->lookupBook();
    field().setText(isbn);
    if (byKey)
        QTest::keyClick(sheet(), Qt::Key_Escape);
    else
        QTest::mouseClick(&button(u"m_cancelButton"_s), Qt::LeftButton);
    QVERIFY(!sheet());
    QVERIFY(m_editor->window()->isVisible());
    QCOMPARE(m_editor->getISBN(), QString());
    QCoreApplication::processEvents();
    QCOMPARE(server().connectionCount(), 0);
}

void BookLookupControllerTest::escapeStopsTheLookUpAndNotTheSheet()
{
    server().serve(viewTarget(isbn), {{}, 200, {}, ServedReply::Manner::Silence});
    m_editor->lookupBook();
    field().setText(isbn);
    bool wasTurning = false;
    m_desk->whileWaitingFor(viewTarget(isbn), [this, &wasTurning] {
        wasTurning = sheet()->findChild<QWidget*>(u"m_idProgressIndicator"_s)->isVisible();
        QTest::keyClick(sheet(), Qt::Key_Escape);
    });
    sheet()->ok();
    QVERIFY(wasTurning);
    QVERIFY(sheet());
    QVERIFY(!sheet()->findChild<QWidget*>(u"m_idProgressIndicator"_s)->isVisible());
    QCOMPARE(m_desk->alerts.sheets.size(), 0);
    QCOMPARE(title(), QString());
}

void BookLookupControllerTest::escapeDuringTheCoverKeepsTheTexts()
{
    serveFullBook(server(), isbn);
    const QByteArray cover = coverTarget("large"_L1);
    server().serve(cover, {{}, 200, {}, ServedReply::Manner::Silence});
    m_editor->lookupBook();
    field().setText(isbn);
    m_desk->whileWaitingFor(cover, [this] { QTest::keyClick(sheet(), Qt::Key_Escape); });
    sheet()->ok();
    QVERIFY(!sheet());
    QCOMPARE(title(), u"The Grapes of Wrath"_s);
}

void BookLookupControllerTest::goesWithItsEditor()
{
    server().serve(viewTarget(isbn), {{}, 200, {}, ServedReply::Manner::Silence});
    m_editor->lookupBook();
    field().setText(isbn);
    m_desk->whileWaitingFor(
        viewTarget(isbn), [this] { m_desk->document.removeWindowController(m_editor); });
    sheet()->ok();
    QTRY_VERIFY(!m_editor);
    QCOMPARE(m_desk->alerts.sheets.size(), 0);
}

QTEST_MAIN(BookLookupControllerTest)
#include "BookLookupControllerTest.moc"
