#include "listwindow/BookPrinting.h"

#include "document/BookListDocument.h"
#include "listwindow/PrintPages.h"
#include "listwindow/PrintPreview.h"
#include "platform/Alerts.h"
#include "platform/AtomicFile.h"
#include "platform/widgets/AfterWaits.h"
#include "platform/widgets/WaitPanel.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QStandardPaths>
#include <QTableView>

#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr double margin = 54; // points, three quarters of an inch

/// The chosen ones of so many pages, in the order in which they are to come out.
std::vector<qsizetype> chosenPages(const QPrinter& printer, qsizetype pageCount)
{
    const bool isFile = printer.outputFormat() == QPrinter::PdfFormat;
    // A list of pages is what the printer's own system picks from the whole; a file has no such.
    const bool isRange = isFile || printer.printRange() == QPrinter::PageRange;
    const QPageRanges ranges = isRange ? printer.pageRanges() : QPageRanges();
    std::vector<qsizetype> pages;
    for (qsizetype page = 0; page < pageCount; ++page) {
        if (ranges.isEmpty() || ranges.contains(static_cast<int>(page + 1)))
            pages.push_back(page);
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::ranges::reverse(pages);
    return pages;
}

} // namespace

BookPrinting::BookPrinting(BookListDocument& document, QWidget& window, const QTableView& bookTable,
    const std::vector<BookEntry*>& displayedBooks, Alerts& alerts)
    : m_document(document)
    , m_window(window)
    , m_bookTable(bookTable)
    , m_displayedBooks(displayedBooks)
    , m_alerts(alerts)
{
}

BookPrinting::~BookPrinting()
{
    // They hold on to the printer.
    delete m_dialog;
    delete m_preview;
}

void BookPrinting::printDocument()
{
    QPrinter& printer = printInfo();
    if (!m_isFileChosen && printer.outputFormat() == QPrinter::PdfFormat)
        printer.setOutputFileName(suggestedPath());
    m_dialog = new QPrintDialog(&printer, &m_window);
    m_dialog->setObjectName("printDialog"_L1);
    // Where paper comes first, for whoever turns to a file in the dialog.
    if (auto* const file = m_dialog->findChild<QLineEdit*>("filename"_L1); file && !m_isFileChosen)
        file->setText(suggestedPath());
    m_dialog->setMinMax(1, static_cast<int>(makePages(m_displayedBooks).pageCount()));
    connect(m_dialog, &QDialog::finished, m_dialog, &QObject::deleteLater);
    // After the dialog is gone: printing shows a panel of its own.
    connect(
        m_dialog, &QDialog::accepted, this, [this] { afterWaits(*this, [this] { print(); }); },
        Qt::QueuedConnection);
    m_dialog->open();
}

void BookPrinting::showPreview()
{
    m_preview = new PrintPreview(
        printInfo(), [this] { return makePages(m_displayedBooks); }, &m_window);
    connect(m_preview, &PrintPreview::orientationChosen, this,
        [this](QPageLayout::Orientation orientation) {
            m_printer->setPageOrientation(orientation);
            m_preview->refresh();
        });
    connect(m_preview, &PrintPreview::printRequested, this, [this] {
        if (Waiting::isWaiting())
            return;
        m_preview->close();
        printDocument();
    });
    // Editors stay open beside the sheet. Queued: the header, too, has to take in the change.
    const QAbstractItemModel* const books = m_bookTable.model();
    connect(books, &QAbstractItemModel::modelReset, m_preview, &PrintPreview::refresh,
        Qt::QueuedConnection);
    connect(books, &QAbstractItemModel::headerDataChanged, m_preview, &PrintPreview::refresh,
        Qt::QueuedConnection);
    m_preview->open();
}

/// The settings of this document's printouts, with what is the same for all of them.
QPrinter& BookPrinting::printInfo()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setCreator(QCoreApplication::applicationName());
    }
    m_printer->setDocName(m_document.displayName());
    m_printer->setPageMargins({margin, margin, margin, margin}, QPageLayout::Point);
    return *m_printer;
}

/// Of the file that printing into a file makes: beside the collection's own.
QString BookPrinting::suggestedPath() const
{
    const QString path = m_document.filePath();
    const QDir folder(path.isEmpty()
            ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
            : QFileInfo(path).absolutePath());
    const QString name = m_document.displayName().replace(u'/', u'-');
    return folder.filePath(name + ".pdf"_L1);
}

PrintPages BookPrinting::makePages(const std::vector<BookEntry*>& books)
{
    const QPrinter& printer = printInfo();
    return {{printColumns(m_bookTable), books, m_bookTable.font()}, printer.pageLayout(),
        printer.resolution()};
}

void BookPrinting::print()
{
    // What is displayed may change while the panel lets windows repaint.
    const std::vector<BookEntry*> books = m_displayedBooks;
    const PrintPages pages = makePages(books);
    const QString error = printPages(pages);
    if (!error.isEmpty())
        m_alerts.beginSheet(&m_window,
            messageAlert(
                tr("'%1' could not be printed.\n\n%2").arg(m_document.displayName(), error)),
            {});
}

/// What went wrong, for a person; empty when nothing did or the person left it.
QString BookPrinting::printPages(const PrintPages& pages)
{
    const bool isFile = m_printer->outputFormat() == QPrinter::PdfFormat;
    m_isFileChosen = m_isFileChosen || isFile;
    // The paper was turned, or the list became shorter, after the range had been chosen.
    const std::vector<qsizetype> chosen = chosenPages(*m_printer, pages.pageCount());
    if (chosen.empty())
        return tr("The list has none of the chosen pages.");
    WaitPanel panel(
        &m_window, tr("Printing '%1'…").arg(m_document.displayName()), WaitPanel::Cancel::Possible);
    try {
        return isFile ? printToFile(pages, chosen, panel) : printOnPaper(pages, chosen, panel);
    } catch (const OperationCancelled&) {
        return {};
    } catch (const std::bad_alloc&) {
        return tr("There is not enough memory");
    }
}

/// What went wrong, for a person; empty when nothing did.
QString BookPrinting::printToFile(
    const PrintPages& pages, const std::vector<qsizetype>& chosen, WaitPanel& panel)
{
    // Not by the printer itself: it would spoil an old file when something fails on the way.
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setResolution(m_printer->resolution());
        writer.setPageLayout(m_printer->pageLayout());
        writer.setTitle(m_printer->docName());
        writer.setCreator(m_printer->creator());
        QPainter painter(&writer);
        pages.print(painter, writer, chosen, panel.progress());
    }
    return AtomicFile::write(m_printer->outputFileName(), file.data()).error;
}

/// What went wrong, for a person; empty when nothing did.
QString BookPrinting::printOnPaper(
    const PrintPages& pages, const std::vector<qsizetype>& chosen, WaitPanel& panel)
{
    QPainter painter;
    bool isPrinted = painter.begin(m_printer.get());
    try {
        isPrinted = isPrinted && pages.print(painter, *m_printer, chosen, panel.progress())
            && painter.end();
    } catch (const OperationCancelled&) {
        m_printer->abort(); // before the painter's end sends off what there is
        throw;
    }
    return isPrinted ? QString() : tr("The printer does not take the pages.");
}

} // namespace tomely
