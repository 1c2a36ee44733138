#include "editor/BookEntryWindowController.h"

#include "editor/CompletingComboBox.h"
#include "editor/DraggableImageView.h"
#include "editor/NotesView.h"
#include "editor/PopUpButton.h"
#include "platform/PreferenceKeys.h"
#include "tests/editor/EditorDesk.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

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

} // namespace

// How an editor opens and what its window shows.
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
    void namesDocumentAndBookInItsTitle();
    void neverShowsTheMarkForUnsavedChanges();
    void endsGroupNamingWhenItComesForward();
    void fillsItsCombosWhenItComesForward();
    void sizesItsCombos_data();
    void sizesItsCombos();
    void callsReadingListeningForAnAudioBook();
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

QTEST_MAIN(BookEntryWindowControllerTest)
#include "BookEntryWindowControllerTest.moc"
