#include "editor/LookupWorkflow.h"

#include "editor/BookLookupController.h"
#include "editor/DraggableImageView.h"
#include "editor/NotesView.h"
#include "editor/PopUpButton.h"
#include "platform/PreferenceKeys.h"
#include "tests/editor/LookupDesk.h"
#include "tests/support/BookSamples.h"
#include "tests/support/ContentsText.h"
#include "tests/support/PlainPictures.h"

#include <QComboBox>
#include <QJsonObject>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

using Manner = ServedReply::Manner;

namespace {

const QString isbn = u"9780143039433"_s;
const QString otherISBN = u"9780141439587"_s;
constexpr QSize largeSize(400, 600);
constexpr QSize mediumSize(200, 300);

QString line(const BookEntryWindowController& editor, const QString& name)
{
    return EditorDesk::find<QLineEdit>(editor, name).text();
}

QString combo(const BookEntryWindowController& editor, const QString& name)
{
    return EditorDesk::find<QComboBox>(editor, name).currentText();
}

qint32 month(const BookEntryWindowController& editor)
{
    return EditorDesk::find<PopUpButton>(editor, u"m_idMonthPublished"_s).selectedTag();
}

const Picture& cover(const BookEntryWindowController& editor)
{
    return EditorDesk::find<DraggableImageView>(editor, u"m_idImage1"_s).picture();
}

QStringList shown(const BookEntryWindowController& editor)
{
    return {line(editor, u"m_idTitle"_s), combo(editor, u"m_idAuthor"_s),
        line(editor, u"m_idISBN"_s), combo(editor, u"m_idPublisher"_s),
        line(editor, u"m_idPages"_s), line(editor, u"m_idYearPublished"_s),
        QString::number(month(editor))};
}

} // namespace

/// The look-up in an editor: when it starts, what it changes, and how it ends.
class LookupWorkflowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void looksUpAnIsbnOnceWhenItIsLeft();
    void looksUpOnReturn();
    void asksNothingForHyphensAndLetterCase_data();
    void asksNothingForHyphensAndLetterCase();
    void looksUpAnotherIsbn();
    void knowsTheIsbnOfAnExistingBook();
    void looksUpNothingWhenThePersonWantsNone();
    void cutsAnEndlessIsbn();
    void startsNothingWhenTheEditorIsClosed_data();
    void startsNothingWhenTheEditorIsClosed();
    void startsNothingUnderAnOpenSheet();

    void replacesEveryBibliographicControl();
    void showsWhateverADateSays_data();
    void showsWhateverADateSays();
    void leavesEverythingElseAlone();
    void makesTheBookReadyToSave();
    void storesTheCoverOnSave();

    void fallsBackToTheNextBestCover_data();
    void fallsBackToTheNextBestCover();
    void asksForACoverOnlyOnce();
    void clearsTheWellWhenThereIsNoCover_data();
    void clearsTheWellWhenThereIsNoCover();
    void keepsTheWellWhenCoversAreNotWanted();

    void tellsThatNothingWasFound();
    void triesAgainOnlyWithAnotherIsbn();

    void takesNoInputAndTurnsItsIndicator();
    void escapeGivesUpWithoutAWord();
    void escapeDuringTheCoverKeepsTheWell();
    void survivesTheEndOfItsEditor_data();
    void survivesTheEndOfItsEditor();

private:
    /// The book with those of its covers only.
    void serveCovers(const QStringList& links);

    LookupServer& server() { return m_desk->server; }

    /// A book that has a cover.
    BookEntry coveredBook() const;

    /// Looks the served book up in a new editor.
    BookEntryWindowController& lookUp();

    std::unique_ptr<LookupDesk> m_desk;
};

void LookupWorkflowTest::init()
{
    m_desk = std::make_unique<LookupDesk>();
}

void LookupWorkflowTest::cleanup()
{
    m_desk.reset();
    QVERIFY(!Waiting::isWaiting());
}

void LookupWorkflowTest::serveCovers(const QStringList& links)
{
    QJsonObject info = fullVolumeInfo(server());
    QJsonObject addresses = info[u"imageLinks"_s].toObject();
    for (const QString& link : addresses.keys()) {
        if (!links.contains(link))
            addresses.remove(link);
    }
    info[u"imageLinks"_s] = addresses;
    serveVolume(server(), isbn, info);
}

BookEntry LookupWorkflowTest::coveredBook() const
{
    BookEntry book;
    book.setTitle(u"Grapes"_s);
    book.setImage(1, Picture::fromEncoded(samples::plainPicture(Qt::darkGreen, {100, 150})),
        m_desk->defaults);
    return book;
}

BookEntryWindowController& LookupWorkflowTest::lookUp()
{
    BookEntryWindowController& editor = m_desk->openNew();
    LookupDesk::typeISBN(editor, isbn);
    return editor;
}

// When it starts

void LookupWorkflowTest::looksUpAnIsbnOnceWhenItIsLeft()
{
    serveFullBook(server(), isbn);
    BookEntryWindowController& editor = m_desk->openNew();
    LookupDesk::typeISBN(editor, u"978-0-14-303943-3"_s);
    QCOMPARE(server().targets(),
        (QList<QByteArray>{viewTarget(isbn), volumeTarget(isbn), coverTarget("large"_L1)}));
    QCOMPARE(editor.getISBN(), isbn);
    server().forgetRequests();
    LookupDesk::leaveISBN(editor);
    QCOMPARE(server().targets(), QList<QByteArray>());
}

void LookupWorkflowTest::looksUpOnReturn()
{
    serveFullBook(server(), isbn);
    BookEntryWindowController& editor = m_desk->openNew();
    auto& field = EditorDesk::find<QLineEdit>(editor, u"m_idISBN"_s);
    QTest::keyClicks(&field, isbn);
    QTest::keyClick(&field, Qt::Key_Return);
    QTRY_COMPARE(line(editor, u"m_idTitle"_s), u"The Grapes of Wrath"_s);
}

void LookupWorkflowTest::asksNothingForHyphensAndLetterCase_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("hyphens") << u"978-0-14-303943-3"_s << u"978 0 14 303943 3"_s;
    QTest::newRow("letter case") << u"0 8044 2957 x"_s << u"080442957X"_s;
}

void LookupWorkflowTest::asksNothingForHyphensAndLetterCase()
{
    QFETCH(const QString, first);
    QFETCH(const QString, second);
    BookEntryWindowController& editor = m_desk->openNew();
    LookupDesk::typeISBN(editor, first);
    QCOMPARE(server().requests().size(), 1);
    LookupDesk::typeISBN(editor, second);
    QCOMPARE(server().requests().size(), 1);
}

void LookupWorkflowTest::looksUpAnotherIsbn()
{
    BookEntryWindowController& editor = m_desk->openNew();
    LookupDesk::typeISBN(editor, isbn);
    LookupDesk::typeISBN(editor, otherISBN);
    LookupDesk::typeISBN(editor, QString());
    LookupDesk::typeISBN(editor, u"---"_s);
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(server().targets(),
        (QList<QByteArray>{viewTarget(isbn), viewTarget(otherISBN), viewTarget(isbn)}));
}

void LookupWorkflowTest::knowsTheIsbnOfAnExistingBook()
{
    BookEntry book;
    book.setTitle(u"Grapes"_s);
    book.setISBN(u"978-0-14-303943-3"_s);
    BookEntryWindowController& editor = m_desk->open(book);
    LookupDesk::leaveISBN(editor);
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(server().targets(), QList<QByteArray>());
}

void LookupWorkflowTest::looksUpNothingWhenThePersonWantsNone()
{
    m_desk->defaults.setBool(PreferenceKeys::DisableAutoLookup, true);
    BookEntryWindowController& editor = m_desk->openNew();
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(server().connectionCount(), 0);
    // What was seen while it was off needs no look-up later either.
    m_desk->defaults.setBool(PreferenceKeys::DisableAutoLookup, false);
    LookupDesk::leaveISBN(editor);
    QCOMPARE(server().connectionCount(), 0);
}

void LookupWorkflowTest::cutsAnEndlessIsbn()
{
    BookEntryWindowController& editor = m_desk->openNew();
    EditorDesk::find<QLineEdit>(editor, u"m_idISBN"_s).setText(QString(5000, u'9'));
    LookupDesk::leaveISBN(editor);
    QCOMPARE(server().targets(), QList<QByteArray>{viewTarget(QString(1023, u'9'))});
}

void LookupWorkflowTest::startsNothingWhenTheEditorIsClosed_data()
{
    QTest::addColumn<QString>("way");
    for (const QString& way : {u"Cancel"_s, u"Escape"_s, u"the close button"_s, u"Save"_s})
        QTest::newRow(qUtf8Printable(way)) << way;
}

void LookupWorkflowTest::startsNothingWhenTheEditorIsClosed()
{
    // Escape means something again.
    QTRY_VERIFY(!qApp->findChild<QObject*>(u"escapeAftermath"_s));
    QFETCH(const QString, way);
    QPointer editor(&m_desk->openNew());
    EditorDesk::find<QLineEdit>(*editor, u"m_idTitle"_s).setText(u"Grapes"_s);
    QLineEdit& field = LookupDesk::focusedISBN(*editor);
    QTest::keyClicks(&field, isbn);
    const auto clickLikeAHand = [&editor](const QString& name) {
        auto& button = EditorDesk::find<QPushButton>(*editor, name);
        const QPoint place = button.mapTo(editor->window(), button.rect().center());
        QTest::mouseClick(editor->window()->windowHandle(), Qt::LeftButton, {}, place);
    };
    if (way == u"Cancel"_s)
        clickLikeAHand(u"m_idCancelButton"_s);
    else if (way == u"Save"_s)
        clickLikeAHand(u"m_idSaveButton"_s);
    else if (way == u"Escape"_s)
        QTest::keyClick(&field, Qt::Key_Escape);
    else
        editor->window()->close();
    QTRY_VERIFY(!editor);
    QCOMPARE(server().connectionCount(), 0);
}

void LookupWorkflowTest::startsNothingUnderAnOpenSheet()
{
    BookEntryWindowController& editor = m_desk->openNew();
    QLineEdit& field = LookupDesk::focusedISBN(editor);
    QTest::keyClicks(&field, isbn);
    EditorDesk::find<QPushButton>(editor, u"m_idLookupButton"_s).setFocus(Qt::MouseFocusReason);
    editor.lookupBook();
    QCoreApplication::processEvents();
    QCOMPARE(server().connectionCount(), 0);
    // The ISBN was left all the same.
    editor.window()->findChild<BookLookupController*>()->cancel();
    editor.window()->activateWindow();
    QTRY_COMPARE(server().targets(), QList<QByteArray>{viewTarget(isbn)});
}

// What it changes

void LookupWorkflowTest::replacesEveryBibliographicControl()
{
    serveFullBook(server(), isbn);
    BookEntryWindowController& editor = lookUp();
    QCOMPARE(shown(editor),
        (QStringList{u"The Grapes of Wrath"_s, u"John Steinbeck"_s, isbn, u"Penguin"_s, u"464"_s,
            u"2006"_s, u"3"_s}));
    // What a look-up does not know becomes empty.
    serveVolume(server(), otherISBN, {});
    LookupDesk::typeISBN(editor, otherISBN);
    QCOMPARE(shown(editor),
        (QStringList{QString(), QString(), otherISBN, QString(), QString(), QString(), u"0"_s}));
    QCOMPARE(m_desk->alerts.sheets.size(), 0);
}

void LookupWorkflowTest::showsWhateverADateSays_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("year");
    QTest::addColumn<qint32>("tag");
    QTest::newRow("year") << u"1999"_s << u"1999"_s << 0;
    QTest::newRow("month") << u"1999-12"_s << u"1999"_s << 12;
    QTest::newRow("no such month") << u"1999-13"_s << u"1999"_s << 0;
    QTest::newRow("before all months") << u"1999--3"_s << u"1999"_s << 0;
    QTest::newRow("words") << u"Spring 1999"_s << u"Spring 1999"_s << 0;
}

void LookupWorkflowTest::showsWhateverADateSays()
{
    QFETCH(const QString, date);
    QJsonObject info = fullVolumeInfo(server());
    info[u"publishedDate"_s] = date;
    serveVolume(server(), isbn, info);
    BookEntryWindowController& editor = lookUp();
    QTEST(line(editor, u"m_idYearPublished"_s), "year");
    QTEST(month(editor), "tag");
}

void LookupWorkflowTest::leavesEverythingElseAlone()
{
    serveFullBook(server(), isbn);
    const BookEntry book = samples::fullBook();
    m_desk->document.addBook(std::make_unique<BookEntry>(book));
    const BookEntry& saved = *m_desk->document.allValues().front();
    BookEntryWindowController& editor = m_desk->open(saved);
    LookupDesk::typeISBN(editor, isbn);
    QVERIFY(editor.saveEntry(nullptr));
    BookEntry expected = book;
    expected.setTitle(u"The Grapes of Wrath"_s);
    expected.setAuthor(u"John Steinbeck"_s);
    expected.setISBN(isbn);
    expected.setPublisher(u"Penguin"_s);
    expected.setPages(464);
    expected.setYearPublished(u"2006"_s);
    expected.setMonthPublished(3);
    expected.setImageData(1, saved.getImageData(1));
    QCOMPARE(samples::linesOf(saved), samples::linesOf(expected));
    QVERIFY(saved.getImageData(1) != book.getImageData(1));
}

void LookupWorkflowTest::makesTheBookReadyToSave()
{
    serveFullBook(server(), isbn);
    BookEntryWindowController& editor = lookUp();
    QVERIFY(EditorDesk::find<QPushButton>(editor, u"m_idSaveButton"_s).isEnabled());
    QVERIFY(EditorDesk::find<QPushButton>(editor, u"m_idAddMoreButton"_s).isEnabled());
    QVERIFY(editor.unsavedWork());
}

void LookupWorkflowTest::storesTheCoverOnSave()
{
    serveFullBook(server(), isbn);
    BookEntryWindowController& editor = lookUp();
    QCOMPARE(cover(editor).size(), largeSize);
    QVERIFY(EditorDesk::find<QWidget>(editor, u"m_idImage1ClearButton"_s).isVisible());
    QCOMPARE(m_desk->document.getBookListSize(), 0);
    QVERIFY(editor.saveEntry(nullptr));
    const BookEntry* const saved = m_desk->document.allValues().front();
    QCOMPARE(saved->getPicture(1).size(), largeSize);
    QVERIFY(!saved->getPicture(2).isValid());
}

// Covers

void LookupWorkflowTest::fallsBackToTheNextBestCover_data()
{
    QTest::addColumn<ServedReply>("large");
    QTest::addColumn<QSize>("size");
    const QByteArray picture = samples::plainPicture(Qt::darkGreen, largeSize);
    QTest::newRow("the large one") << ServedReply{picture} << largeSize;
    QTest::newRow("missing") << ServedReply{"gone", 404} << mediumSize;
    QTest::newRow("empty") << ServedReply{} << mediumSize;
    QTest::newRow("no picture") << ServedReply{"<html>Sorry</html>"} << mediumSize;
    QTest::newRow("cut off") << ServedReply{picture, 200, {}, Manner::CutOff} << mediumSize;
    QTest::newRow("half a picture") << ServedReply{picture.first(500)} << mediumSize;
    QTest::newRow("the placeholder") << ServedReply{scenePlaceholder()} << mediumSize;
}

void LookupWorkflowTest::fallsBackToTheNextBestCover()
{
    QFETCH(const ServedReply, large);
    serveFullBook(server(), isbn);
    server().serve(coverTarget("large"_L1), large);
    BookEntryWindowController& editor = lookUp();
    QTEST(cover(editor).size(), "size");
    QCOMPARE(server().targets().count(coverTarget("large"_L1)), 1);
}

void LookupWorkflowTest::asksForACoverOnlyOnce()
{
    serveCovers({u"medium"_s});
    server().serve(coverTarget("medium"_L1), {"gone", 404});
    lookUp();
    QCOMPARE(server().targets().count(coverTarget("medium"_L1)), 1);
}

void LookupWorkflowTest::clearsTheWellWhenThereIsNoCover_data()
{
    QTest::addColumn<QStringList>("links");
    QTest::newRow("no address") << QStringList();
    QTest::newRow("nothing at its address") << QStringList{u"large"_s};
    QTest::newRow("nothing at any address") << QStringList{u"large"_s, u"small"_s};
}

void LookupWorkflowTest::clearsTheWellWhenThereIsNoCover()
{
    QFETCH(const QStringList, links);
    serveCovers(links);
    for (const SceneCover& gone : sceneCovers)
        server().serve(coverTarget(gone.link), {"gone", 404});
    BookEntryWindowController& editor = m_desk->open(coveredBook());
    QVERIFY(cover(editor).isValid());
    LookupDesk::typeISBN(editor, isbn);
    QVERIFY(!cover(editor).isValid());
    QVERIFY(!EditorDesk::find<QWidget>(editor, u"m_idImage1ClearButton"_s).isVisible());
    QVERIFY(editor.saveEntry(nullptr));
    QVERIFY(!m_desk->document.allValues().front()->getPicture(1).isValid());
}

void LookupWorkflowTest::keepsTheWellWhenCoversAreNotWanted()
{
    serveFullBook(server(), isbn);
    m_desk->defaults.setBool(PreferenceKeys::DisableImageDownload, true);
    BookEntryWindowController& editor = m_desk->open(coveredBook());
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(line(editor, u"m_idTitle"_s), u"The Grapes of Wrath"_s);
    QCOMPARE(cover(editor).size(), QSize(100, 150));
    QCOMPARE(server().targets(), (QList<QByteArray>{viewTarget(isbn), volumeTarget(isbn)}));
}

// How it fails

void LookupWorkflowTest::tellsThatNothingWasFound()
{
    const BookEntry book = samples::fullBook();
    BookEntryWindowController& editor = m_desk->open(book);
    QStringList before = shown(editor);
    LookupDesk::typeISBN(editor, u"978-0-14-303943-3"_s);
    QCOMPARE(m_desk->alerts.sheets.size(), 1);
    const FakeAlerts::Sheet& sheet = m_desk->alerts.sheets.first();
    QCOMPARE(sheet.window, editor.window());
    QCOMPARE(sheet.alert.informativeText, u"Book lookup did not find the requested book."_s);
    QCOMPARE(sheet.alert.buttons, QStringList{u"OK"_s});
    before[2] = u"978-0-14-303943-3"_s;
    QCOMPARE(shown(editor), before);
    QVERIFY(EditorDesk::find<QWidget>(editor, u"m_idLookupProgress"_s).isHidden());
}

void LookupWorkflowTest::triesAgainOnlyWithAnotherIsbn()
{
    BookEntryWindowController& editor = lookUp();
    QCOMPARE(m_desk->alerts.sheets.size(), 1);
    serveFullBook(server(), isbn);
    LookupDesk::leaveISBN(editor);
    QCOMPARE(server().requests().size(), 1);
    LookupDesk::typeISBN(editor, otherISBN);
    QCOMPARE(m_desk->alerts.sheets.size(), 2);
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(line(editor, u"m_idTitle"_s), u"The Grapes of Wrath"_s);
}

// While it goes on

void LookupWorkflowTest::takesNoInputAndTurnsItsIndicator()
{
    server().serve(viewTarget(isbn), {{}, 200, {}, Manner::Silence});
    BookEntryWindowController& editor = m_desk->openNew();
    auto& title = EditorDesk::find<QLineEdit>(editor, u"m_idTitle"_s);
    auto& indicator = EditorDesk::find<QProgressBar>(editor, u"m_idProgressIndicator"_s);
    QVERIFY(!indicator.isVisible());
    bool wasTurning = false;
    m_desk->whileWaitingFor(viewTarget(isbn), [&] {
        wasTurning = indicator.isVisible() && indicator.maximum() == 0;
        QTest::keyClicks(&title, u"Emma"_s);
        QTest::keyClick(&title, Qt::Key_Return, Qt::ControlModifier);
        LookupDesk::leaveISBN(editor); // and none while one runs
        QTest::keyClick(&title, Qt::Key_Escape);
    });
    LookupDesk::typeISBN(editor, isbn);
    QVERIFY(wasTurning);
    QCOMPARE(title.text(), QString());
    QVERIFY(!indicator.isVisible());
    QCOMPARE(server().targets(), QList<QByteArray>{viewTarget(isbn)});
    QVERIFY(editor.window()->isVisible());
}

void LookupWorkflowTest::escapeGivesUpWithoutAWord()
{
    m_desk->defaults.setBool(PreferenceKeys::EnableAlternateSources, true);
    server().serve(viewTarget(isbn), {{}, 200, {}, Manner::Silence});
    BookEntryWindowController& editor = m_desk->openNew();
    m_desk->whileWaitingFor(
        viewTarget(isbn), [&editor] { QTest::keyClick(editor.window(), Qt::Key_Escape); });
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(server().targets(), QList<QByteArray>{viewTarget(isbn)}); // not the next source either
    QCOMPARE(m_desk->alerts.sheets.size(), 0);
    QCOMPARE(editor.getISBN(), isbn);
    QVERIFY(editor.window()->isVisible());
}

void LookupWorkflowTest::escapeDuringTheCoverKeepsTheWell()
{
    serveFullBook(server(), isbn);
    server().serve(coverTarget("large"_L1), {{}, 200, {}, Manner::Silence});
    BookEntryWindowController& editor = m_desk->open(coveredBook());
    m_desk->whileWaitingFor(
        coverTarget("large"_L1), [&editor] { QTest::keyClick(editor.window(), Qt::Key_Escape); });
    LookupDesk::typeISBN(editor, isbn);
    QCOMPARE(line(editor, u"m_idTitle"_s), u"The Grapes of Wrath"_s);
    QCOMPARE(cover(editor).size(), QSize(100, 150));
    QVERIFY(!server().targets().contains(coverTarget("medium"_L1)));
}

void LookupWorkflowTest::survivesTheEndOfItsEditor_data()
{
    QTest::addColumn<QByteArray>("silentTarget");
    QTest::newRow("during the texts") << viewTarget(isbn);
    QTest::newRow("during the cover") << coverTarget("large"_L1);
}

void LookupWorkflowTest::survivesTheEndOfItsEditor()
{
    QFETCH(const QByteArray, silentTarget);
    serveFullBook(server(), isbn);
    server().serve(silentTarget, {{}, 200, {}, Manner::Silence});
    QPointer editor(&m_desk->openNew());
    m_desk->whileWaitingFor(silentTarget, [&] { m_desk->document.removeWindowController(editor); });
    QTest::keyClicks(&EditorDesk::find<QLineEdit>(*editor, u"m_idISBN"_s), isbn);
    QTest::keyClick(&EditorDesk::find<QLineEdit>(*editor, u"m_idISBN"_s), Qt::Key_Return);
    QTRY_VERIFY(!editor);
    // Long before the time of the fetch is up.
    QTRY_VERIFY(!Waiting::isWaiting());
    QCOMPARE(m_desk->alerts.sheets.size(), 0);
}

QTEST_MAIN(LookupWorkflowTest)
#include "LookupWorkflowTest.moc"
