#include "listwindow/BookExchange.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/CsvChoices.h"
#include "listwindow/engine/CsvExport.h"
#include "listwindow/engine/XmlExport.h"
#include "listwindow/engine/XmlImport.h"
#include "listwindow/ExportCSVOptionsController.h"
#include "listwindow/ExportOptionsController.h"
#include "platform/widgets/AfterWaits.h"
#include "platform/widgets/FilePanels.h"
#include "platform/widgets/WaitPanel.h"

#include <QFileInfo>
#include <QWidget>

#include <new>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

FileType xmlFiles()
{
    return {u"xml"_s, BookExchange::tr("XML Files")};
}

FileType csvFiles()
{
    return {u"csv"_s, BookExchange::tr("CSV Files")};
}

} // namespace

BookExchange::BookExchange(BookListDocument& document, ListWindowServices services, QWidget& window,
    const ListEngine& engine)
    : m_document(document)
    , m_services(std::move(services))
    , m_window(window)
    , m_engine(engine)
{
}

BookExchange::~BookExchange()
{
    // They look into the engine.
    delete m_exportOptionsController;
    delete m_exportCSVOptionsController;
}

// XML

void BookExchange::exportXML()
{
    if (m_engine.getDisplayedBooks().size() == m_engine.getAllBooks().size())
        return exportXML2(static_cast<int>(ExportFilter::AllBooks));
    m_exportOptionsController = new ExportOptionsController(m_window, m_engine);
    connect(m_exportOptionsController, &ExportOptionsController::confirmed, this,
        &BookExchange::exportXML2);
}

void BookExchange::exportXML2(int exportFilterSelection)
{
    const ExportFilter filter =
        exportFilterSelection == 0 ? ExportFilter::AllBooks : ExportFilter::DisplayedBooks;
    beginSavePanel(xmlFiles(), [this, filter](const QString& path) {
        work(tr("Exporting books…"), [this, filter, &path](const Progress& progress) {
            // A copy: what is displayed may change while the panel lets windows repaint.
            const std::vector<BookEntry*> books = exportableBooks(m_engine, filter);
            static_cast<void>(exportXml(path, books, progress));
        });
    });
}

void BookExchange::importXML()
{
    m_services.panels.beginOpenPanel(
        &m_window, xmlFiles(), [self = QPointer(this)](const QStringList& paths) {
            if (!self || paths.isEmpty())
                return;
            // A panel of the desktop is answered also while the program waits for something.
            afterWaits(*self, [self, path = paths.front()] {
                self->work(tr("Importing books…"), [self, &path](const Progress& progress) {
                    importXml(self->m_document, path, progress);
                });
            });
        });
}

// CSV

void BookExchange::exportCSV()
{
    m_exportCSVOptionsController = new ExportCSVOptionsController(
        m_window, m_document, m_engine, CsvChoices::of(m_services.defaults));
    connect(m_exportCSVOptionsController, &ExportCSVOptionsController::confirmed, this,
        &BookExchange::exportCSV2);
}

void BookExchange::exportCSV2(const CsvChoices& choices)
{
    choices.remember(m_services.defaults);
    beginSavePanel(csvFiles(), [this, choices](const QString& path) {
        work(tr("Exporting books…"), [this, &choices, &path](const Progress& progress) {
            const std::vector<BookEntry*> books =
                exportableBooks(m_engine, choices.filterSelection);
            const CsvExport csv(m_document, books, choices.options);
            static_cast<void>(csv.write(path, progress));
        });
    });
}

// Panels and waits

void BookExchange::beginSavePanel(
    const FileType& type, std::function<void(const QString& path)> write)
{
    m_services.panels.beginSavePanel(&m_window, type, suggestedPath(type),
        [self = QPointer(this), write = std::move(write)](const QString& path) {
            if (self && !path.isEmpty())
                afterWaits(*self, [write, path] { write(path); });
        });
}

/// Beside the collection; for one that has no file, or that lies where nothing can be written, in
/// the folder that panels used last.
QString BookExchange::suggestedPath(const FileType& type) const
{
    const QString name = withExtension(m_document.displayName(), type);
    const QString path = m_document.filePath();
    const QFileInfo folder(QFileInfo(path).path());
    const bool isBesideCollection = !path.isEmpty() && folder.isWritable();
    return isBesideCollection ? folder.filePath() + u'/' + name : name;
}

void BookExchange::work(
    const QString& text, const std::function<void(const Progress& progress)>& act)
{
    WaitPanel panel(&m_window, text, WaitPanel::Cancel::Possible);
    try {
        act(panel.progress());
    } catch (const OperationCancelled&) {
        return; // and nothing has changed
    } catch (const std::bad_alloc&) {
        return; // like any other failure
    }
}

} // namespace tomely
