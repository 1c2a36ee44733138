// The commands that exchange books with other programs: XML and CSV files of the books, written and
// read, each with its sheets and panels. Sheets and panels belong to the window alone, so books may
// change while one is open: what is kept is the choice, and the books are those that there are when
// the file is written. How writing or reading went is shown by the files and the list, and said to
// nobody.

#pragma once

#include "listwindow/BookCommands.h"
#include "platform/Progress.h"

#include <QObject>
#include <QPointer>

namespace tomely {

class ExportCSVOptionsController;
class ExportOptionsController;
class ListEngine;
struct CsvChoices;
struct FileType;

class BookExchange : public QObject {
    Q_OBJECT

public:
    /// Everything must outlive the exchange.
    BookExchange(BookListDocument& document, ListWindowServices services, QWidget& window,
        const ListEngine& engine);
    ~BookExchange() override;

    /// Asks which books, unless all are displayed, and goes on with exportXML2.
    void exportXML();

    /// Asks for a file and writes books to it: all for 0, the displayed ones for anything else.
    void exportXML2(int exportFilterSelection);

    /// Asks what to write, beginning with what was chosen last, and goes on with exportCSV2.
    void exportCSV();

    /// Remembers the choices, asks for a file and writes it.
    void exportCSV2(const CsvChoices& choices);

    /// Asks for a file and adds its books to the collection.
    void importXML();

private:
    void beginSavePanel(const FileType& type, std::function<void(const QString& path)> write);
    QString suggestedPath(const FileType& type) const;
    void work(const QString& text, const std::function<void(const Progress& progress)>& act);

    BookListDocument& m_document;
    ListWindowServices m_services;
    QWidget& m_window;
    const ListEngine& m_engine;
    // Owned by the window.
    QPointer<ExportOptionsController> m_exportOptionsController;
    QPointer<ExportCSVOptionsController> m_exportCSVOptionsController;
};

} // namespace tomely
