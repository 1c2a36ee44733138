// The sheet of an editor in which a person asks for a look-up of an ISBN. It stays until a book is
// found or the person leaves it.

#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class BookLookup;
}

namespace tomely {

class LookupWorkflow;

class BookLookupController : public QDialog {
    Q_OBJECT

public:
    /// Opens the sheet on a window, which owns it, with an ISBN as it was typed. What is found goes
    /// to the workflow of that window. The sheet destroys itself when it is closed.
    BookLookupController(QWidget& parentWindow, LookupWorkflow& workflow, const QString& isbn);
    ~BookLookupController() override;

    /// OK is possible when there is something to look up.
    void textDidChange();

    /// Looks the book up; when it is found, shows it in the editor and closes the sheet. This may
    /// be gone afterwards.
    void ok();

    void cancel();

private:
    LookupWorkflow& m_workflow;
    std::unique_ptr<Ui::BookLookup> m_ui;
};

} // namespace tomely
