#include "editor/BookEntryWindowController.h"

#include "document/CollectionFile.h"
#include "editor/DraggableImageView.h"
#include "editor/EditableLabel.h"
#include "editor/NotesView.h"
#include "editor/PopUpButton.h"
#include "platform/PreferenceKeys.h"
#include "tests/editor/EditorDesk.h"
#include "tests/support/BookSamples.h"
#include "tests/support/Files.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QLineEdit& line(const BookEntryWindowController& editor, const QString& name)
{
    return EditorDesk::find<QLineEdit>(editor, name);
}

PopUpButton& popUp(const BookEntryWindowController& editor, const QString& name)
{
    return EditorDesk::find<PopUpButton>(editor, name);
}

QPushButton& button(const BookEntryWindowController& editor, const QString& name)
{
    return EditorDesk::find<QPushButton>(editor, name);
}

bool canSave(const BookEntryWindowController& editor)
{
    const bool save = button(editor, u"m_idSaveButton"_s).isEnabled();
    return save && button(editor, u"m_idAddMoreButton"_s).isEnabled() == save;
}

/// The only book of the document that has that title.
const BookEntry* bookCalled(const BookListDocument& document, const QString& title)
{
    for (const BookEntry* const book : document.allValues()) {
        if (book->getTitle() == title)
            return book;
    }
    return nullptr;
}

} // namespace

// What an editor writes, when, and what it holds until then.
class EditorSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void savesOnlyWithATitle_data();
    void savesOnlyWithATitle();
    void opensABookWithoutATitleReadyToSave();
    void addsANewBook();
    void writesBackIntoTheSameRecord();
    void tellsTheDocumentInOrder();
    void addsABookThatIsGoneAsANewOne();
    void staysWhenTheCollectionTakesNoBook();
    void takesOverANameThatIsBeingTyped_data();
    void takesOverANameThatIsBeingTyped();
    void keepsTheGroupsThatItOpenedWith();
    void savesAndAddsMoreInTheSamePlace();
    void writesNothingOnCancel_data();
    void writesNothingOnCancel();
    void savesByKeys_data();
    void savesByKeys();
    void holdsUnsavedWorkOnlyAfterAChange_data();
    void holdsUnsavedWorkOnlyAfterAChange();
    void presetsAreNoUnsavedWork();
    void keepsItsWorkWhenItIsAsked();
    void offersNoSaveWithoutATitle();
};

void EditorSavingTest::savesOnlyWithATitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("saves");
    QTest::newRow("nothing") << u""_s << false;
    QTest::newRow("spaces") << u"   "_s << false;
    QTest::newRow("every white space") << u" \t\r\n "_s << false;
    QTest::newRow("a letter") << u" x "_s << true;
    QTest::newRow("a no-break space") << u"\u00A0"_s << true; // not one of the four
}

void EditorSavingTest::savesOnlyWithATitle()
{
    QFETCH(const QString, title);
    QFETCH(const bool, saves);
    EditorDesk desk;
    BookEntryWindowController& editor = desk.openNew();
    line(editor, u"m_idTitle"_s).setText(u"before"_s);
    QVERIFY(canSave(editor));
    line(editor, u"m_idTitle"_s).setText(title);
    QCOMPARE(canSave(editor), saves);
    editor.saveEntry(nullptr);
    QCOMPARE(desk.document.getBookListSize(), saves ? 1 : 0);
    QCOMPARE(desk.document.isDocumentEdited(), saves);
    QCOMPARE(editor.window()->isVisible(), !saves);
}

void EditorSavingTest::opensABookWithoutATitleReadyToSave()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u""_s));
    QVERIFY(canSave(editor));
    QTest::keyClicks(&line(editor, u"m_idLentTo"_s), u"x"_s); // any text is a reason to look again
    QVERIFY(!canSave(editor));
}

void EditorSavingTest::addsANewBook()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    line(editor, u"m_idTitle"_s).setText(u"  Emma  "_s);
    line(editor, u"m_idPricePaid"_s).setText(u"12.5 pounds"_s);
    line(editor, u"m_idEstValue"_s).setText(u"much"_s);
    line(editor, u"m_idPages"_s).setText(u"474 pp"_s);
    line(editor, u"m_idISBN"_s).setText(u"978-0-14-303943-3"_s);
    line(editor, u"m_idYearLent"_s).setText(u"last year"_s);
    popUp(editor, u"m_idRating"_s).selectTag(3);
    popUp(editor, u"m_idType"_s).selectTag(4);
    QTest::mouseClick(&button(editor, u"m_idSaveButton"_s), Qt::LeftButton);
    QCOMPARE(desk.document.getBookListSize(), 1);
    const BookEntry& book = *desk.document.allValues().front();
    QCOMPARE(book.getKey(), u"1"_s);
    QCOMPARE(book.getTitle(), u"Emma"_s);
    QCOMPARE(book.getPricePaid(), 12.5);
    QCOMPARE(book.getEstValue(), 0.0);
    QCOMPARE(book.getPages(), 474);
    QCOMPARE(book.getISBN(), u"978-0-14-303943-3"_s); // as it was typed
    QCOMPARE(book.getYearLent(), u"last year"_s);
    QCOMPARE(book.getRating(), 3);
    QCOMPARE(book.getType(), 4);
    QVERIFY(!book.hasImages());
    QVERIFY(desk.document.isDocumentEdited());
}

void EditorSavingTest::writesBackIntoTheSameRecord()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    const BookEntryWindowController& editor = desk.open(book);
    line(editor, u"m_idTitle"_s).setText(u"Emma, again"_s);
    QTest::mouseClick(&button(editor, u"m_idSaveButton"_s), Qt::LeftButton);
    QCOMPARE(book.getTitle(), u"Emma, again"_s);
    QCOMPARE(desk.document.getBookListSize(), 1);
}

void EditorSavingTest::tellsTheDocumentInOrder()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    line(editor, u"m_idTitle"_s).setText(u"Emma"_s);
    desk.list->calls.clear();
    QStringList states;
    desk.list->onCall = [&](const QString& call) {
        states.append(u"%1 with %2 books, edited %3"_s.arg(call)
                          .arg(desk.document.getBookListSize())
                          .arg(desk.document.isDocumentEdited()));
    };
    QTest::mouseClick(&button(editor, u"m_idSaveButton"_s), Qt::LeftButton);
    QCOMPARE(states,
        QStringList(
            {u"setBooksChanged with 1 books, edited 0"_s, u"refresh with 1 books, edited 1"_s}));
}

void EditorSavingTest::addsABookThatIsGoneAsANewOne()
{
    EditorDesk desk;
    const BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    BookEntryWindowController& editor = desk.open(book);
    desk.document.deleteBook(u"1"_s);
    QCOMPARE(desk.document.getBookListSize(), 0);
    editor.saveEntry(nullptr);
    QCOMPARE(desk.document.allKeys(), QStringList{u"2"_s});
    QCOMPARE(desk.document.allValues().front()->getTitle(), u"Emma"_s);
}

void EditorSavingTest::staysWhenTheCollectionTakesNoBook()
{
    EditorDesk desk;
    samples::addBook(desk.document, u"Emma"_s);
    CollectionContents contents = CollectionContents::makeNew();
    auto last = samples::makeBook(u"The last"_s);
    last->setKey(std::numeric_limits<qint32>::max());
    const QString key = last->getKey();
    contents.books.insert_or_assign(key, std::move(last));
    contents.lastBookIdn = std::numeric_limits<qint32>::max();
    const QString file = desk.path(u"full.books"_s);
    QVERIFY(samples::writeFile(file, writeCollection(contents)));
    QVERIFY(!desk.document.readFromFile(file));
    BookEntryWindowController& editor = desk.openNew();
    line(editor, u"m_idTitle"_s).setText(u"One more"_s);
    QTest::mouseClick(&button(editor, u"m_idSaveButton"_s), Qt::LeftButton);
    QVERIFY(editor.window()->isVisible());
    QVERIFY(!editor.keepWork());
    editor.addMore();
    QVERIFY(editor.window()->isVisible());
    QVERIFY(!desk.list->calls.contains(u"addNewBook"_s));
    QCOMPARE(line(editor, u"m_idTitle"_s).text(), u"One more"_s);
    QCOMPARE(desk.document.getBookListSize(), 1);
}

void EditorSavingTest::takesOverANameThatIsBeingTyped_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::newRow("Ctrl+S") << QKeySequence(Qt::CTRL | Qt::Key_S);
    QTest::newRow("Ctrl+Return") << QKeySequence(Qt::CTRL | Qt::Key_Return);
    QTest::newRow("Ctrl+Shift+Return") << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return);
}

void EditorSavingTest::takesOverANameThatIsBeingTyped()
{
    QFETCH(const QKeySequence, keys);
    EditorDesk desk;
    desk.defaults.setBool(PreferenceKeys::OpenCustomTab, true);
    const BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u"Emma"_s));
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    auto& label = EditorDesk::find<EditableLabel>(editor, u"m_idCustomField1Label"_s);
    QTest::mouseDClick(&label, Qt::LeftButton);
    label.selectAll();
    QTest::keyClicks(&label, u"Shelf"_s);
    QTest::keyClick(&label, keys[0].key(), keys[0].keyboardModifiers());
    QCOMPARE(desk.document.getCustomFieldLabel(42), u"Shelf"_s);
    QVERIFY(!editor.window()->isVisible());
}

void EditorSavingTest::keepsTheGroupsThatItOpenedWith()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s, {}, u"2"_s);
    BookEntryWindowController& editor = desk.open(book);
    editor.saveEntry(nullptr);
    QVERIFY(book.inGroup(2) && !book.inGroup(1));
}

void EditorSavingTest::savesAndAddsMoreInTheSamePlace()
{
    EditorDesk desk;
    BookEntryWindowController& editor = desk.openNew({60, 70, 940, 640});
    line(editor, u"m_idTitle"_s).setText(u"Emma"_s);
    desk.list->calls.clear();
    QTest::mouseClick(&button(editor, u"m_idAddMoreButton"_s), Qt::LeftButton);
    QCOMPARE(desk.list->calls, QStringList({u"setBooksChanged"_s, u"refresh"_s, u"addNewBook"_s}));
    QCOMPARE(desk.list->addedFrame, QRect(60, 70, 940, 640));
    QVERIFY(!editor.window()->isVisible());
    QVERIFY(bookCalled(desk.document, u"Emma"_s));
}

void EditorSavingTest::writesNothingOnCancel_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << u"button"_s;
    QTest::newRow("Escape") << u"escape"_s;
    QTest::newRow("the window's own button") << u"window"_s;
    QTest::newRow("Ctrl+W") << u"key"_s;
}

void EditorSavingTest::writesNothingOnCancel()
{
    QFETCH(const QString, way);
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    desk.document.clearChangeCount();
    const QPointer<BookEntryWindowController> editor = &desk.open(book);
    QVERIFY(QTest::qWaitForWindowActive(editor->window()));
    line(*editor, u"m_idTitle"_s).setText(u"Other"_s);
    if (way == u"button"_s)
        QTest::mouseClick(&button(*editor, u"m_idCancelButton"_s), Qt::LeftButton);
    else if (way == u"escape"_s)
        QTest::keyClick(editor->window(), Qt::Key_Escape);
    else if (way == u"key"_s)
        QTest::keyClick(editor->window(), Qt::Key_W, Qt::ControlModifier);
    else
        editor->window()->close();
    QTRY_VERIFY(!editor);
    QCOMPARE(book.getTitle(), u"Emma"_s);
    QVERIFY(!desk.document.isDocumentEdited());
    QCOMPARE(desk.document.windowControllers().size(), std::size_t(1));
}

void EditorSavingTest::savesByKeys_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<bool>("addsMore");
    QTest::newRow("Ctrl+Return") << QKeySequence(Qt::CTRL | Qt::Key_Return) << false;
    QTest::newRow("Ctrl+Enter") << QKeySequence(Qt::CTRL | Qt::Key_Enter) << false;
    QTest::newRow("Ctrl+S") << QKeySequence(Qt::CTRL | Qt::Key_S) << false;
    QTest::newRow("Ctrl+Shift+Return")
        << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return) << true;
}

void EditorSavingTest::savesByKeys()
{
    QFETCH(const QKeySequence, keys);
    QFETCH(const bool, addsMore);
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    const auto press = [&](QWidget& widget) {
        const QKeyCombination combination = keys[0];
        QTest::keyClick(&widget, combination.key(), combination.keyboardModifiers());
    };
    auto& notes = EditorDesk::find<NotesView>(editor, u"m_idNotes"_s);
    notes.setFocus();
    press(notes);
    QCOMPARE(desk.document.getBookListSize(), 0); // not without a title
    line(editor, u"m_idTitle"_s).setText(u"Emma"_s);
    press(notes);
    QCOMPARE(desk.document.getBookListSize(), 1);
    QCOMPARE(desk.list->calls.contains(u"addNewBook"_s), addsMore);
    QCOMPARE(desk.document.allValues().front()->getNotes(), QString());
}

void EditorSavingTest::holdsUnsavedWorkOnlyAfterAChange_data()
{
    QTest::addColumn<QString>("control");
    for (const QString& control : {u"m_idTitle"_s, u"m_idAuthor"_s, u"m_idNotes"_s,
             u"m_idMonthLent"_s, u"m_idSigned"_s, u"m_idCustomField7"_s, u"m_idImage2"_s})
        QTest::newRow(qPrintable(control)) << control;
}

void EditorSavingTest::holdsUnsavedWorkOnlyAfterAChange()
{
    QFETCH(const QString, control);
    EditorDesk desk;
    BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u"Emma"_s));
    Q_EMIT editor.activated();
    QVERIFY(!editor.unsavedWork());
    auto* const widget = editor.window()->findChild<QWidget*>(control);
    if (auto* const text = qobject_cast<QLineEdit*>(widget))
        text->setText(u"new"_s);
    else if (auto* const notes = qobject_cast<NotesView*>(widget))
        notes->insertPlainText(u"new"_s);
    else if (auto* const choice = qobject_cast<PopUpButton*>(widget))
        choice->selectTag(3);
    else if (auto* const combo = qobject_cast<QComboBox*>(widget))
        combo->setEditText(u"new"_s);
    else if (auto* const box = qobject_cast<QCheckBox*>(widget))
        box->click();
    else
        static_cast<DraggableImageView*>(widget)->offer(
            Picture::fromImage(QImage(8, 8, QImage::Format_RGB32)));
    QVERIFY(editor.unsavedWork());
    QVERIFY(editor.unsavedWork()->canBeKept);
    QVERIFY(editor.unsavedWork()->question.contains(
        control == u"m_idTitle"_s ? u"'new'"_s : u"'Emma'"_s));
}

void EditorSavingTest::presetsAreNoUnsavedWork()
{
    EditorDesk desk;
    desk.defaults.setBool(PreferenceKeys::SetReadFlag, true);
    desk.defaults.setBool(PreferenceKeys::SetPurchasedToCurrentDate, true);
    QVERIFY(!desk.openNew().unsavedWork());
}

void EditorSavingTest::keepsItsWorkWhenItIsAsked()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    BookEntryWindowController& editor = desk.open(book);
    line(editor, u"m_idLentTo"_s).setText(u"Kim"_s);
    QVERIFY(editor.keepWork());
    QCOMPARE(book.getLentTo(), u"Kim"_s);
    QVERIFY(!editor.unsavedWork());
}

void EditorSavingTest::offersNoSaveWithoutATitle()
{
    EditorDesk desk;
    BookEntryWindowController& editor = desk.openNew();
    line(editor, u"m_idLentTo"_s).setText(u"Kim"_s);
    QVERIFY(editor.unsavedWork());
    QVERIFY(!editor.unsavedWork()->canBeKept);
    QVERIFY(!editor.keepWork());
    QCOMPARE(desk.document.getBookListSize(), 0);
    editor.dropWork();
    QVERIFY(!editor.unsavedWork());
}

QTEST_MAIN(EditorSavingTest)
#include "EditorSavingTest.moc"
