#include "editor/BookEntryWindowController.h"

#include "document/CollectionFile.h"
#include "editor/CompletingComboBox.h"
#include "editor/DraggableImageView.h"
#include "editor/EditableLabel.h"
#include "editor/EntryForm.h"
#include "editor/NotesView.h"
#include "editor/PopUpButton.h"
#include "platform/PreferenceKeys.h"
#include "tests/editor/EditorDesk.h"
#include "tests/support/BookSamples.h"
#include "tests/support/Files.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
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

int currentTab(const BookEntryWindowController& editor)
{
    return EditorDesk::find<QTabWidget>(editor, u"m_idTab"_s).currentIndex();
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

class BookEntryWindowControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beginsANewBookEmpty();
    void beginsAtTheGivenFrame();
    void opensTheTabOfThePreferences_data();
    void opensTheTabOfThePreferences();
    void presetsANewBook_data();
    void presetsANewBook();
    void presetsNoBookThatThereIs();
    void showsTheFieldsOfABook();
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
    void leavesReturnInALineAlone();
    void closesAnOpenListByEscapeAlone_data();
    void closesAnOpenListByEscapeAlone();
    void showsEverythingWithoutScrolling();
    void changesItsTabByKeys();
    void walksThroughTheFieldsInReadingOrder();
    void namesEachFieldForAScreenReader();
    void keepsTheGroupsThatItOpenedWith();
    void savesAndAddsMoreInTheSamePlace();
    void writesNothingOnCancel_data();
    void writesNothingOnCancel();
    void savesByKeys_data();
    void savesByKeys();
    void namesDocumentAndBookInItsTitle();
    void neverShowsTheMarkForUnsavedChanges();
    void endsGroupNamingWhenItComesForward();
    void fillsItsCombosWhenItComesForward();
    void sizesItsCombos_data();
    void sizesItsCombos();
    void callsReadingListeningForAnAudioBook();
    void holdsUnsavedWorkOnlyAfterAChange_data();
    void holdsUnsavedWorkOnlyAfterAChange();
    void presetsAreNoUnsavedWork();
    void keepsItsWorkWhenItIsAsked();
    void offersNoSaveWithoutATitle();
    void namesEveryControlOnce();
    void givesNoTwoControlsTheSameMnemonic();
};

void BookEntryWindowControllerTest::beginsANewBookEmpty()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    for (const QLineEdit* const text : editor.window()->findChildren<QLineEdit*>()) {
        if (!text->objectName().endsWith(u"Label"_s))
            QVERIFY2(text->text().isEmpty(), qPrintable(text->objectName()));
    }
    for (const PopUpButton* const choice : editor.window()->findChildren<PopUpButton*>())
        QVERIFY2(choice->currentIndex() == 0, qPrintable(choice->objectName()));
    for (const QCheckBox* const box : editor.window()->findChildren<QCheckBox*>())
        QVERIFY2(!box->isChecked(), qPrintable(box->objectName()));
    QCOMPARE(EditorDesk::find<NotesView>(editor, u"m_idNotes"_s).notes(), QString());
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        QVERIFY(!EditorDesk::find<DraggableImageView>(editor, u"m_idImage%1"_s.arg(slot))
                     .picture()
                     .isValid());
        QVERIFY(EditorDesk::find<QAbstractButton>(editor, u"m_idImage%1ClearButton"_s.arg(slot))
                    .isHidden());
    }
    QVERIFY(!button(editor, u"m_idSaveButton"_s).isEnabled());
    QVERIFY(!button(editor, u"m_idAddMoreButton"_s).isEnabled());
    QVERIFY(editor.getBookKey().isNull());
    QVERIFY(editor.window()->isVisible());
}

void BookEntryWindowControllerTest::beginsAtTheGivenFrame()
{
    EditorDesk desk;
    QCOMPARE(desk.openNew({40, 50, 900, 600}).window()->geometry(), QRect(40, 50, 900, 600));
    QVERIFY(desk.openNew({40, 50, 0, 600}).window()->width() > 300); // its own size
}

void BookEntryWindowControllerTest::opensTheTabOfThePreferences_data()
{
    QTest::addColumn<bool>("isNew");
    QTest::addColumn<bool>("customTab");
    QTest::addColumn<bool>("focusISBN");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("focus");
    QTest::newRow("new") << true << false << false << 0 << u"m_idTitle"_s;
    QTest::newRow("new, ISBN first") << true << false << true << 0 << u"m_idISBN"_s;
    QTest::newRow("new, custom") << true << true << false << 1 << u"m_idCustomField1"_s;
    QTest::newRow("new, custom and ISBN") << true << true << true << 1 << u"m_idCustomField1"_s;
    QTest::newRow("old, ISBN first") << false << false << true << 0 << u"m_idTitle"_s;
    QTest::newRow("old, custom") << false << true << true << 1 << u"m_idCustomField1"_s;
}

void BookEntryWindowControllerTest::opensTheTabOfThePreferences()
{
    QFETCH(const bool, isNew);
    QFETCH(const bool, customTab);
    QFETCH(const bool, focusISBN);
    QFETCH(const int, tab);
    QFETCH(const QString, focus);
    EditorDesk desk;
    desk.defaults.setBool(PreferenceKeys::OpenCustomTab, customTab);
    desk.defaults.setBool(PreferenceKeys::SetFocusToISBNField, focusISBN);
    const BookEntry& emma = samples::addBook(desk.document, u"Emma"_s);
    const BookEntryWindowController& editor = isNew ? desk.openNew() : desk.open(emma);
    QCOMPARE(currentTab(editor), tab);
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    QTRY_VERIFY(editor.window()->focusWidget());
    QCOMPARE(editor.window()->focusWidget()->objectName(), focus);
}

void BookEntryWindowControllerTest::presetsANewBook_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("date");
    QTest::newRow("first read") << u"SetFirstReadToCurrentDate"_s << u"FirstRead"_s;
    QTest::newRow("last read") << u"SetLastReadToCurrentDate"_s << u"LastRead"_s;
    QTest::newRow("purchased") << u"SetPurchasedToCurrentDate"_s << u"Purchased"_s;
    QTest::newRow("read") << u"SetReadFlag"_s << u""_s;
    QTest::newRow("none") << u"None"_s << u""_s;
}

void BookEntryWindowControllerTest::presetsANewBook()
{
    QFETCH(const QString, key);
    QFETCH(const QString, date);
    EditorDesk desk;
    desk.defaults.setBool(key, true);
    const BookEntryWindowController& editor = desk.openNew();
    const QStringList dates{u"Published"_s, u"EstValue"_s, u"Lent"_s, u"Purchased"_s,
        u"FirstRead"_s, u"LastRead"_s, u"Copyright"_s};
    for (const QString& name : dates) {
        QCOMPARE(popUp(editor, "m_idMonth"_L1 + name).selectedTag(), name == date ? 5 : 0);
        QCOMPARE(line(editor, "m_idYear"_L1 + name).text(), name == date ? u"2026"_s : QString());
    }
    QCOMPARE(
        EditorDesk::find<QCheckBox>(editor, u"m_idRead"_s).isChecked(), key == u"SetReadFlag"_s);
}

void BookEntryWindowControllerTest::presetsNoBookThatThereIs()
{
    EditorDesk desk;
    for (const auto key : {PreferenceKeys::SetFirstReadToCurrentDate, PreferenceKeys::SetReadFlag})
        desk.defaults.setBool(key, true);
    const BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u"Emma"_s));
    QCOMPARE(line(editor, u"m_idYearFirstRead"_s).text(), QString());
    QVERIFY(!EditorDesk::find<QCheckBox>(editor, u"m_idRead"_s).isChecked());
}

void BookEntryWindowControllerTest::showsTheFieldsOfABook()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s, u"Jane Austen"_s);
    book.setType(2);
    book.setRating(4);
    book.setPricePaid(12.5);
    book.setPages(474);
    book.setMonthPublished(12);
    book.setYearPublished(u"1815?"_s);
    book.setOwn(true);
    book.setNotes(u"First line\nsecond"_s);
    const BookEntryWindowController& editor = desk.open(book);
    QCOMPARE(editor.getBookKey(), book.getKey());
    QCOMPARE(line(editor, u"m_idTitle"_s).text(), u"Emma"_s);
    QCOMPARE(EditorDesk::find<QComboBox>(editor, u"m_idAuthor"_s).currentText(), u"Jane Austen"_s);
    QCOMPARE(popUp(editor, u"m_idType"_s).currentText(), u"Audio Book"_s);
    QCOMPARE(popUp(editor, u"m_idRating"_s).currentText(), u"4"_s);
    QCOMPARE(line(editor, u"m_idPricePaid"_s).text(), u"12.5"_s);
    QCOMPARE(line(editor, u"m_idEstValue"_s).text(), u"0"_s);
    QCOMPARE(line(editor, u"m_idPages"_s).text(), u"474"_s);
    QCOMPARE(popUp(editor, u"m_idMonthPublished"_s).currentText(), u"December"_s);
    QCOMPARE(line(editor, u"m_idYearPublished"_s).text(), u"1815?"_s);
    QVERIFY(EditorDesk::find<QCheckBox>(editor, u"m_idOwn"_s).isChecked());
    QCOMPARE(EditorDesk::find<NotesView>(editor, u"m_idNotes"_s).notes(), u"First line\nsecond"_s);
    QVERIFY(canSave(editor));
}

void BookEntryWindowControllerTest::savesOnlyWithATitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("saves");
    QTest::newRow("nothing") << u""_s << false;
    QTest::newRow("spaces") << u"   "_s << false;
    QTest::newRow("every white space") << u" \t\r\n "_s << false;
    QTest::newRow("a letter") << u" x "_s << true;
    QTest::newRow("a no-break space") << u"\u00A0"_s << true; // not one of the four
}

void BookEntryWindowControllerTest::savesOnlyWithATitle()
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

void BookEntryWindowControllerTest::opensABookWithoutATitleReadyToSave()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u""_s));
    QVERIFY(canSave(editor));
    QTest::keyClicks(&line(editor, u"m_idLentTo"_s), u"x"_s); // any text is a reason to look again
    QVERIFY(!canSave(editor));
}

void BookEntryWindowControllerTest::addsANewBook()
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

void BookEntryWindowControllerTest::writesBackIntoTheSameRecord()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    const BookEntryWindowController& editor = desk.open(book);
    line(editor, u"m_idTitle"_s).setText(u"Emma, again"_s);
    QTest::mouseClick(&button(editor, u"m_idSaveButton"_s), Qt::LeftButton);
    QCOMPARE(book.getTitle(), u"Emma, again"_s);
    QCOMPARE(desk.document.getBookListSize(), 1);
}

void BookEntryWindowControllerTest::tellsTheDocumentInOrder()
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

void BookEntryWindowControllerTest::addsABookThatIsGoneAsANewOne()
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

void BookEntryWindowControllerTest::staysWhenTheCollectionTakesNoBook()
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

void BookEntryWindowControllerTest::takesOverANameThatIsBeingTyped_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::newRow("Ctrl+S") << QKeySequence(Qt::CTRL | Qt::Key_S);
    QTest::newRow("Ctrl+Return") << QKeySequence(Qt::CTRL | Qt::Key_Return);
    QTest::newRow("Ctrl+Shift+Return") << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return);
}

void BookEntryWindowControllerTest::takesOverANameThatIsBeingTyped()
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

void BookEntryWindowControllerTest::leavesReturnInALineAlone()
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

void BookEntryWindowControllerTest::closesAnOpenListByEscapeAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("pop-up") << u"m_idType"_s;
    QTest::newRow("combo box") << u"m_idAuthor"_s;
}

void BookEntryWindowControllerTest::closesAnOpenListByEscapeAlone()
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

void BookEntryWindowControllerTest::showsEverythingWithoutScrolling()
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

void BookEntryWindowControllerTest::changesItsTabByKeys()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    QTest::keyClick(editor.window()->focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(currentTab(editor), 1);
    QTest::keyClick(editor.window(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(currentTab(editor), 0);
}

void BookEntryWindowControllerTest::walksThroughTheFieldsInReadingOrder()
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

void BookEntryWindowControllerTest::namesEachFieldForAScreenReader()
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

void BookEntryWindowControllerTest::keepsTheGroupsThatItOpenedWith()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s, {}, u"2"_s);
    BookEntryWindowController& editor = desk.open(book);
    editor.saveEntry(nullptr);
    QVERIFY(book.inGroup(2) && !book.inGroup(1));
}

void BookEntryWindowControllerTest::savesAndAddsMoreInTheSamePlace()
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

void BookEntryWindowControllerTest::writesNothingOnCancel_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << u"button"_s;
    QTest::newRow("Escape") << u"escape"_s;
    QTest::newRow("the window's own button") << u"window"_s;
    QTest::newRow("Ctrl+W") << u"key"_s;
}

void BookEntryWindowControllerTest::writesNothingOnCancel()
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

void BookEntryWindowControllerTest::savesByKeys_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<bool>("addsMore");
    QTest::newRow("Ctrl+Return") << QKeySequence(Qt::CTRL | Qt::Key_Return) << false;
    QTest::newRow("Ctrl+Enter") << QKeySequence(Qt::CTRL | Qt::Key_Enter) << false;
    QTest::newRow("Ctrl+S") << QKeySequence(Qt::CTRL | Qt::Key_S) << false;
    QTest::newRow("Ctrl+Shift+Return")
        << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return) << true;
}

void BookEntryWindowControllerTest::savesByKeys()
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

void BookEntryWindowControllerTest::namesDocumentAndBookInItsTitle()
{
    EditorDesk desk;
    desk.document.setUntitledName(u"Books"_s);
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    const BookEntryWindowController& editor = desk.open(book);
    QCOMPARE(editor.window()->windowTitle(), u"Books - Emma[*]"_s);
    QCOMPARE(desk.openNew().window()->windowTitle(), u"Books - New Entry[*]"_s);
    desk.document.setUntitledName(u"Others"_s);
    QCOMPARE(editor.window()->windowTitle(), u"Others - Emma[*]"_s);
    desk.document.deleteBook(book.getKey());
    desk.document.setUntitledName(u"Books"_s);
    QCOMPARE(editor.window()->windowTitle(), u"Books - New Entry[*]"_s);
}

void BookEntryWindowControllerTest::neverShowsTheMarkForUnsavedChanges()
{
    EditorDesk desk;
    desk.document.changeDone();
    const BookEntryWindowController& editor = desk.openNew();
    QVERIFY(!editor.window()->isWindowModified());
    desk.document.clearChangeCount();
    desk.document.changeDone();
    QVERIFY(!editor.window()->isWindowModified());
}

void BookEntryWindowControllerTest::endsGroupNamingWhenItComesForward()
{
    EditorDesk desk;
    BookEntryWindowController& editor = desk.openNew();
    QVERIFY(QTest::qWaitForWindowActive(editor.window()));
    desk.list->calls.clear();
    Q_EMIT editor.activated();
    QCOMPARE(desk.list->calls, QStringList{u"endGroupNameEditting"_s});
}

void BookEntryWindowControllerTest::fillsItsCombosWhenItComesForward()
{
    EditorDesk desk;
    BookEntryWindowController& editor = desk.openNew();
    auto& author = EditorDesk::find<CompletingComboBox>(editor, u"m_idAuthor"_s);
    author.setEditText(u"Someone"_s);
    desk.document.setAuthors({u"Carver"_s, u"Abcarian"_s});
    desk.document.setPricePaidLocations({u"Market"_s});
    desk.document.setPublishers({u"Penguin"_s, u"Viking"_s});
    desk.document.setLocations({u"Attic"_s});
    Q_EMIT editor.activated();
    QCOMPARE(author.values(), QStringList({u"Abcarian"_s, u"Carver"_s}));
    QCOMPARE(author.currentText(), u"Someone"_s);
    const auto valuesOf = [&](const QString& name) {
        return EditorDesk::find<CompletingComboBox>(editor, name).values();
    };
    QCOMPARE(valuesOf(u"m_idPricePaidFrom"_s), QStringList{u"Market"_s});
    QCOMPARE(valuesOf(u"m_idPublisher"_s), QStringList({u"Penguin"_s, u"Viking"_s}));
    QCOMPARE(valuesOf(u"m_idLocation"_s), QStringList{u"Attic"_s});
}

void BookEntryWindowControllerTest::sizesItsCombos_data()
{
    QTest::addColumn<int>("values");
    QTest::addColumn<int>("rows");
    QTest::newRow("none") << 0 << 3;
    QTest::newRow("3") << 3 << 3;
    QTest::newRow("4") << 4 << 4;
    QTest::newRow("15") << 15 << 15;
    QTest::newRow("20") << 20 << 15;
}

void BookEntryWindowControllerTest::sizesItsCombos()
{
    QFETCH(const int, values);
    QFETCH(const int, rows);
    EditorDesk desk;
    QStringList authors;
    for (int index = 0; index < values; ++index)
        authors.append(QString::number(index));
    desk.document.setAuthors(authors);
    const BookEntryWindowController& editor = desk.openNew();
    QCOMPARE(EditorDesk::find<QComboBox>(editor, u"m_idAuthor"_s).maxVisibleItems(), rows);
    QCOMPARE(EditorDesk::find<QComboBox>(editor, u"m_idLocation"_s).maxVisibleItems(), 3);
}

void BookEntryWindowControllerTest::callsReadingListeningForAnAudioBook()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    book.setType(2);
    const BookEntryWindowController& editor = desk.open(book);
    const auto& read = EditorDesk::find<QCheckBox>(editor, u"m_idRead"_s);
    QCOMPARE(read.text(), u"Listened To"_s);
    for (const qint32 type : {0, 1, 3, 4}) {
        popUp(editor, u"m_idType"_s).selectTag(type);
        QCOMPARE(read.text(), u"Read"_s);
    }
    popUp(editor, u"m_idType"_s).selectTag(2);
    QCOMPARE(read.text(), u"Listened To"_s);
    QCOMPARE(EditorDesk::find<QCheckBox>(desk.openNew(), u"m_idRead"_s).text(), u"Read"_s);
}

void BookEntryWindowControllerTest::holdsUnsavedWorkOnlyAfterAChange_data()
{
    QTest::addColumn<QString>("control");
    for (const QString& control : {u"m_idTitle"_s, u"m_idAuthor"_s, u"m_idNotes"_s,
             u"m_idMonthLent"_s, u"m_idSigned"_s, u"m_idCustomField7"_s, u"m_idImage2"_s})
        QTest::newRow(qPrintable(control)) << control;
}

void BookEntryWindowControllerTest::holdsUnsavedWorkOnlyAfterAChange()
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

void BookEntryWindowControllerTest::presetsAreNoUnsavedWork()
{
    EditorDesk desk;
    desk.defaults.setBool(PreferenceKeys::SetReadFlag, true);
    desk.defaults.setBool(PreferenceKeys::SetPurchasedToCurrentDate, true);
    QVERIFY(!desk.openNew().unsavedWork());
}

void BookEntryWindowControllerTest::keepsItsWorkWhenItIsAsked()
{
    EditorDesk desk;
    BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
    BookEntryWindowController& editor = desk.open(book);
    line(editor, u"m_idLentTo"_s).setText(u"Kim"_s);
    QVERIFY(editor.keepWork());
    QCOMPARE(book.getLentTo(), u"Kim"_s);
    QVERIFY(!editor.unsavedWork());
}

void BookEntryWindowControllerTest::offersNoSaveWithoutATitle()
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

void BookEntryWindowControllerTest::namesEveryControlOnce()
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

void BookEntryWindowControllerTest::givesNoTwoControlsTheSameMnemonic()
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

QTEST_MAIN(BookEntryWindowControllerTest)
#include "BookEntryWindowControllerTest.moc"
