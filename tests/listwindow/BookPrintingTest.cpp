#include "listwindow/BookPrinting.h"

#include "listwindow/BookTableModel.h"
#include "listwindow/PrintPreview.h"
#include "model/KeyText.h"
#include "platform/widgets/Sheets.h"
#include "platform/widgets/Waiting.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/Files.h"
#include "tests/support/SmallCollection.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPrintDialog>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList linesOf(const QString& pdf)
{
    QStringList lines;
    for (const QString& line : outputOf(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}).split(u'\n'))
        lines.append(line.simplified());
    return lines;
}

} // namespace

class BookPrintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensTheDialogAsASheet();
    void suggestsAFileBesideTheCollection();
    void printsTheDisplayedBooks();
    void keepsItsSettings();
    void printsTheChosenPages();
    void leavesTheOldFileWhenTheChosenPagesAreGone();
    void printsAfterAWait();
    void saysWhyAFileCouldNotBeWritten();
    void leavesTheOldFileWhenItIsCancelled();
    void canEndWhileItsSheetsAreOpen();
    void previewsThePages();
    void previewsTheListAsItChanges();
    void turnsThePaper();
    void printsFromThePreview();

private:
    void addBooks(int count);

    QPrintDialog* dialog() const { return m_window->findChild<QPrintDialog*>(); }

    PrintPreview* preview() const { return m_window->findChild<PrintPreview*>(); }

    template <class Control>
    static Control& find(const QWidget* sheet, const QString& name)
    {
        auto* const control = sheet->findChild<Control*>(name);
        if (!control)
            qFatal("there is no %s", qPrintable(name));
        return *control;
    }

    /// Prints into a file that is not there yet.
    void printTo(const QString& path) const
    {
        chooseFile(path);
        dialog()->accept();
    }

    /// Opens the dialog and chooses a file in it, and none of the printers that there may be.
    void chooseFile(const QString& path) const
    {
        m_printing->printDocument();
        auto& printers = find<QComboBox>(dialog(), u"printers"_s);
        printers.setCurrentIndex(printers.count() - 1);
        QCOMPARE(dialog()->printer()->outputFormat(), QPrinter::PdfFormat);
        find<QLineEdit>(dialog(), u"filename"_s).setText(path);
    }

    QTemporaryDir m_folder;
    FakeAlerts m_alerts;
    std::unique_ptr<BookListDocument> m_document;
    std::vector<BookEntry*> m_books;
    std::unique_ptr<BookTableModel> m_model;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<BookPrinting> m_printing;
};

void BookPrintingTest::init()
{
    m_alerts.sheets.clear();
    m_document = std::make_unique<BookListDocument>();
    m_document->setUntitledName(u"My Books"_s);
    samples::addFourBooks(*m_document);
    m_books = m_document->allValues();
    m_model = std::make_unique<BookTableModel>(m_books, m_document->getListColumns());
    m_window = std::make_unique<QMainWindow>();
    auto* const table = new QTableView;
    table->setModel(m_model.get());
    for (int section = 0; section < table->horizontalHeader()->count(); ++section)
        table->setColumnHidden(section, m_model->keyOfColumn(section) != 0);
    table->setColumnWidth(m_model->columnOfKey(0), 200);
    m_window->setCentralWidget(table);
    m_window->show();
    m_printing = std::make_unique<BookPrinting>(*m_document, *m_window, *table, m_books, m_alerts);
}

void BookPrintingTest::cleanup()
{
    m_printing.reset();
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void BookPrintingTest::addBooks(int count)
{
    m_model->beginReload();
    for (int number = 0; number < count; ++number)
        samples::addBook(*m_document, u"Book %1"_s.arg(number));
    m_books = m_document->allValues();
    m_model->endReload();
}

void BookPrintingTest::opensTheDialogAsASheet()
{
    m_printing->printDocument();
    QVERIFY(dialog()->isVisible());
    QCOMPARE(dialog()->windowModality(), Qt::WindowModal);
    QVERIFY(hasOpenSheet(*m_window));
    dialog()->reject();
    QVERIFY(!hasOpenSheet(*m_window));
    QTRY_VERIFY(!dialog());
}

void BookPrintingTest::suggestsAFileBesideTheCollection()
{
    QVERIFY(!m_document->writeToFile(m_folder.filePath(u"My Vol. 2.books"_s)));
    m_printing->printDocument();
    QCOMPARE(find<QLineEdit>(dialog(), u"filename"_s).text(),
        m_folder.filePath(m_document->displayName() + u".pdf"_s));
}

void BookPrintingTest::printsTheDisplayedBooks()
{
    const QString path = m_folder.filePath(u"books.pdf"_s);
    m_model->beginReload();
    m_books.pop_back(); // a filter keeps one away
    m_model->endReload();
    printTo(path);
    QTRY_VERIFY(QFile::exists(path));
    const QStringList lines = linesOf(path);
    QCOMPARE(lines.at(0), u"# Title"_s);
    QVERIFY(QRegularExpression(u"^-+ -+$"_s).match(lines.at(1)).hasMatch());
    QCOMPARE(lines.mid(2, 3), QStringList({u"1 Villette"_s, u"2 Emma"_s, u"3 Kim"_s}));
    QCOMPARE(lines.mid(5).join(QString()).trimmed(), QString());
    const QString facts = outputOf(u"pdfinfo"_s, {path});
    QVERIFY(facts.contains(
        QRegularExpression(u"Title: +"_s + QRegularExpression::escape(m_document->displayName()))));
    QVERIFY(facts.contains(QRegularExpression(u"Pages: +1\n"_s)));
    QVERIFY(m_alerts.sheets.isEmpty());
    // The first word stands where the margins meet.
    const QString boxes = outputOf(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
    const auto first = QRegularExpression(u"xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\""_s).match(boxes);
    QVERIFY(std::abs(first.captured(1).toDouble() - 56) < 1);
    QVERIFY(std::abs(first.captured(2).toDouble() - 55) < 3);
}

void BookPrintingTest::keepsItsSettings()
{
    const QString path = m_folder.filePath(u"mine.pdf"_s);
    m_printing->printDocument();
    dialog()->printer()->setPageOrientation(QPageLayout::Landscape);
    dialog()->printer()->setPageMargins({10, 10, 10, 10}, QPageLayout::Point);
    dialog()->reject();
    QTRY_VERIFY(!dialog());
    printTo(path);
    QTRY_VERIFY(QFile::exists(path));
    QTRY_VERIFY(!dialog());
    m_printing->printDocument();
    QCOMPARE(find<QLineEdit>(dialog(), u"filename"_s).text(), path);
    const QPageLayout layout = dialog()->printer()->pageLayout();
    QCOMPARE(layout.orientation(), QPageLayout::Landscape);
    QCOMPARE(layout.margins(QPageLayout::Point), QMarginsF(54, 54, 54, 54));
}

void BookPrintingTest::printsTheChosenPages()
{
    addBooks(300);
    const QString path = m_folder.filePath(u"range.pdf"_s);
    chooseFile(path);
    QVERIFY(dialog()->maxPage() > 3);
    find<QRadioButton>(dialog(), u"printRange"_s).setChecked(true);
    find<QSpinBox>(dialog(), u"from"_s).setValue(2);
    find<QSpinBox>(dialog(), u"to"_s).setValue(3);
    dialog()->accept();
    QTRY_VERIFY(QFile::exists(path));
    QVERIFY(outputOf(u"pdfinfo"_s, {path}).contains(QRegularExpression(u"Pages: +2\n"_s)));
    QVERIFY(!linesOf(path).contains(u"# Title"_s)); // on the first page alone
}

void BookPrintingTest::leavesTheOldFileWhenTheChosenPagesAreGone()
{
    addBooks(300);
    const QString path = m_folder.filePath(u"range.pdf"_s);
    chooseFile(path);
    find<QRadioButton>(dialog(), u"printRange"_s).setChecked(true);
    find<QSpinBox>(dialog(), u"from"_s).setValue(3);
    find<QSpinBox>(dialog(), u"to"_s).setValue(3);
    dialog()->accept();
    samples::writeFile(path, "old");
    m_model->beginReload();
    m_books.resize(1); // an editor's doing
    m_model->endReload();
    QTRY_COMPARE(m_alerts.sheets.size(), 1);
    QVERIFY(m_alerts.sheets.first().alert.informativeText.contains(
        u"The list has none of the chosen pages."_s));
    QCOMPARE(samples::readFile(path), QByteArray("old"));
}

void BookPrintingTest::printsAfterAWait()
{
    const QString path = m_folder.filePath(u"later.pdf"_s);
    {
        const Waiting another;
        printTo(path);
        QTRY_VERIFY(!dialog());
        QCOMPARE(samples::readFile(path), QByteArray());
    }
    QTRY_VERIFY(!samples::readFile(path).isEmpty());
}

void BookPrintingTest::saysWhyAFileCouldNotBeWritten()
{
    const QString folder = m_folder.filePath(u"gone"_s);
    QVERIFY(QDir().mkdir(folder));
    printTo(folder + u"/books.pdf"_s);
    QVERIFY(QDir().rmdir(folder));
    QTRY_COMPARE(m_alerts.sheets.size(), 1);
    QVERIFY(m_alerts.sheets.first().alert.informativeText.contains(u"books.pdf"_s));
    QCOMPARE(m_alerts.sheets.first().window, m_window.get());
}

void BookPrintingTest::leavesTheOldFileWhenItIsCancelled()
{
    addBooks(50000);
    const QString path = m_folder.filePath(u"old.pdf"_s);
    printTo(path);
    samples::writeFile(path, "old");
    // The panel lives in the printing's own loop.
    bool isCancelled = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &isCancelled] {
        if (auto* const panel = m_window->findChild<QProgressDialog*>(u"waitPanel"_s)) {
            isCancelled = true;
            panel->cancel();
        }
    });
    timer.start(1);
    QTRY_VERIFY(isCancelled && !m_window->findChild<QProgressDialog*>(u"waitPanel"_s));
    QCOMPARE(samples::readFile(path), QByteArray("old"));
    QVERIFY(m_alerts.sheets.isEmpty());
}

void BookPrintingTest::canEndWhileItsSheetsAreOpen()
{
    m_printing->printDocument();
    m_printing.reset();
    QVERIFY(!dialog());
    cleanup();
    init();
    m_printing->showPreview();
    m_printing.reset();
    QVERIFY(!preview());
}

void BookPrintingTest::previewsThePages()
{
    addBooks(300);
    m_printing->showPreview();
    QVERIFY(hasOpenSheet(*m_window));
    auto& number = find<QSpinBox>(preview(), u"m_idPageNumber"_s);
    auto& page = find<QWidget>(preview(), u"m_idPage"_s);
    QTRY_COMPARE(QApplication::activeWindow(), preview());
    QVERIFY(number.maximum() > 3);
    QCOMPARE(find<QLabel>(preview(), u"m_idPageCount"_s).text(), u"of %1"_s.arg(number.maximum()));
    const QImage first = page.grab().toImage();
    QCOMPARE(first.pixelColor(1, 1), QColor(Qt::white));
    QVERIFY(!find<QPushButton>(preview(), u"m_idPrevious"_s).isEnabled());
    QTest::keyClick(preview(), Qt::Key_PageDown);
    QCOMPARE(number.value(), 2);
    QVERIFY(page.grab().toImage() != first);
    QTest::keyClick(preview(), Qt::Key_PageUp);
    QVERIFY(page.grab().toImage() == first);
    number.setValue(number.maximum());
    QVERIFY(!find<QPushButton>(preview(), u"m_idNext"_s).isEnabled());
    QTest::keyClick(preview(), Qt::Key_Escape);
    QVERIFY(!hasOpenSheet(*m_window));
    QTRY_VERIFY(!preview());
}

void BookPrintingTest::previewsTheListAsItChanges()
{
    addBooks(300);
    m_printing->showPreview();
    auto& number = find<QSpinBox>(preview(), u"m_idPageNumber"_s);
    number.setValue(number.maximum());
    m_model->beginReload();
    m_books.clear();
    m_model->endReload();
    find<QWidget>(preview(), u"m_idPage"_s).grab(); // painted before it heard of it
    QTRY_COMPARE(number.maximum(), 1);
    addBooks(300);
    QTRY_VERIFY(number.maximum() > 3);
}

void BookPrintingTest::turnsThePaper()
{
    m_printing->showPreview();
    const auto& page = find<QWidget>(preview(), u"m_idPage"_s);
    QVERIFY(page.width() < page.height());
    find<QComboBox>(preview(), u"m_idOrientation"_s).setCurrentIndex(1);
    QVERIFY(page.width() > page.height());
    QTRY_COMPARE(QApplication::activeWindow(), preview());
    QTest::keyClick(preview(), Qt::Key_Escape);
    QTRY_VERIFY(!preview());
    m_printing->showPreview();
    QCOMPARE(find<QComboBox>(preview(), u"m_idOrientation"_s).currentIndex(), 1);
}

void BookPrintingTest::printsFromThePreview()
{
    m_printing->showPreview();
    find<QPushButton>(preview(), u"m_idPrint"_s).click();
    QTRY_VERIFY(!preview());
    QVERIFY(dialog()->isVisible());
}

QTEST_MAIN(BookPrintingTest)
#include "BookPrintingTest.moc"
