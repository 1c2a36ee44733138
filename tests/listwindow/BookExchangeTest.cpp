// The commands that write books to XML and CSV files and read those of an XML file.

#include "listwindow/BookExchange.h"

#include "listwindow/engine/CsvExport.h"
#include "listwindow/engine/XmlExport.h"
#include "listwindow/ExportCSVOptionsController.h"
#include "listwindow/ExportOptionsController.h"
#include "listwindow/ToolbarConfiguration.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/Waiting.h"
#include "tests/support/ExchangeDesk.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeFilePanels.h"

#include <QDir>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;
using namespace tomely;

Q_DECLARE_METATYPE(std::function<void(ExchangeDesk&)>)

class BookExchangeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void asksNothingWhenAllBooksAreDisplayed();
    void asksWhenSomeBooksAreNotDisplayed_data();
    void asksWhenSomeBooksAreNotDisplayed();
    void writesTheXMLThatWasChosen_data();
    void writesTheXMLThatWasChosen();
    void writesNothingWhenTheSheetIsLeft_data();
    void writesNothingWhenTheSheetIsLeft();
    void writesNothingWhenThePanelIsLeft();
    void suggestsAFileBesideTheCollection();
    void suggestsANameForACollectionWithoutAFile();
    void writesTheBooksThatThereAreByThen();
    void asksForCSVInAnyCase();
    void writesTheCSVThatWasPreviewed();
    void remembersTheChoices();
    void remembersNothingWhenTheSheetIsLeft();
    void saysNothingOfAFileThatCannotBeWritten_data();
    void saysNothingOfAFileThatCannotBeWritten();
    void addsTheBooksOfAFile();
    void addsTheBooksOfTheFirstFile();
    void saysNothingOfAFileThatCannotBeRead_data();
    void saysNothingOfAFileThatCannotBeRead();
    void waitsForTheEndOfAWait();
    void survivesTheEndOfItsCollection();

private:
    template <class Widget>
    Widget* find(const QString& name) const
    {
        return m_window->findChild<Widget*>(name);
    }

    template <class Sheet>
    Sheet* sheet() const
    {
        return m_window->findChild<Sheet*>();
    }

    QString path(const QString& name) const { return m_folder->filePath(name); }

    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    QByteArray xmlOf(const std::vector<BookEntry*>& books) const;

    void pick(const QString& path) { m_panels->savePanels.takeLast().picked(path); }

    void clickOK() const { find<QPushButton>(u"m_OKButton"_s)->click(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    FakeAlerts m_alerts;
    std::unique_ptr<FakeFilePanels> m_panels;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<ToolbarConfiguration> m_toolbar;
    std::optional<ExchangeDesk> m_desk;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<BookExchange> m_exchange;
};

void BookExchangeTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_panels = std::make_unique<FakeFilePanels>();
    m_defaults = std::make_unique<UserDefaults>(path(u"preferences/Tomely.ini"_s));
    m_toolbar = std::make_unique<ToolbarConfiguration>(*m_defaults);
    m_desk.emplace();
    m_window = std::make_unique<QMainWindow>();
    m_exchange = std::make_unique<BookExchange>(m_desk->document,
        ListWindowServices{m_alerts, *m_defaults, *m_panels, *m_toolbar, {}, {}}, *m_window,
        m_desk->engine);
    m_window->show();
}

void BookExchangeTest::cleanup()
{
    // Whatever was done, nobody was told of it.
    QVERIFY(m_alerts.modals.isEmpty());
    QVERIFY(m_alerts.sheets.isEmpty());
    m_exchange.reset();
    m_window.reset();
    m_desk.reset();
}

QByteArray BookExchangeTest::xmlOf(const std::vector<BookEntry*>& books) const
{
    const QTemporaryDir folder;
    static_cast<void>(exportXml(folder.filePath(u"expected.xml"_s), books));
    return samples::readFile(folder.filePath(u"expected.xml"_s));
}

// XML

void BookExchangeTest::asksNothingWhenAllBooksAreDisplayed()
{
    m_exchange->exportXML();
    QVERIFY(!sheet<ExportOptionsController>());
    QCOMPARE(m_panels->savePanels.size(), 1);
    QCOMPARE(m_panels->savePanels.first().window, m_window.get());
    QCOMPARE(m_panels->savePanels.first().type.extension, u"xml"_s);
    pick(path(u"out.xml"_s));
    QCOMPARE(samples::readFile(path(u"out.xml"_s)), xmlOf(m_desk->engine.getAllBooks()));
    QVERIFY(!m_desk->document.isDocumentEdited());
}

void BookExchangeTest::asksWhenSomeBooksAreNotDisplayed_data()
{
    QTest::addColumn<std::function<void(ExchangeDesk&)>>("hide");
    QTest::addColumn<QString>("displayed");
    using Hide = std::function<void(ExchangeDesk&)>;
    QTest::newRow("a group") << Hide([](ExchangeDesk& desk) { desk.selectFiction(); })
                             << u"&Displayed books (2)"_s;
    QTest::newRow("a filter") << Hide([](ExchangeDesk& desk) { desk.filterBy(u"scott"_s); })
                              << u"&Displayed books (1)"_s;
    QTest::newRow("both") << Hide([](ExchangeDesk& desk) {
        desk.selectFiction();
        desk.filterBy(u"scott"_s);
    }) << u"&Displayed books (0)"_s;
}

void BookExchangeTest::asksWhenSomeBooksAreNotDisplayed()
{
    QFETCH(const std::function<void(ExchangeDesk&)>, hide);
    QFETCH(const QString, displayed);
    hide(*m_desk);
    m_exchange->exportXML();
    QVERIFY(m_panels->savePanels.isEmpty());
    QVERIFY(sheet<ExportOptionsController>()->isVisible());
    QCOMPARE(find<QRadioButton>(u"m_idFilter1"_s)->text(), displayed);
}

void BookExchangeTest::writesTheXMLThatWasChosen_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<std::size_t>("count");
    QTest::newRow("all books") << 0 << std::size_t(4);
    QTest::newRow("displayed books") << 1 << std::size_t(2);
}

void BookExchangeTest::writesTheXMLThatWasChosen()
{
    QFETCH(const int, tag);
    QFETCH(const std::size_t, count);
    m_desk->selectFiction();
    const std::vector<BookEntry*> expected =
        tag == 0 ? m_desk->engine.getAllBooks() : m_desk->engine.getDisplayedBooks();
    QCOMPARE(expected.size(), count);
    m_exchange->exportXML();
    find<QRadioButton>(u"m_idFilter%1"_s.arg(tag))->click();
    clickOK();
    pick(path(u"out.xml"_s));
    QCOMPARE(samples::readFile(path(u"out.xml"_s)), xmlOf(expected));
}

void BookExchangeTest::writesNothingWhenTheSheetIsLeft_data()
{
    QTest::addColumn<bool>("isCsv");
    QTest::newRow("XML") << false;
    QTest::newRow("CSV") << true;
}

void BookExchangeTest::writesNothingWhenTheSheetIsLeft()
{
    QFETCH(const bool, isCsv);
    m_desk->selectFiction();
    if (isCsv)
        m_exchange->exportCSV();
    else
        m_exchange->exportXML();
    const QPointer<QDialog> sheet = m_window->findChild<QDialog*>();
    QTest::keyClick(sheet, Qt::Key_Escape);
    QTRY_VERIFY(!sheet);
    QVERIFY(m_panels->savePanels.isEmpty());
}

void BookExchangeTest::writesNothingWhenThePanelIsLeft()
{
    m_exchange->exportXML();
    pick({});
    m_exchange->exportCSV();
    clickOK();
    pick({});
    QCOMPARE(files(), QStringList());
}

void BookExchangeTest::suggestsAFileBesideTheCollection()
{
    QVERIFY(!m_desk->document.writeToFile(path(u"My books.v2.books"_s)));
    m_exchange->exportXML();
    QCOMPARE(m_panels->savePanels.last().suggestedPath, path(u"My books.v2.xml"_s));
    m_exchange->exportCSV();
    clickOK();
    QCOMPARE(m_panels->savePanels.last().suggestedPath, path(u"My books.v2.csv"_s));
    // Nobody is led to where nothing can be written.
    m_folder->remove();
    m_exchange->exportXML();
    QCOMPARE(m_panels->savePanels.last().suggestedPath, u"My books.v2.xml"_s);
}

void BookExchangeTest::suggestsANameForACollectionWithoutAFile()
{
    m_desk->document.setUntitledName(u"Untitled 2"_s);
    m_exchange->exportXML();
    QCOMPARE(m_panels->savePanels.last().suggestedPath, u"Untitled 2.xml"_s);
}

void BookExchangeTest::writesTheBooksThatThereAreByThen()
{
    m_desk->selectFiction();
    m_exchange->exportXML();
    find<QRadioButton>(u"m_idFilter1"_s)->click();
    clickOK();
    m_desk->document.deleteBook(u"2"_s); // Emma
    samples::addBook(m_desk->document, u"Persuasion"_s, u"Jane Austen"_s, u"1"_s);
    m_desk->document.refresh();
    pick(path(u"out.xml"_s));
    const QString text = utf16Text(path(u"out.xml"_s));
    QCOMPARE(text.count(u"<Book>"_s), 2);
    QVERIFY(text.contains(u"<Title>Persuasion</Title>"_s));
    QVERIFY(text.contains(u"<Title>Kim</Title>"_s));
}

// CSV

void BookExchangeTest::asksForCSVInAnyCase()
{
    m_exchange->exportCSV();
    QVERIFY(sheet<ExportCSVOptionsController>()->isVisible());
    QVERIFY(m_panels->savePanels.isEmpty());
    clickOK();
    QCOMPARE(m_panels->savePanels.size(), 1);
    QCOMPARE(m_panels->savePanels.first().window, m_window.get());
    QCOMPARE(m_panels->savePanels.first().type.extension, u"csv"_s);
}

void BookExchangeTest::writesTheCSVThatWasPreviewed()
{
    m_desk->selectFiction();
    m_exchange->exportCSV();
    find<QRadioButton>(u"m_idFilter1"_s)->click();
    find<QRadioButton>(u"m_idGroup1"_s)->click();
    const QString preview = find<QPlainTextEdit>(u"m_idPreview"_s)->toPlainText();
    QCOMPARE(preview.count(u'\n'), 2); // both books
    clickOK();
    pick(path(u"out.csv"_s));
    QCOMPARE(utf16Text(path(u"out.csv"_s)), preview + u'\n');
    QVERIFY(!m_desk->document.isDocumentEdited());
}

void BookExchangeTest::remembersTheChoices()
{
    m_exchange->exportCSV();
    find<QRadioButton>(u"m_idGroup2"_s)->click();
    find<QRadioButton>(u"m_idDate3"_s)->click();
    find<QLineEdit>(u"exportGroupDelimeter"_s)->setText(u" / "_s);
    const CsvChoices choices = sheet<ExportCSVOptionsController>()->choices();
    clickOK();
    pick({}); // also when no file is written in the end
    QCOMPARE(CsvChoices::of(*m_defaults), choices);
    QTRY_VERIFY(!sheet<ExportCSVOptionsController>());
    m_exchange->exportCSV();
    QCOMPARE(sheet<ExportCSVOptionsController>()->choices(), choices);
}

void BookExchangeTest::remembersNothingWhenTheSheetIsLeft()
{
    m_exchange->exportCSV();
    find<QRadioButton>(u"m_idDate3"_s)->click();
    find<QPushButton>(u"m_cancelButton"_s)->click();
    QCOMPARE(CsvChoices::of(*m_defaults), CsvChoices());
}

// Failures

void BookExchangeTest::saysNothingOfAFileThatCannotBeWritten_data()
{
    QTest::addColumn<bool>("isCsv");
    QTest::addColumn<QString>("name");
    for (const bool isCsv : {false, true}) {
        const char* const format = isCsv ? "CSV" : "XML";
        QTest::addRow("%s, no such folder", format) << isCsv << u"missing/out"_s;
        QTest::addRow("%s, a folder", format) << isCsv << u"folder"_s;
    }
}

void BookExchangeTest::saysNothingOfAFileThatCannotBeWritten()
{
    QFETCH(const bool, isCsv);
    QFETCH(const QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    if (isCsv) {
        m_exchange->exportCSV();
        clickOK();
    } else {
        m_exchange->exportXML();
    }
    pick(path(name));
    QCOMPARE(files(), QStringList());
    QVERIFY(QDir(path(u"folder"_s)).isEmpty());
    QVERIFY(m_window->isEnabled());
}

// Import

void BookExchangeTest::addsTheBooksOfAFile()
{
    QVERIFY(exportXml(path(u"in.xml"_s), m_desk->engine.getAllBooks()).isOk());
    m_exchange->importXML();
    QCOMPARE(m_panels->openPanels.size(), 1);
    QCOMPARE(m_panels->openPanels.first().window, m_window.get());
    QCOMPARE(m_panels->openPanels.first().type.extension, u"xml"_s);
    QCOMPARE(m_panels->openPanels.first().type.furtherExtensions, QStringList());
    QVERIFY(!m_desk->document.isDocumentEdited());
    m_panels->openPanels.takeLast().picked({path(u"in.xml"_s)});
    QCOMPARE(m_desk->document.getBookListSize(), 8);
    QCOMPARE(m_desk->engine.getDisplayedBooks().size(), std::size_t(8));
    QVERIFY(m_desk->document.isDocumentEdited());
}

void BookExchangeTest::addsTheBooksOfTheFirstFile()
{
    QVERIFY(
        exportXml(path(u"two.xml"_s), std::vector(2, m_desk->engine.getAllBooks().front())).isOk());
    QVERIFY(
        exportXml(path(u"one.xml"_s), std::vector(1, m_desk->engine.getAllBooks().front())).isOk());
    m_exchange->importXML();
    m_panels->openPanels.takeLast().picked({path(u"two.xml"_s), path(u"one.xml"_s)});
    QCOMPARE(m_desk->document.getBookListSize(), 6);
}

void BookExchangeTest::saysNothingOfAFileThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("an empty file") << QByteArray("");
    QTest::newRow("no XML") << QByteArray("Books");
    QTest::newRow("no books") << QByteArray("<BookCollection/>");
}

void BookExchangeTest::saysNothingOfAFileThatCannotBeRead()
{
    QFETCH(const QByteArray, bytes);
    if (!bytes.isNull())
        QVERIFY(samples::writeFile(path(u"in.xml"_s), bytes));
    m_exchange->importXML();
    m_panels->openPanels.takeLast().picked({path(u"in.xml"_s)});
    QCOMPARE(m_desk->document.getBookListSize(), 4);
    QVERIFY(m_desk->document.isDocumentEdited());
    QVERIFY(m_desk->list->calls.contains(u"refresh"_s));
}

// Time

void BookExchangeTest::waitsForTheEndOfAWait()
{
    QVERIFY(exportXml(path(u"in.xml"_s), m_desk->engine.getAllBooks()).isOk());
    auto waiting = std::make_unique<Waiting>();
    m_exchange->exportXML2(0);
    m_exchange->importXML();
    pick(path(u"out.xml"_s));
    m_panels->openPanels.takeLast().picked({path(u"in.xml"_s)});
    QCoreApplication::processEvents();
    QVERIFY(!files().contains(u"out.xml"_s));
    QCOMPARE(m_desk->document.getBookListSize(), 4);
    waiting.reset();
    QTRY_COMPARE(m_desk->document.getBookListSize(), 8);
    QVERIFY(files().contains(u"out.xml"_s));
}

void BookExchangeTest::survivesTheEndOfItsCollection()
{
    m_desk->selectFiction();
    m_exchange->exportXML2(0);
    m_exchange->exportCSV2({});
    m_exchange->importXML();
    m_exchange->exportXML();
    m_exchange->exportCSV();
    const FakeFilePanels panels = *m_panels;
    auto waiting = std::make_unique<Waiting>();
    panels.savePanels.first().picked(path(u"late.xml"_s));
    m_exchange.reset();
    m_desk.reset();
    m_window.reset(); // with the sheets, last as in the program
    waiting.reset();
    for (const auto& panel : panels.savePanels)
        panel.picked(path(u"out.xml"_s));
    panels.openPanels.first().picked({path(u"in.xml"_s)});
    QCoreApplication::processEvents();
    QCOMPARE(files(), QStringList());
}

QTEST_MAIN(BookExchangeTest)
#include "BookExchangeTest.moc"
