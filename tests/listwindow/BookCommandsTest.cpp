#include "listwindow/BookCommands.h"

#include "document/BookEditorWindow.h"
#include "document/BookListDocument.h"
#include "listwindow/ToolbarConfiguration.h"
#include "model/Picture.h"
#include "platform/UserDefaults.h"
#include "tests/support/BookSamples.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/FakeFilePanels.h"
#include "tests/support/PlainPictures.h"
#include "tests/support/SmallCollection.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

using BookCommand = void (BookCommands::*)();

namespace {

/// An editor that nobody sees.
class FakeEditor : public DocumentWindow, public BookEditorWindow {
public:
    FakeEditor(BookListDocument& document, QString key)
        : m_document(document)
        , m_key(std::move(key))
    {
    }

    void showWindow() override { }

    void bringToFront() override { ++timesInFront; }

    QObject* windowObject() override { return &m_windowObject; }

    QString getBookKey() const override { return m_key; }

    void updateColumnName() override { }

    void closeEditor() override { m_document.removeWindowController(this); }

    int timesInFront = 0;

private:
    BookListDocument& m_document;
    QString m_key;
    QObject m_windowObject;
};

QByteArray jpeg(QSize size)
{
    return samples::plainPicture(Qt::blue, size);
}

} // namespace

class BookCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensAnEditorForANewBook();
    void opensAnEditorForTheSelectedBook();
    void bringsTheOpenEditorForward();
    void editsNothingWithoutASelection();
    void endsGroupNamingFirst_data();
    void endsGroupNamingFirst();
    void namesTheOneBookToDelete();
    void countsTheBooksToDelete();
    void deletesOnlyOnYes_data();
    void deletesOnlyOnYes();
    void deletesWhatWasSelectedWhenItAsked();
    void closesTheEditorsOfDeletedBooks();
    void removesAllPicturesOnYes_data();
    void removesAllPicturesOnYes();
    void scalesAllPicturesOnYes_data();
    void scalesAllPicturesOnYes();
    void canBeLeftBetweenBooks();

private:
    QStringList windowKeys() const;

    void answer(int button) { m_alerts.sheets.takeLast().answered(button); }

    FakeAlerts m_alerts;
    QTemporaryDir m_folder;
    UserDefaults m_defaults{m_folder.filePath(u"Tomely.ini"_s)};
    FakeFilePanels m_panels;
    ToolbarConfiguration m_toolbar{m_defaults};
    QWidget m_window;
    FakeBookListWindow* m_list = nullptr;
    std::unique_ptr<BookListDocument> m_document;
    std::unique_ptr<BookCommands> m_commands;
    QStringList m_selected;
    QList<QRect> m_newFrames;
};

void BookCommandsTest::init()
{
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_list));
    m_document->makeWindowControllers();
    samples::addFourBooks(*m_document); // 1 Villette, 2 Emma, 3 Kim, 4 Ivanhoe
    m_selected.clear();
    m_newFrames.clear();
    m_alerts.sheets.clear();
    m_commands = std::make_unique<BookCommands>(*m_document,
        ListWindowServices{m_alerts, m_defaults, m_panels, m_toolbar,
            [this](BookListDocument& document, QRect frame) {
                m_newFrames.append(frame);
                return std::make_unique<FakeEditor>(document, QString());
            },
            [](BookListDocument& document, BookEntry& book) {
                return std::make_unique<FakeEditor>(document, book.getKey());
            }},
        m_window, [this] { return m_selected; });
}

void BookCommandsTest::cleanup()
{
    m_commands.reset();
    m_document.reset();
}

QStringList BookCommandsTest::windowKeys() const
{
    QStringList keys;
    for (const auto& window : m_document->windowControllers()) {
        if (const auto* const editor = dynamic_cast<FakeEditor*>(window.get()))
            keys.append(editor->getBookKey().isNull() ? u"new"_s : editor->getBookKey());
    }
    return keys;
}

void BookCommandsTest::opensAnEditorForANewBook()
{
    m_commands->clickedAdd();
    m_commands->addNewBook({10, 20, 300, 400});
    QCOMPARE(m_newFrames, QList<QRect>({QRect(), QRect(10, 20, 300, 400)}));
    QCOMPARE(windowKeys(), QStringList({u"new"_s, u"new"_s}));
    for (const auto& window : m_document->windowControllers()) {
        if (const auto* const editor = dynamic_cast<FakeEditor*>(window.get()))
            QCOMPARE(editor->timesInFront, 1);
    }
}

void BookCommandsTest::opensAnEditorForTheSelectedBook()
{
    m_selected = {u"3"_s, u"2"_s};
    m_commands->clickedEdit();
    QCOMPARE(windowKeys(), QStringList{u"3"_s});
}

void BookCommandsTest::bringsTheOpenEditorForward()
{
    m_selected = {u"3"_s};
    m_commands->clickedEdit();
    m_selected = {u"2"_s};
    m_commands->clickedEdit();
    m_commands->clickedAdd();
    m_selected = {u"3"_s};
    m_commands->clickedEdit();
    QCOMPARE(windowKeys(), QStringList({u"3"_s, u"2"_s, u"new"_s}));
    const auto* const editor =
        dynamic_cast<FakeEditor*>(m_commands->lookupExistingController(u"3"_s));
    QVERIFY(editor);
    QCOMPARE(editor->timesInFront, 2);
    QVERIFY(!m_commands->lookupExistingController(u"4"_s));
    QVERIFY(!m_commands->lookupExistingController(QString())); // the new one's is no key
}

void BookCommandsTest::editsNothingWithoutASelection()
{
    m_commands->clickedEdit();
    m_selected = {u"99"_s};
    m_commands->clickedEdit();
    QCOMPARE(windowKeys(), QStringList());
    m_selected.clear();
    m_commands->clickedDelete();
    QVERIFY(m_alerts.sheets.isEmpty());
}

void BookCommandsTest::endsGroupNamingFirst_data()
{
    QTest::addColumn<BookCommand>("command");
    QTest::newRow("add") << &BookCommands::clickedAdd;
    QTest::newRow("edit") << &BookCommands::clickedEdit;
    QTest::newRow("delete") << &BookCommands::clickedDelete;
    QTest::newRow("scale all pictures") << &BookCommands::clickedScaleAllImages;
    QTest::newRow("remove all pictures") << &BookCommands::clickedRemoveAllImages;
}

void BookCommandsTest::endsGroupNamingFirst()
{
    QFETCH(const BookCommand, command);
    m_selected = {u"3"_s};
    (*m_commands.*command)();
    QCOMPARE(m_list->calls.first(), u"endGroupNameEditting"_s);
}

void BookCommandsTest::namesTheOneBookToDelete()
{
    m_selected = {u"2"_s};
    m_commands->clickedDelete();
    QCOMPARE(m_alerts.sheets.size(), 1);
    QCOMPARE(m_alerts.sheets.first().window, &m_window);
    const Alert& alert = m_alerts.sheets.first().alert;
    QCOMPARE(alert.informativeText, u"Are you sure you want to delete 'Emma'?"_s);
    QCOMPARE(alert.buttons, QStringList({u"Yes"_s, u"No"_s}));
    QCOMPARE(alert.defaultButton, 1);
}

void BookCommandsTest::countsTheBooksToDelete()
{
    m_selected = {u"2"_s, u"1"_s, u"4"_s};
    m_commands->clickedDelete();
    QCOMPARE(m_alerts.sheets.first().alert.informativeText,
        u"Are you sure you want to delete 3 books?"_s);
}

void BookCommandsTest::deletesOnlyOnYes_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("Yes") << 0 << QStringList({u"1"_s, u"4"_s});
    QTest::newRow("No") << 1 << QStringList({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
}

void BookCommandsTest::deletesOnlyOnYes()
{
    QFETCH(const int, button);
    QFETCH(const QStringList, left);
    QSignalSpy deleted(m_commands.get(), &BookCommands::booksDeleted);
    m_selected = {u"2"_s, u"3"_s};
    m_commands->clickedDelete();
    answer(button);
    QCOMPARE(m_document->allKeys(), left);
    QCOMPARE(deleted.size(), button == 0 ? 1 : 0);
    QCOMPARE(m_document->isDocumentEdited(), button == 0);
}

void BookCommandsTest::deletesWhatWasSelectedWhenItAsked()
{
    m_selected = {u"2"_s};
    m_commands->clickedDelete();
    m_selected = {u"1"_s};
    answer(0);
    QCOMPARE(m_document->allKeys(), QStringList({u"1"_s, u"3"_s, u"4"_s}));
}

void BookCommandsTest::closesTheEditorsOfDeletedBooks()
{
    for (const QString& key : {u"2"_s, u"3"_s}) {
        m_selected = {key};
        m_commands->clickedEdit();
    }
    m_commands->clickedAdd();
    m_selected = {u"2"_s, u"4"_s};
    m_commands->clickedDelete();
    QCOMPARE(windowKeys(), QStringList({u"2"_s, u"3"_s, u"new"_s}));
    answer(0);
    QCOMPARE(windowKeys(), QStringList({u"3"_s, u"new"_s}));
}

void BookCommandsTest::removesAllPicturesOnYes_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("Yes") << 0;
    QTest::newRow("No") << 1;
}

void BookCommandsTest::removesAllPicturesOnYes()
{
    QFETCH(const int, button);
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        m_document->getBookEntry(u"2")->setImageData(slot, jpeg({300, 400}));
    m_document->getBookEntry(u"4")->setImageData(5, "no picture");
    const quint64 untouched = m_document->getBookEntry(u"1")->changeStamp();
    m_commands->clickedRemoveAllImages();
    QCOMPARE(m_alerts.sheets.first().alert.informativeText, u"Remove images from all books?"_s);
    QCOMPARE(m_alerts.sheets.first().alert.buttons, QStringList({u"Yes"_s, u"No"_s}));
    m_list->calls.clear();
    answer(button);
    QCOMPARE(m_document->getBookEntry(u"2")->hasImages(), button != 0);
    QCOMPARE(m_document->getBookEntry(u"4")->hasImages(), button != 0);
    QCOMPARE(m_document->getBookEntry(u"1")->changeStamp(), untouched);
    // Whatever the answer, the books count as changed.
    QCOMPARE(m_list->calls, QStringList({u"setBooksChanged"_s, u"refresh"_s}));
    QVERIFY(m_document->isDocumentEdited());
}

void BookCommandsTest::scalesAllPicturesOnYes_data()
{
    removesAllPicturesOnYes_data();
}

void BookCommandsTest::scalesAllPicturesOnYes()
{
    QFETCH(const int, button);
    const QByteArray fits = jpeg({100, 140});
    const QByteArray large = jpeg({872, 1252});
    m_document->getBookEntry(u"2")->setImageData(1, large);
    m_document->getBookEntry(u"2")->setImageData(3, fits);
    m_document->getBookEntry(u"4")->setImageData(4, large);
    m_commands->clickedScaleAllImages();
    QCOMPARE(m_alerts.sheets.first().alert.informativeText,
        u"Scale all images to the book entry display size?"_s);
    m_list->calls.clear();
    answer(button);
    const bool isScaled = button == 0;
    QCOMPARE(m_document->getBookEntry(u"2")->getImage1().size(),
        isScaled ? QSize(218, 313) : QSize(872, 1252));
    QCOMPARE(m_document->getBookEntry(u"4")->getImage4().size(),
        isScaled ? QSize(102, 147) : QSize(872, 1252));
    QCOMPARE(m_document->getBookEntry(u"2")->getImageData(3), fits);
    QCOMPARE(m_list->calls, QStringList({u"setBooksChanged"_s, u"refresh"_s}));
    QVERIFY(m_document->isDocumentEdited());
}

void BookCommandsTest::canBeLeftBetweenBooks()
{
    // Enough work that the panel with its Cancel button comes up.
    const QByteArray large = jpeg({3000, 4000});
    for (int index = 0; index < 400; ++index) {
        auto book = samples::makeBook(u"Book %1"_s.arg(index));
        for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
            book->setImageData(slot, large);
        m_document->addBook(std::move(book));
    }
    bool pressed = false;
    QTimer clicker;
    connect(&clicker, &QTimer::timeout, this, [&] {
        QWidget* const panel = QApplication::activeModalWidget();
        auto* const cancel = panel ? panel->findChild<QPushButton*>() : nullptr;
        if (!cancel || pressed)
            return;
        pressed = true;
        cancel->click();
    });
    clicker.start(1);
    m_commands->clickedScaleAllImages();
    answer(0);
    QVERIFY(pressed);
    int scaled = 0;
    for (const BookEntry* const book : m_document->allValues()) {
        if (!book->hasImages())
            continue;
        const bool isFirstScaled = book->getPicture(1).size() == QSize(218, 290);
        const bool isLastScaled = book->getPicture(5).size() != QSize(3000, 4000);
        QCOMPARE(isFirstScaled, isLastScaled); // a book is scaled whole or not at all
        scaled += isFirstScaled ? 1 : 0;
    }
    QVERIFY(scaled < 400);
    QVERIFY(m_document->isDocumentEdited());
}

QTEST_MAIN(BookCommandsTest)
#include "BookCommandsTest.moc"
