// The sheet of the main window in which a person chooses what a CSV file holds and how it says it,
// with the first lines of the file as they would be.

#pragma once

#include "listwindow/engine/CsvChoices.h"

#include <QDialog>

#include <memory>

class QButtonGroup;
class QGroupBox;

namespace Ui {
class ExportCSVOptions;
}

namespace tomely {

class BookListDocument;

class ExportCSVOptionsController : public QDialog {
    Q_OBJECT

public:
    /// How many books the preview shows under the line of labels.
    static constexpr qsizetype previewedBooks = 3;

    /// Of very long values the preview shows no more than this many characters.
    static constexpr qsizetype mostPreviewedCharacters = 30'000;

    /// Opens the sheet on a window, which owns it, with these choices made. The document and the
    /// engine must be there as long as a person can use the sheet, which destroys itself when it is
    /// closed.
    ExportCSVOptionsController(QWidget& parentWindow, const BookListDocument& document,
        const ListEngine& engine, const CsvChoices& choices);
    ~ExportCSVOptionsController() override;

    /// What is chosen at the moment.
    CsvChoices choices() const;

    /// Closes the sheet and says what was chosen.
    void clickedOK();

    void clickedCancel();

    /// Only a list of groups in one column has something between its names.
    void changedGroupSelection();

Q_SIGNALS:
    void confirmed(const CsvChoices& choices);

protected:
    bool event(QEvent* event) override;

private:
    void makeGroups();
    void connectControls();
    void choose(const CsvChoices& choices);
    void setUpPreview();
    void showPreview();
    void fitToScreen();

    const BookListDocument& m_document;
    const ListEngine& m_engine;
    std::unique_ptr<Ui::ExportCSVOptions> m_ui;
    // Of m_ui.
    QButtonGroup* m_filter = nullptr;
    QButtonGroup* m_columns = nullptr;
    QButtonGroup* m_dates = nullptr;
    QButtonGroup* m_groups = nullptr;
    QButtonGroup* m_checkboxes = nullptr;
    QButtonGroup* m_isbn = nullptr;
    QButtonGroup* m_carriageReturns = nullptr;
};

} // namespace tomely
