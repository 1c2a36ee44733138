#include "tests/app/ProgramOnScreen.h"

#include "editor/DraggableImageView.h"
#include "editor/EditableLabel.h"
#include "editor/EntryForm.h"
#include "model/BookField.h"
#include "tests/support/PlainPictures.h"
#include "tests/support/SmallCollection.h"

#include <QClipboard>
#include <QComboBox>
#include <QMainWindow>
#include <QMessageBox>
#include <QMimeData>
#include <QTableView>
#include <QTabWidget>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray png(const QColor& color, QSize size)
{
    return samples::plainPicture(color, size, "PNG");
}

/// Drops a file on a well as another program does.
void drop(DraggableImageView& well, const QString& path)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint place = well.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&well, &enter);
    QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&well, &dropped);
}

/// Fills every control of an editor with something of its own, as a person does; the book that
/// must come of it.
BookEntry fillEverything(const EditorWindow& editor)
{
    BookEntry expected;
    int number = 1900;
    for (const BookField& field : bookFields()) {
        const QString control = EntryForm::controlName(field);
        QTabWidget& tabs = editor.find<QTabWidget>(u"m_idTab"_s);
        tabs.setCurrentIndex(control.startsWith(u"m_idCustom"_s) ? 1 : 0);
        ++number;
        switch (field.kind) {
        case FieldKind::Text:
            field.setText(expected, u"%1 of the book, %2"_s.arg(control.mid(4)).arg(number));
            editor.type(control, field.text(expected));
            break;
        case FieldKind::Year:
            field.setText(expected, QString::number(number));
            editor.type(control, field.text(expected));
            break;
        case FieldKind::Integer:
            field.setInteger(expected, number);
            editor.type(control, QString::number(number));
            break;
        case FieldKind::Real:
            field.setReal(expected, number + 0.5);
            editor.type(control, QString::number(number + 0.5));
            break;
        case FieldKind::Flag:
            field.setFlag(expected, true);
            editor.click(control);
            break;
        case FieldKind::Month:
            field.setInteger(expected, number % 12 + 1);
            editor.choose(control, QLocale().standaloneMonthName(number % 12 + 1));
            break;
        case FieldKind::Rating:
            field.setInteger(expected, 4);
            editor.choose(control, u"4"_s);
            break;
        case FieldKind::Type:
            field.setInteger(expected, 3);
            editor.choose(control, u"eBook"_s);
            break;
        }
    }
    editor.find<QTabWidget>(u"m_idTab"_s).setCurrentIndex(0);
    return expected;
}

} // namespace

// What a person does with editors of books.
class EditorStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addsABookWithEveryFieldAndAPicture();
    void addsOneBookAfterTheOther();
    void editsABookByDoubleClickAndByReturn();
    void editsTwoBooksAtOnce();
    void editsABookOnlyOnce();
    void deletesABookThatIsBeingEdited();
    void isAskedBeforeTheCollectionCloses_data();
    void isAskedBeforeTheCollectionCloses();
    void closesEditorsWithTheCollection();
    void putsPicturesInByKeyboard();
    void renamesACustomFieldEverywhere();
    void choosesAnAuthorThatIsThere();
};

void EditorStoriesTest::addsABookWithEveryFieldAndAPicture()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    const QString cover = program.path(u"cover.png"_s);
    QVERIFY(samples::writeFile(cover, png(Qt::red, {60, 80})));
    BookEntry expected;
    {
        const CollectionWindow window = program.open(path);
        const EditorWindow editor = program.addBook(window);
        expected = fillEverything(editor);
        drop(editor.find<DraggableImageView>(u"m_idImage3"_s), cover);
        for (const int slot : {1, 2, 4, 5})
            drop(editor.find<DraggableImageView>(u"m_idImage%1"_s.arg(slot)), cover);
        QTest::keyClick(&editor.window(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(window.status(), u"5 of 5 displayed"_s);
        QVERIFY(window.cells(0, 5).contains(expected.getTitle()));
        QVERIFY(window.window().isWindowModified());
        window.choose(u"save"_s);
        QVERIFY(!window.window().isWindowModified());
        window.choose(u"closeWindow"_s);
        QCOMPARE(program.openCount(), std::size_t(0));
    }
    std::array<QByteArray, BookEntry::ImageCount> pictures;
    {
        const CollectionWindow window = program.open(path);
        const BookEntry& book = *window.document().getBookEntry(u"5"_s);
        for (const BookField& field : bookFields()) {
            switch (field.kind) {
            case FieldKind::Text:
            case FieldKind::Year:
                QVERIFY2(field.text(book) == field.text(expected), field.name.data());
                break;
            case FieldKind::Real:
                QVERIFY2(field.real(book) == field.real(expected), field.name.data());
                break;
            case FieldKind::Flag:
                QVERIFY2(field.flag(book) == field.flag(expected), field.name.data());
                break;
            default:
                QVERIFY2(field.integer(book) == field.integer(expected), field.name.data());
            }
        }
        for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
            QCOMPARE(book.getImage(slot).size(), QSize(60, 80));
            pictures.at(static_cast<std::size_t>(slot - 1)) = book.getImageData(slot);
        }
        // Another picture in the third well leaves the others as they are, byte for byte.
        const EditorWindow editor = program.edit(window, expected.getTitle());
        QVERIFY(samples::writeFile(cover, png(Qt::blue, {50, 70})));
        drop(editor.find<DraggableImageView>(u"m_idImage3"_s), cover);
        editor.click(u"m_idSaveButton"_s);
        window.choose(u"save"_s);
        window.choose(u"closeWindow"_s);
    }
    const CollectionWindow window = program.open(path);
    const BookEntry& book = *window.document().getBookEntry(u"5"_s);
    for (const int slot : {1, 2, 4, 5})
        QCOMPARE(book.getImageData(slot), pictures.at(static_cast<std::size_t>(slot - 1)));
    QCOMPARE(book.getImage3().size(), QSize(50, 70));
    expected.setKeyText(book.getKey());
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        expected.setImageData(slot, book.getImageData(slot));
    QVERIFY(equalContents(book, expected));
}

void EditorStoriesTest::addsOneBookAfterTheOther()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow first = program.addBook(window);
    first.window().resize(first.window().size() + QSize(40, 30));
    const QSize size = first.window().size();
    first.type(u"m_idTitle"_s, u"Persuasion"_s);
    QPointer<QMainWindow> firstWindow = &first.window();
    first.click(u"m_idAddMoreButton"_s);
    QTRY_VERIFY(!firstWindow);
    const EditorWindow second = program.activeEditor(window);
    QCOMPARE(second.window().size(), size);
    QCOMPARE(second.find<QLineEdit>(u"m_idTitle"_s).text(), QString());
    second.type(u"m_idTitle"_s, u"Sanditon"_s);
    second.click(u"m_idSaveButton"_s);
    QCOMPARE(window.cells(0, 6),
        QStringList(
            {u"Emma"_s, u"Ivanhoe"_s, u"Kim"_s, u"Persuasion"_s, u"Sanditon"_s, u"Villette"_s}));
    window.document().clearChangeCount();
}

void EditorStoriesTest::editsABookByDoubleClickAndByReturn()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow byMouse = program.edit(window, u"Kim"_s);
    QCOMPARE(byMouse.find<QLineEdit>(u"m_idTitle"_s).text(), u"Kim"_s);
    QTest::keyClick(&byMouse.window(), Qt::Key_Escape);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    window.books().setFocus();
    QTest::keyClick(&window.books(), Qt::Key_Down);
    QTest::keyClick(&window.books(), Qt::Key_Return);
    const EditorWindow byKey = program.activeEditor(window);
    QCOMPARE(byKey.window().windowTitle(), u"small - Villette[*]"_s);
    byKey.type(u"m_idTitle"_s, u"Agnes Grey"_s);
    QTest::keyClick(&byKey.window(), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(window.cells(0, 4), QStringList({u"Agnes Grey"_s, u"Emma"_s, u"Ivanhoe"_s, u"Kim"_s}));
    window.document().clearChangeCount();
}

void EditorStoriesTest::editsTwoBooksAtOnce()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow emma = program.edit(window, u"Emma"_s);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    const EditorWindow kim = program.edit(window, u"Kim"_s);
    emma.type(u"m_idLentTo"_s, u"Anne"_s);
    kim.type(u"m_idLentTo"_s, u"Bob"_s);
    kim.click(u"m_idSaveButton"_s);
    emma.click(u"m_idSaveButton"_s);
    QCOMPARE(window.document().getBookEntry(u"2"_s)->getLentTo(), u"Anne"_s);
    QCOMPARE(window.document().getBookEntry(u"3"_s)->getLentTo(), u"Bob"_s);
    window.document().clearChangeCount();
}

void EditorStoriesTest::editsABookOnlyOnce()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow first = program.edit(window, u"Emma"_s);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    const EditorWindow second = program.edit(window, u"Emma"_s);
    QCOMPARE(&second.controller(), &first.controller());
    QCOMPARE(window.document().windowControllers().size(), std::size_t(2));
}

void EditorStoriesTest::deletesABookThatIsBeingEdited()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow editor = program.edit(window, u"Emma"_s);
    const QPointer<QMainWindow> editorWindow = &editor.window();
    editor.type(u"m_idLentTo"_s, u"Anne"_s);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    window.books().setFocus();
    QTest::keyClick(&window.books(), Qt::Key_Delete);
    QVERIFY(QTest::qWaitFor([] { return ProgramOnScreen::alert() != nullptr; }));
    QCOMPARE(program.alertText(), u"Are you sure you want to delete 'Emma'?"_s);
    QVERIFY(program.answer(0));
    QTRY_VERIFY(!editorWindow);
    QCOMPARE(window.status(), u"3 of 3 displayed"_s);
    QVERIFY(!window.books().selectionModel()->hasSelection());
    window.document().clearChangeCount();
}

void EditorStoriesTest::isAskedBeforeTheCollectionCloses_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("keeps");
    QTest::newRow("Save") << 0 << true << true;
    QTest::newRow("Don't Save") << 1 << true << false;
    QTest::newRow("Cancel") << 2 << false << false;
}

void EditorStoriesTest::isAskedBeforeTheCollectionCloses()
{
    QFETCH(const int, button);
    QFETCH(const bool, closes);
    QFETCH(const bool, keeps);
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    const CollectionWindow window = program.open(path);
    const EditorWindow editor = program.edit(window, u"Emma"_s);
    editor.type(u"m_idLentTo"_s, u"Anne"_s);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    window.choose(u"closeWindow"_s);
    QVERIFY(QTest::qWaitFor([] { return ProgramOnScreen::alert() != nullptr; }));
    QCOMPARE(program.alert()->parentWidget(), &editor.window());
    QCOMPARE(program.alertText(), u"Do you want to save the changes to the book 'Emma'?"_s);
    QVERIFY(program.answer(button));
    if (keeps) // the collection has the book now and must be saved itself
        QVERIFY(program.answer(0));
    QTRY_COMPARE(program.openCount(), std::size_t(closes ? 0 : 1));
    if (!closes)
        return;
    const CollectionWindow again = program.open(path);
    QCOMPARE(again.document().getBookEntry(u"2"_s)->getLentTo(), keeps ? u"Anne"_s : u""_s);
}

void EditorStoriesTest::closesEditorsWithTheCollection()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const QPointer<QMainWindow> editor = &program.edit(window, u"Emma"_s).window();
    window.window().close();
    QCOMPARE(program.openCount(), std::size_t(0));
    QTRY_VERIFY(!editor);
}

void EditorStoriesTest::putsPicturesInByKeyboard()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow editor = program.edit(window, u"Emma"_s);
    auto& first = editor.find<DraggableImageView>(u"m_idImage1"_s);
    auto& second = editor.find<DraggableImageView>(u"m_idImage2"_s);
    auto* const data = new QMimeData;
    data->setData(u"image/png"_s, png(Qt::green, {90, 30}));
    QGuiApplication::clipboard()->setMimeData(data);
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(first.picture().size(), QSize(90, 30));
    QTest::keyClick(&first, Qt::Key_C, Qt::ControlModifier);
    second.setFocus();
    QTest::keyClick(&second, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(second.picture().size(), QSize(90, 30));
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Delete);
    QVERIFY(!first.picture().isValid());
    QTest::keyClick(&first, Qt::Key_Return, Qt::ControlModifier);
    const BookEntry& book = *window.document().getBookEntry(u"2"_s);
    QVERIFY(book.getImageData(1).isNull());
    QCOMPARE(book.getImage2().size(), QSize(90, 30));
    window.document().clearChangeCount();
}

void EditorStoriesTest::renamesACustomFieldEverywhere()
{
    ProgramOnScreen program;
    const QString path = program.path(u"small.books"_s);
    {
        BookListDocument document;
        samples::addFourBooks(document);
        samples::showColumns(document, {0, 42});
        document.writeToFile(path);
    }
    const CollectionWindow window = program.open(path);
    const EditorWindow kim = program.edit(window, u"Kim"_s);
    window.controller().bringToFront();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    const EditorWindow emma = program.edit(window, u"Emma"_s);
    emma.find<QTabWidget>(u"m_idTab"_s).setCurrentIndex(1);
    auto& label = emma.find<EditableLabel>(u"m_idCustomField1Label"_s);
    QTest::mouseDClick(&label, Qt::LeftButton);
    label.selectAll();
    QTest::keyClicks(&label, u"Signed by"_s);
    QTest::keyClick(&label, Qt::Key_Return);
    QCOMPARE(label.text(), u"Signed by:"_s);
    QCOMPARE(kim.find<EditableLabel>(u"m_idCustomField1Label"_s).text(), u"Signed by:"_s);
    const auto heading = window.books().model()->headerData(window.columnOf(42), Qt::Horizontal);
    QCOMPARE(heading.toString(), u"Signed by"_s);
    QVERIFY(window.window().isWindowModified());
    window.document().clearChangeCount();
}

void EditorStoriesTest::choosesAnAuthorThatIsThere()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow editor = program.addBook(window);
    editor.type(u"m_idTitle"_s, u"Persuasion"_s);
    editor.type(u"m_idAuthor"_s, u"ja"_s);
    QCOMPARE(editor.find<QComboBox>(u"m_idAuthor"_s).currentText(), u"Jane Austen"_s);
    editor.click(u"m_idSaveButton"_s);
    QCOMPARE(window.document().getBookEntry(u"5"_s)->getAuthor(), u"Jane Austen"_s);
    window.document().clearChangeCount();
}

QTEST_MAIN(EditorStoriesTest)
#include "EditorStoriesTest.moc"
