// The sheet of the main window in which a person ticks the columns that the book list shows. It
// only marks the column records; applying the marks is the window's affair.

#pragma once

#include "document/ColumnCatalogue.h"

#include <QDialog>
#include <QSet>

#include <memory>
#include <vector>

class QListWidgetItem;

namespace Ui {
class CustomizeList;
}

namespace tomely {

class BookListDocument;

class CustomizeListController : public QDialog {
    Q_OBJECT

public:
    /// Opens the sheet on a window, which owns it, with the shown columns of `selectedColumns`
    /// ticked: the records of `document`, none of which may be removed while the sheet is open. The
    /// sheet destroys itself when it is closed.
    CustomizeListController(
        QWidget& parentWindow, BookListDocument& document, ColumnDictionary& selectedColumns);
    ~CustomizeListController() override;

    /// Marks the records whose ticks say otherwise than their positions, tells the document that
    /// the selection of columns changed, and closes the sheet.
    void ok();

    /// Closes the sheet and leaves the records as they are.
    void cancel();

    /// However the sheet is closed, the document remembers how large it was.
    void done(int result) override;

protected:
    bool event(QEvent* event) override;

private:
    void initColumns();
    void windowDidLoad();
    void windowDidBecomeKey();
    void adjustWindowSize();
    void checkboxChanged(QListWidgetItem* row);
    void makeRoomForNames();
    void reloadRows();

    BookListDocument& m_document;
    ColumnDictionary& m_dSelectedColumns_Original;
    std::vector<const ColumnEntry*> m_aColumns; // a row each
    QSet<QString> m_dSelectedColumns; // the keys of the ticked ones
    std::unique_ptr<Ui::CustomizeList> m_ui;
};

} // namespace tomely
