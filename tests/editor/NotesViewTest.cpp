#include "editor/NotesView.h"

#include "editor/SpellChecker.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTextBlock>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A view in a window, with a dictionary that knows "hello", "world" and "word".
struct Form {
    Form()
    {
        write(u"en_US.aff"_s, "SET UTF-8\nTRY abcdefghijklmnopqrstuvwxyz\n");
        write(u"en_US.dic"_s, "3\nhello\nworld\nword\n");
        checker =
            std::make_unique<SpellChecker>(QStringList{folder.path()}, QStringList{u"en_US"_s});
        view.resize(400, 200);
        view.show();
        view.setFocus();
    }

    void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// The words that are marked, in the order of the text.
    QStringList marked() const
    {
        QStringList words;
        const QTextDocument& document = *view.document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
                if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline)
                    words.append(block.text().mid(range.start, range.length));
            }
        }
        return words;
    }

    /// Opens the context menu with the keyboard, for the word at a place.
    QMenu* menuAt(int position)
    {
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(position);
        view.setTextCursor(cursor);
        const QPoint place = view.cursorRect().center();
        QContextMenuEvent event(
            QContextMenuEvent::Keyboard, place, view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view.viewport(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    QTemporaryDir folder;
    std::unique_ptr<SpellChecker> checker;
    NotesView view;
};

QStringList textsUpToSeparators(const QMenu& menu, int separators)
{
    QStringList texts;
    for (const QAction* const action : menu.actions()) {
        if (action->isSeparator() && --separators == 0)
            break;
        texts.append(action->isSeparator() ? u"-"_s : action->text());
    }
    return texts;
}

QAction* actionNamed(const QMenu& menu, const QString& text)
{
    for (QAction* const action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class NotesViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void givesBackUneditedNotesExactly_data();
    void givesBackUneditedNotesExactly();
    void givesWhatWasTyped();
    void keepsSpecialCharactersAfterAnEdit();
    void isUneditedAfterUndo();
    void isUneditedAfterTypingItBack();
    void isUneditedAfterOtherNotes();
    void copiesSpecialCharacters();
    void movesOnWithTheTabKey();
    void marksMisspeltWords();
    void marksWordsWhileTyping();
    void marksAtOnceInALongParagraph();
    void marksNothingWithoutAChecker();
    void marksNothingWithoutADictionary();
    void doesNotTakeMarksForEdits();
    void readsTheDictionaryOnlyForWords();
    void offersSuggestions();
    void offersToIgnoreAWord();
    void offersNoSpellingForACorrectWord();
    void offersTheWordUnderTheMouse();
    void unmarksAnIgnoredWordInEveryView();
    void marksALongTextInSlices();
    void outlivesTheEndOfItsChecking();
};

void NotesViewTest::cleanup()
{
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

void NotesViewTest::givesBackUneditedNotesExactly_data()
{
    QTest::addColumn<QString>("notes");
    const auto row = [](const char* name, const QString& notes) {
        QTest::newRow(name) << notes;
    };
    row("null", {});
    row("plain", u"One\nTwo\n"_s);
    row("no-break spaces", u"12\u00A0000\u202F5"_s);
    row("separators", u"one\u2028two\u2029three"_s);
    row("line ends of every kind", u"a\r\nb\rc\n\rd\n"_s);
    row("NUL", u"a"_s + QChar(0) + u"b"_s);
    row("lone surrogates", QChar(0xDC00) + u"a"_s + QChar(0xD800));
    row("what the toolkit uses itself", u"a\uFDD0b\uFDD1c\uFFFCd\uFEFFe"_s);
    row("markup", u"<b>bold</b> &amp;"_s);
    row("long", u"word "_s.repeated(20'000));
}

void NotesViewTest::givesBackUneditedNotesExactly()
{
    QFETCH(const QString, notes);
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(notes);
    QCOMPARE(form.view.notes(), notes);
    QVERIFY(!form.view.isEdited());
    QTRY_VERIFY(!form.view.isChecking());
    QTest::keyClick(&form.view, Qt::Key_Right);
    QCOMPARE(form.view.notes(), notes);
    QVERIFY(!form.view.isEdited());
}

void NotesViewTest::givesWhatWasTyped()
{
    Form form;
    form.view.setNotes(u"world"_s);
    QTest::keyClicks(&form.view, u"hello "_s);
    QTest::keyClick(&form.view, Qt::Key_Return);
    QVERIFY(form.view.isEdited());
    QCOMPARE(form.view.notes(), u"hello \nworld"_s);
}

void NotesViewTest::keepsSpecialCharactersAfterAnEdit()
{
    Form form;
    form.view.setNotes(u"12\u00A0000\u2028two\n\nthree"_s + QChar(0) + QChar(0xD800));
    QTest::keyClicks(&form.view, u"x"_s);
    form.view.insertPlainText(u"\u00A0\u2028"_s);
    QCOMPARE(form.view.notes(),
        u"x\u00A0\u202812\u00A0000\u2028two\n\nthree"_s + QChar(0) + QChar(0xD800));
}

void NotesViewTest::isUneditedAfterUndo()
{
    Form form;
    form.view.setNotes(u"one\r\ntwo"_s);
    QTest::keyClicks(&form.view, u"xy"_s);
    QVERIFY(form.view.isEdited());
    QCOMPARE(form.view.notes(), u"xyone\ntwo"_s);
    QTest::keyClick(&form.view, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!form.view.isEdited());
    QCOMPARE(form.view.notes(), u"one\r\ntwo"_s);
    form.view.redo();
    QVERIFY(form.view.isEdited());
}

void NotesViewTest::isUneditedAfterTypingItBack()
{
    Form form;
    form.view.setNotes(u"one\r\ntwo"_s);
    QTest::keyClicks(&form.view, u"x"_s);
    QTest::keyClick(&form.view, Qt::Key_Backspace);
    QVERIFY(!form.view.isEdited());
    QCOMPARE(form.view.notes(), u"one\r\ntwo"_s);
}

void NotesViewTest::isUneditedAfterOtherNotes()
{
    Form form;
    form.view.setNotes(u"one"_s);
    QTest::keyClicks(&form.view, u"x"_s);
    form.view.setNotes(u"two"_s);
    QVERIFY(!form.view.isEdited());
    QCOMPARE(form.view.notes(), u"two"_s);
    form.view.undo();
    QCOMPARE(form.view.notes(), u"two"_s);
}

void NotesViewTest::copiesSpecialCharacters()
{
    Form form;
    form.view.setNotes(u"12\u00A0000\u2028two\nthree"_s);
    form.view.selectAll();
    form.view.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"12\u00A0000\u2028two\nthree"_s);
    QTest::keyClick(&form.view, Qt::Key_Delete);
    form.view.paste();
    QCOMPARE(form.view.notes(), u"12\u00A0000\u2028two\nthree"_s);
}

void NotesViewTest::movesOnWithTheTabKey()
{
    QWidget window;
    NotesView view(&window);
    QLineEdit other(&window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    QVERIFY(other.hasFocus());
    QCOMPARE(view.notes(), QString());
}

void NotesViewTest::marksMisspeltWords()
{
    Form form;
    form.view.setNotes(u"hello wurld\n\nteh word"_s);
    form.view.setSpellChecker(form.checker.get());
    QTRY_COMPARE(form.marked(), (QStringList{u"wurld"_s, u"teh"_s}));
    QTRY_VERIFY(!form.view.isChecking());
    form.view.setNotes(u"hullo"_s);
    QTRY_COMPARE(form.marked(), QStringList{u"hullo"_s});
    form.view.setSpellChecker(nullptr);
    QCOMPARE(form.marked(), QStringList());
}

void NotesViewTest::marksWordsWhileTyping()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    QTest::keyClicks(&form.view, u"wurld"_s);
    QTRY_COMPARE(form.marked(), QStringList{u"wurld"_s});
    QTRY_VERIFY(!form.view.isChecking());
    // With the dictionary read, at once.
    QTest::keyClicks(&form.view, u" hello teh"_s);
    QCOMPARE(form.marked(), (QStringList{u"wurld"_s, u"teh"_s}));
    for (int count = 0; count < 4; ++count)
        QTest::keyClick(&form.view, Qt::Key_Backspace);
    QCOMPARE(form.marked(), QStringList{u"wurld"_s});
}

void NotesViewTest::marksAtOnceInALongParagraph()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"wurld"_s + u" hello"_s.repeated(2'000));
    QTRY_COMPARE(form.marked(), QStringList{u"wurld"_s});
    QTRY_VERIFY(!form.view.isChecking());
    for (int count = 0; count < 5; ++count) {
        QTest::keyClicks(&form.view, u"x"_s);
        QCOMPARE(form.marked().size(), 1);
        QCoreApplication::processEvents();
    }
}

void NotesViewTest::marksNothingWithoutAChecker()
{
    Form form;
    form.view.setNotes(u"wurld"_s);
    form.view.setSpellChecker(nullptr);
    QVERIFY(!form.view.isChecking());
    QCOMPARE(form.marked(), QStringList());
}

void NotesViewTest::marksNothingWithoutADictionary()
{
    Form form;
    SpellChecker checker({}, {u"en_US"_s});
    form.view.setSpellChecker(&checker);
    form.view.setNotes(u"wurld"_s);
    QTRY_VERIFY(!form.view.isChecking());
    QVERIFY(checker.isLoaded());
    QCOMPARE(form.marked(), QStringList());
    QMenu* const menu = form.menuAt(2);
    QVERIFY(menu);
    QVERIFY(!actionNamed(*menu, u"Ignore Spelling"_s));
}

void NotesViewTest::doesNotTakeMarksForEdits()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"wurld"_s);
    QSignalSpy changes(&form.view, &QPlainTextEdit::textChanged);
    QTRY_COMPARE(form.marked(), QStringList{u"wurld"_s});
    QCOMPARE(changes.count(), 0);
    QVERIFY(!form.view.isEdited());
    QVERIFY(!form.view.document()->isUndoAvailable());
}

void NotesViewTest::readsTheDictionaryOnlyForWords()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    QTRY_VERIFY(!form.view.isChecking());
    QVERIFY(!form.checker->isLoaded());
    form.view.setNotes(u"word"_s);
    QVERIFY(!form.checker->isLoaded());
    QTRY_VERIFY(form.checker->isLoaded());
}

void NotesViewTest::offersSuggestions()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"hello wurld"_s);
    QMenu* const menu = form.menuAt(8);
    QVERIFY(menu);
    const QStringList texts = textsUpToSeparators(*menu, 2);
    QVERIFY(texts.size() <= 7);
    QVERIFY(texts.contains(u"world"_s));
    QCOMPARE(texts.last(2), (QStringList{u"-"_s, u"Ignore Spelling"_s}));
    actionNamed(*menu, u"world"_s)->trigger();
    QCOMPARE(form.view.notes(), u"hello world"_s);
    form.view.undo();
    QCOMPARE(form.view.notes(), u"hello wurld"_s);
}

void NotesViewTest::offersToIgnoreAWord()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"xqzt"_s);
    QMenu* const menu = form.menuAt(0);
    QVERIFY(menu);
    QCOMPARE(textsUpToSeparators(*menu, 2),
        (QStringList{u"No Suggestions"_s, u"-"_s, u"Ignore Spelling"_s}));
    QVERIFY(!actionNamed(*menu, u"No Suggestions"_s)->isEnabled());
    QTRY_COMPARE(form.marked(), QStringList{u"xqzt"_s});
    actionNamed(*menu, u"Ignore Spelling"_s)->trigger();
    QTRY_COMPARE(form.marked(), QStringList());
    QVERIFY(!form.view.isEdited());
}

void NotesViewTest::offersNoSpellingForACorrectWord()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"hello wurld"_s);
    QMenu* const menu = form.menuAt(2);
    QVERIFY(menu);
    QVERIFY(!actionNamed(*menu, u"Ignore Spelling"_s));
    QVERIFY(!menu->isEmpty());
    QVERIFY(!menu->actions().constFirst()->isSeparator());
}

void NotesViewTest::offersTheWordUnderTheMouse()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"hello\nwurld"_s);
    QTextCursor second(form.view.document());
    second.setPosition(8);
    const QPoint place = form.view.cursorRect(second).center();
    QContextMenuEvent event(
        QContextMenuEvent::Mouse, place, form.view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(form.view.viewport(), &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QVERIFY(actionNamed(*menu, u"world"_s));
    actionNamed(*menu, u"world"_s)->trigger();
    QCOMPARE(form.view.notes(), u"hello\nworld"_s);
}

void NotesViewTest::unmarksAnIgnoredWordInEveryView()
{
    Form form;
    Form other;
    form.view.setSpellChecker(form.checker.get());
    other.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"wurld"_s);
    other.view.setNotes(u"teh wurld"_s);
    QTRY_COMPARE(other.marked(), (QStringList{u"teh"_s, u"wurld"_s}));
    form.checker->ignore(u"wurld"_s);
    QTRY_COMPARE(other.marked(), QStringList{u"teh"_s});
    QTRY_COMPARE(form.marked(), QStringList());
    other.view.setSpellChecker(nullptr);
}

void NotesViewTest::marksALongTextInSlices()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    QVERIFY(!form.checker->isCorrect(u"wurld"_s));
    QElapsedTimer timer;
    timer.start();
    // A megabyte, of which one paragraph is too long to be checked.
    form.view.setNotes(u"hello world wurld word\n"_s.repeated(40'000) + u"teh "_s.repeated(10'000));
    const qint64 setting = timer.elapsed();
    QVERIFY(form.view.isChecking());
    qint64 longest = 0;
    while (form.view.isChecking()) {
        timer.restart();
        QCoreApplication::processEvents();
        longest = qMax(longest, timer.elapsed());
    }
    QVERIFY2(longest < 500, qPrintable(QString::number(longest)));
    QVERIFY2(setting < 5000, qPrintable(QString::number(setting)));
    QCOMPARE(form.marked().size(), 40'000);
}

void NotesViewTest::outlivesTheEndOfItsChecking()
{
    Form form;
    form.view.setSpellChecker(form.checker.get());
    form.view.setNotes(u"wurld\n"_s.repeated(5000));
    QTRY_VERIFY(form.checker->isLoaded());
    form.view.setSpellChecker(nullptr);
    form.checker.reset();
    QCoreApplication::processEvents();
    QCOMPARE(form.marked(), QStringList());
}

QTEST_MAIN(NotesViewTest)
#include "NotesViewTest.moc"
