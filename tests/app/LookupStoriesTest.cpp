#include "tests/app/ProgramOnScreen.h"

#include "editor/BookLookupController.h"
#include "editor/DraggableImageView.h"
#include "editor/PopUpButton.h"
#include "platform/PreferenceKeys.h"
#include "tests/support/BookSamples.h"
#include "tests/support/ContentsText.h"
#include "tests/support/LookupScenes.h"
#include "tests/support/LookupServer.h"
#include "tests/support/RealMouse.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTabWidget>
#include <QtTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::sendInput;
using samples::typeKey;

namespace {

using Manner = ServedReply::Manner;

const QString isbn = u"9780143039433"_s;

const TestAuthority& authority()
{
    static const TestAuthority made;
    return made;
}

QLineEdit& line(const EditorWindow& editor, const QString& name)
{
    return editor.find<QLineEdit>(name);
}

/// What the controls show that a look-up fills in.
QStringList shown(const EditorWindow& editor)
{
    return {line(editor, u"m_idTitle"_s).text(),
        editor.find<QComboBox>(u"m_idAuthor"_s).currentText(), line(editor, u"m_idISBN"_s).text(),
        editor.find<QComboBox>(u"m_idPublisher"_s).currentText(),
        line(editor, u"m_idPages"_s).text(), line(editor, u"m_idYearPublished"_s).text(),
        QString::number(editor.find<PopUpButton>(u"m_idMonthPublished"_s).selectedTag())};
}

/// Presses keys of the display itself until the field has them: a display may drop those that come
/// before the focus does.
bool typeISBN(const EditorWindow& editor, const QString& text)
{
    QLineEdit& field = line(editor, u"m_idISBN"_s);
    field.setFocus(Qt::MouseFocusReason);
    field.clear();
    return QTest::qWaitFor([&field] { return field.hasFocus(); }) && sendInput({u"type"_s, text})
        && QTest::qWaitFor([&field, &text] { return field.text() == text; });
}

/// Goes on with the Tab key and waits until that has happened.
bool leaveISBN(const EditorWindow& editor)
{
    QLineEdit& field = line(editor, u"m_idISBN"_s);
    return typeKey(u"Tab"_s) && QTest::qWaitFor([&field] { return !field.hasFocus(); });
}

/// Counts how often a widget is painted.
class Paints : public QObject {
public:
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

/// Counts the keys that come to the program from now on, whatever becomes of them.
class KeyPresses : public QObject {
public:
    int count = 0;

    KeyPresses() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

// What a person sees of looking books up: the whole program, with sources of its own.
class LookupStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fillsInABookFromItsIsbn();
    void looksUpInASheet();
    void escapeStopsALongWait();
    void leavesTheEditorAsItIsWhenSourcesAreHostile_data();
    void leavesTheEditorAsItIsWhenSourcesAreHostile();
    void takesNoCoverFromAHostileServer_data();
    void takesNoCoverFromAHostileServer();
    void looksUpOnceTheSheetIsLeft();
    void looksUpAfterAClickOnTheOtherTab();
    void aSecondEscapeKeepsTheEditor();

private:
    std::unique_ptr<LookupServer> m_server;
    std::unique_ptr<ProgramOnScreen> m_program;
};

void LookupStoriesTest::init()
{
    // Escape means something again.
    QTRY_VERIFY(!qApp->findChild<QObject*>(u"escapeAftermath"_s));
    m_server = std::make_unique<LookupServer>(authority().identityFor(u"localhost"_s));
    FetchPolicy policy = authority().policy();
    // Time is up early where sources are hostile.
    if (QByteArray(QTest::currentTestFunction()).contains("Hostile"))
        policy.mostTime = std::chrono::seconds(3);
    m_program = std::make_unique<ProgramOnScreen>(policy);
    askServer(m_program->defaults, *m_server);
}

void LookupStoriesTest::cleanup()
{
    m_program.reset();
    m_server.reset();
}

void LookupStoriesTest::fillsInABookFromItsIsbn()
{
    serveFullBook(*m_server, isbn);
    const QString path = m_program->smallCollection(u"small.books"_s);
    const QStringList expected{u"The Grapes of Wrath"_s, u"John Steinbeck"_s, isbn, u"Penguin"_s,
        u"464"_s, u"2006"_s, u"3"_s};
    {
        const CollectionWindow window = m_program->open(path);
        const EditorWindow editor = m_program->addBook(window);
        QVERIFY(typeISBN(editor, u"978-0-14-303943-3"_s));
        QVERIFY(leaveISBN(editor));
        QTRY_COMPARE(shown(editor), expected);
        const QList<QByteArray> asked{
            viewTarget(isbn), volumeTarget(isbn), coverTarget("large"_L1)};
        QTRY_VERIFY(editor.find<DraggableImageView>(u"m_idImage1"_s).picture().isValid());
        QCOMPARE(m_server->targets(), asked);

        // Neither leaving it again nor other hyphens ask anybody.
        line(editor, u"m_idISBN"_s).setFocus(Qt::BacktabFocusReason);
        QVERIFY(leaveISBN(editor));
        QVERIFY(typeISBN(editor, u"978 0 14 303943 3"_s));
        QVERIFY(leaveISBN(editor));
        QCoreApplication::processEvents();
        QCOMPARE(m_server->targets(), asked);
        QVERIFY(!ProgramOnScreen::alert());

        QVERIFY(typeKey(u"ctrl+Return"_s));
        QTRY_COMPARE(window.status(), u"5 of 5 displayed"_s);
        window.choose(u"save"_s);
        window.choose(u"closeWindow"_s);
        QTRY_COMPARE(m_program->openCount(), std::size_t(0));
    }
    const CollectionWindow window = m_program->open(path);
    const BookEntry& book = *window.document().getBookEntry(u"5"_s);
    QCOMPARE(book.getTitle(), expected[0]);
    QCOMPARE(book.getISBN(), u"978 0 14 303943 3"_s);
    QCOMPARE(book.getPages(), 464);
    QCOMPARE(book.getMonthPublished(), 3);
    QCOMPARE(book.getPicture(1).size(), sceneCovers.back().size);
    m_server->forgetRequests();
    const EditorWindow editor = m_program->edit(window, expected[0]);
    line(editor, u"m_idISBN"_s).setFocus(Qt::BacktabFocusReason);
    QVERIFY(leaveISBN(editor));
    QCoreApplication::processEvents();
    QCOMPARE(m_server->connectionCount(), 3); // as before
}

void LookupStoriesTest::looksUpInASheet()
{
    serveFullBook(*m_server, isbn);
    const CollectionWindow window = m_program->open(m_program->smallCollection(u"small.books"_s));
    const EditorWindow editor = m_program->addBook(window);
    const auto sheet = [&editor] {
        return editor.window().findChild<BookLookupController*>();
    };
    QVERIFY(typeKey(u"ctrl+l"_s));
    QTRY_VERIFY(sheet() && sheet()->isActiveWindow());
    auto& field = *sheet()->findChild<QLineEdit*>(u"m_ISBNField"_s);
    QTRY_VERIFY(field.hasFocus());
    QVERIFY(sendInput({u"type"_s, u"0-000"_s}));
    QTRY_COMPARE(field.text(), u"0-000"_s);
    QVERIFY(typeKey(u"Return"_s));
    QTRY_VERIFY(ProgramOnScreen::alert());
    QCOMPARE(ProgramOnScreen::alertText(), u"Book lookup did not find the requested book."_s);
    QVERIFY(ProgramOnScreen::answer(0));
    QTRY_VERIFY(!ProgramOnScreen::alert() && sheet()->isActiveWindow());
    QTRY_VERIFY(field.hasFocus());
    QVERIFY(typeKey(u"ctrl+a"_s) && sendInput({u"type"_s, isbn}));
    QTRY_COMPARE(field.text(), isbn);
    QVERIFY(typeKey(u"Return"_s));
    QTRY_VERIFY(!sheet());
    QCOMPARE(line(editor, u"m_idTitle"_s).text(), u"The Grapes of Wrath"_s);
    QTRY_VERIFY(editor.window().isActiveWindow());
}

void LookupStoriesTest::escapeStopsALongWait()
{
    m_server->serve(viewTarget(isbn), {{}, 200, {}, Manner::Silence});
    const CollectionWindow window = m_program->open(m_program->smallCollection(u"small.books"_s));
    const EditorWindow editor = m_program->addBook(window);
    QVERIFY(typeISBN(editor, isbn));
    auto& indicator = editor.find<QProgressBar>(u"m_idProgressIndicator"_s);
    Paints turns(indicator);
    Paints listPaints(*window.books().viewport());
    std::optional<KeyPresses> keys;
    samples::InputStory story;
    story.once(
        "leave", [] { typeKey(u"Tab"_s); },
        [this, &indicator] { return indicator.isVisible() && !m_server->requests().isEmpty(); });
    story.once(
        "turn", [] {}, [&turns] { return turns.count > 3; });
    story.once(
        "sheet",
        [&keys] {
            keys.emplace(); // sees what comes before all filters there are already
            typeKey(u"ctrl+l"_s);
        },
        [&keys] { return keys->count > 0; });
    story.once(
        "list", [&window] { window.books().viewport()->update(); },
        [&listPaints] { return listPaints.count > 0; });
    story.once(
        "escape", [] { typeKey(u"Escape"_s); }, [&indicator] { return !indicator.isVisible(); });
    QCOMPARE(story.run(), QByteArray());
    QVERIFY(!ProgramOnScreen::alert());
    QVERIFY(!editor.window().findChild<BookLookupController*>());
    QCOMPARE(shown(editor),
        (QStringList{QString(), QString(), isbn, QString(), QString(), QString(), u"0"_s}));
    QVERIFY(editor.window().isVisible());
}

void LookupStoriesTest::leavesTheEditorAsItIsWhenSourcesAreHostile_data()
{
    QTest::addColumn<ServedReply>("reply");
    QTest::newRow("too many requests") << ServedReply{"no", 429};
    QTest::newRow("out of service") << ServedReply{"no", 503};
    QTest::newRow("slow drip") << ServedReply{QByteArray(100'000, 'x'), 200, {}, Manner::Drip};
    QTest::newRow("silence") << ServedReply{{}, 200, {}, Manner::Silence};
    QTest::newRow("endless body") << ServedReply{QByteArray(65'536, 'x'), 200, {}, Manner::Endless};
    QTest::newRow("cut off") << ServedReply{viewReply("ID"), 200, {}, Manner::CutOff};
    QTest::newRow("garbage") << ServedReply{QByteArray::fromHex("ff00fe80c0ff")};
    QTest::newRow("not even a head")
        << ServedReply{QByteArray(100'000, '\xff'), 200, {}, Manner::Raw};
    QTest::newRow("compressed bomb") << ServedReply{
        qCompress(QByteArray(50'000'000, '?')).mid(4), 200, {{"Content-Encoding", "deflate"}}};
    QTest::newRow("redirect to itself") << ServedReply::redirect(viewTarget(isbn));
    QTest::newRow("redirect to a file") << ServedReply::redirect("file:///etc/passwd");
    QTest::newRow("redirect to http") << ServedReply::redirect("http://localhost/books");
}

void LookupStoriesTest::leavesTheEditorAsItIsWhenSourcesAreHostile()
{
    QFETCH(const ServedReply, reply);
    for (const QByteArray& target : {viewTarget(isbn), bookPageTarget(isbn)})
        m_server->serve(target, reply);
    const QString path = m_program->path(u"full.books"_s);
    {
        BookListDocument document;
        document.addBook(std::make_unique<BookEntry>(samples::fullBook()));
        document.writeToFile(path);
    }
    const CollectionWindow window = m_program->open(path);
    const BookEntry& book = *window.document().getBookEntry(u"1"_s);
    const EditorWindow editor = m_program->edit(window, book.getTitle());
    QStringList controls = shown(editor);
    controls[2] = isbn;
    QVERIFY(typeISBN(editor, isbn));
    QVERIFY(leaveISBN(editor));
    // Both sources, with three seconds for each request.
    QTRY_VERIFY_WITH_TIMEOUT(ProgramOnScreen::alert(), 20'000);
    QCOMPARE(ProgramOnScreen::alertText(), u"Book lookup did not find the requested book."_s);
    QVERIFY(ProgramOnScreen::answer(0));
    QCOMPARE(shown(editor), controls);
    QVERIFY(!editor.find<QWidget>(u"m_idLookupProgress"_s).isVisible());
    editor.controller().saveEntry(nullptr);
    BookEntry expected = samples::fullBook();
    expected.setISBN(isbn);
    QCOMPARE(samples::linesOf(book), samples::linesOf(expected));
}

void LookupStoriesTest::takesNoCoverFromAHostileServer_data()
{
    leavesTheEditorAsItIsWhenSourcesAreHostile_data();
}

void LookupStoriesTest::takesNoCoverFromAHostileServer()
{
    QFETCH(const ServedReply, reply);
    serveFullBook(*m_server, isbn);
    for (const SceneCover& cover : sceneCovers)
        m_server->serve(coverTarget(cover.link), reply);
    const CollectionWindow window = m_program->open(m_program->smallCollection(u"small.books"_s));
    const EditorWindow editor = m_program->addBook(window);
    QVERIFY(typeISBN(editor, isbn));
    QVERIFY(leaveISBN(editor));
    QTRY_COMPARE(line(editor, u"m_idTitle"_s).text(), u"The Grapes of Wrath"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!editor.find<QWidget>(u"m_idLookupProgress"_s).isVisible(), 30'000);
    QVERIFY(!editor.find<DraggableImageView>(u"m_idImage1"_s).picture().isValid());
    QVERIFY(!ProgramOnScreen::alert());
}

void LookupStoriesTest::looksUpOnceTheSheetIsLeft()
{
    const CollectionWindow window = m_program->open(m_program->smallCollection(u"small.books"_s));
    const EditorWindow editor = m_program->addBook(window);
    QVERIFY(typeISBN(editor, isbn));
    auto& button = editor.find<QPushButton>(u"m_idLookupButton"_s);
    samples::moveMouse(samples::onScreen(button, button.rect().center()));
    QVERIFY(samples::pressMouse());
    QTRY_VERIFY(button.isDown());
    QVERIFY(samples::releaseMouse());
    const auto sheet = [&editor] {
        return editor.window().findChild<BookLookupController*>();
    };
    QTRY_VERIFY(sheet() && sheet()->isActiveWindow());
    QCOMPARE(m_server->connectionCount(), 0);
    QVERIFY(typeKey(u"Escape"_s));
    QTRY_VERIFY(!sheet());
    QTRY_VERIFY(ProgramOnScreen::alert());
    QCOMPARE(m_server->targets(), QList<QByteArray>{viewTarget(isbn)});
    QVERIFY(ProgramOnScreen::answer(0));
}

void LookupStoriesTest::looksUpAfterAClickOnTheOtherTab()
{
    serveFullBook(*m_server, isbn);
    const CollectionWindow window = m_program->open(m_program->smallCollection(u"small.books"_s));
    const EditorWindow editor = m_program->addBook(window);
    QVERIFY(typeISBN(editor, isbn));
    auto& tabs = editor.find<QTabWidget>(u"m_idTab"_s);
    samples::moveMouse(samples::onScreen(*tabs.tabBar(), tabs.tabBar()->tabRect(1).center()));
    QVERIFY(samples::pressMouse());
    QTRY_COMPARE(tabs.currentIndex(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_server->connectionCount(), 0); // the button is still down
    QVERIFY(samples::releaseMouse());
    QTRY_COMPARE(line(editor, u"m_idTitle"_s).text(), u"The Grapes of Wrath"_s);
}

void LookupStoriesTest::aSecondEscapeKeepsTheEditor()
{
    m_server->serve(viewTarget(isbn), {{}, 200, {}, Manner::Silence});
    const CollectionWindow window = m_program->open(m_program->smallCollection(u"small.books"_s));
    const EditorWindow editor = m_program->addBook(window);
    QVERIFY(typeISBN(editor, isbn));
    auto& indicator = editor.find<QProgressBar>(u"m_idProgressIndicator"_s);
    std::optional<KeyPresses> keys;
    samples::InputStory story;
    story.once(
        "leave", [] { typeKey(u"Tab"_s); },
        [this, &indicator] { return indicator.isVisible() && !m_server->requests().isEmpty(); });
    story.once(
        "escape", [] { typeKey(u"Escape"_s); }, [&indicator] { return !indicator.isVisible(); });
    story.once(
        "escape again",
        [&keys] {
            keys.emplace();
            typeKey(u"Escape"_s);
        },
        [&keys] { return keys->count > 0; });
    QCOMPARE(story.run(), QByteArray());
    QVERIFY(editor.window().isVisible());
}

QTEST_MAIN(LookupStoriesTest)
#include "LookupStoriesTest.moc"
