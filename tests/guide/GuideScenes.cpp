#include "tests/guide/GuideScenes.h"

#include "listwindow/engine/ColumnKind.h"
#include "model/BookField.h"
#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "tests/app/ProgramOnScreen.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QTableView>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr QSize previewSize(760, 780);
const QString shownBook = u"2001: A Space Odyssey"_s;

/// The window that has become active and is none of those.
QWidget& nextWindow(const QList<QWidget*>& earlier)
{
    const bool isThere = QTest::qWaitFor([&earlier] {
        QWidget* const active = QApplication::activeWindow();
        return active && !earlier.contains(active);
    });
    if (!isThere)
        qFatal("no window has come up");
    return *QApplication::activeWindow();
}

/// The sheet of a command of a menu.
QWidget& sheetOf(const CollectionWindow& window, const QString& action)
{
    window.choose(action);
    return nextWindow({&window.window()});
}

void selectBook(const CollectionWindow& window, const QString& title)
{
    const int count = window.books().model()->rowCount();
    const auto row = static_cast<int>(window.cells(ColumnKey::Title, count).indexOf(title));
    const QModelIndex cell = window.books().model()->index(row, window.columnOf(ColumnKey::Title));
    QTest::mouseClick(
        window.books().viewport(), Qt::LeftButton, {}, window.books().visualRect(cell).center());
}

void showMainWindow(const TakePicture& take)
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    selectBook(window, shownBook);
    take(u"main-window"_s, window.window());
}

void showStartWindow(const TakePicture& take)
{
    ProgramOnScreen program;
    program.open(program.smallCollection(u"School Library.books"_s));
    program.open(program.smallCollection(u"Cookery Books.books"_s));
    program.open(program.classics());
    program.application.documents().closeAll();
    program.application.startWindow().present();
    take(u"start-window"_s, nextWindow({}));
}

void showSheetsOfTheList(const TakePicture& take)
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    window.clickGroup(u"Science Fiction"_s);
    const std::initializer_list<std::pair<QString, QString>> sheets = {
        {u"columns"_s, u"customizeList"_s},
        {u"toolbar"_s, u"customizeToolbar"_s},
        {u"groups"_s, u"customizeGroups"_s},
        {u"export-xml"_s, u"exportXML"_s},
        {u"export-csv"_s, u"exportCSV"_s},
    };
    for (const auto& [name, action] : sheets) {
        QWidget& sheet = sheetOf(window, action);
        take(name, sheet);
        QTest::keyClick(&sheet, Qt::Key_Escape);
        if (!QTest::qWaitForWindowActive(&window.window()))
            qFatal("%s stays", qPrintable(name));
    }
    window.document().clearChangeCount();
}

/// On any screen as large; the preview of itself takes what the screen has.
void showPreview(const TakePicture& take)
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    QWidget& preview = sheetOf(window, u"printPreview"_s);
    preview.resize(previewSize);
    take(u"print-preview"_s, preview);
    window.document().clearChangeCount();
}

/// What a person may have made of the fields of their own.
void fillOwnFields(BookListDocument& document)
{
    using Id = BookField::Id;
    const std::initializer_list<std::pair<Id, QString>> labels = {
        {Id::CustomField1, u"Series"_s},
        {Id::CustomField2, u"Translator"_s},
        {Id::CustomField3, u"Illustrator"_s},
        {Id::CustomYear1, u"Borrowed"_s},
        {Id::CustomSwitch1, u"First in the series"_s},
        {Id::CustomSwitch2, u"Read aloud"_s},
    };
    for (const auto& [id, label] : labels)
        document.setCustomFieldLabel(label, bookField(id).columnKey);
    for (BookEntry* const book : document.allValues()) {
        if (book->getTitle() != shownBook)
            continue;
        book->setCustomField1(u"Space Odyssey"_s);
        book->setCustomMonth1(3);
        book->setCustomYear1(u"2018"_s);
        book->setCustomSwitch1(true);
    }
}

void showEditor(const TakePicture& take)
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    fillOwnFields(window.document());
    const EditorWindow editor = program.edit(window, shownBook);
    take(u"editor"_s, editor.window());
    QTest::keyClick(&editor.window(), Qt::Key_PageDown, Qt::ControlModifier);
    take(u"editor-custom"_s, editor.window());
    window.document().clearChangeCount();
}

void showLookup(const TakePicture& take)
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    const EditorWindow editor = program.addBook(window);
    QTest::keyClick(&editor.window(), Qt::Key_L, Qt::ControlModifier);
    QWidget& sheet = nextWindow({&window.window(), &editor.window()});
    QTest::keyClicks(QApplication::focusWidget(), u"978-0-451-45799-8"_s);
    take(u"look-up"_s, sheet);
    window.document().clearChangeCount();
}

void showPreferences(const TakePicture& take)
{
    ProgramOnScreen program;
    const QString collection = u"/home/reader/Books/Classics.books"_s;
    program.defaults.setString(PreferenceKeys::DefaultFile, collection);
    program.defaults.setData(PreferenceKeys::BookmarkData, makeBookmark(collection));
    program.defaults.setBool(PreferenceKeys::DisableAutoLookup, false);
    program.defaults.setBool(PreferenceKeys::SetReadFlag, true);
    program.application.preferences().showWindow();
    take(u"preferences"_s, nextWindow({}));
}

} // namespace

void showGuideScenes(const TakePicture& take)
{
    for (const auto show : {showMainWindow, showStartWindow, showSheetsOfTheList, showPreview,
             showEditor, showLookup, showPreferences})
        show(take);
}

} // namespace tomely
