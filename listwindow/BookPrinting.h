// The commands that print the displayed books: the desktop's print dialog and the preview, as
// sheets of the main window. What the pages look like is PrintPages' affair.

#pragma once

#include "model/BookEntry.h"

#include <QObject>
#include <QPointer>
#include <QPrinter>

#include <memory>
#include <vector>

class QPrintDialog;
class QTableView;
class QWidget;

namespace tomely {

class Alerts;
class BookListDocument;
class PrintPages;
class PrintPreview;
class WaitPanel;

class BookPrinting : public QObject {
    Q_OBJECT

public:
    /// Everything must outlive the printing.
    BookPrinting(BookListDocument& document, QWidget& window, const QTableView& bookTable,
        const std::vector<BookEntry*>& displayedBooks, Alerts& alerts);
    ~BookPrinting() override;

    /// Opens the print dialog; what it says is printed when it is accepted. Printer, paper and file
    /// are kept as chosen while the document is open.
    void printDocument();

    void showPreview();

private:
    QPrinter& printInfo();
    QString suggestedPath() const;
    PrintPages makePages(const std::vector<BookEntry*>& books);
    void print();
    QString printPages(const PrintPages& pages);
    QString printToFile(
        const PrintPages& pages, const std::vector<qsizetype>& chosen, WaitPanel& panel);
    QString printOnPaper(
        const PrintPages& pages, const std::vector<qsizetype>& chosen, WaitPanel& panel);

    BookListDocument& m_document;
    QWidget& m_window;
    const QTableView& m_bookTable;
    const std::vector<BookEntry*>& m_displayedBooks;
    Alerts& m_alerts;
    std::unique_ptr<QPrinter> m_printer; // made when it is needed: finding printers may take long
    bool m_isFileChosen = false; // the printer's file is the person's choice
    QPointer<QPrintDialog> m_dialog; // owned, like the window does
    QPointer<PrintPreview> m_preview; // owned, like the window does
};

} // namespace tomely
