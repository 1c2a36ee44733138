// The sheet of the main window in which a person chooses whether all books or those of the list are
// written to an XML file.

#pragma once

#include <QDialog>

#include <memory>

class QButtonGroup;

namespace Ui {
class ExportOptions;
}

namespace tomely {

class ListEngine;

class ExportOptionsController : public QDialog {
    Q_OBJECT

public:
    /// Opens the sheet on a window, which owns it. The engine must be there as long as a person can
    /// use the sheet, which destroys itself when it is closed.
    ExportOptionsController(QWidget& parentWindow, const ListEngine& engine);
    ~ExportOptionsController() override;

    /// Closes the sheet and says what was chosen.
    void clickedOK();

    void clickedCancel();

Q_SIGNALS:
    /// See ExportFilter.
    void confirmed(int exportFilterSelection);

protected:
    bool event(QEvent* event) override;

private:
    const ListEngine& m_engine;
    std::unique_ptr<Ui::ExportOptions> m_ui;
    QButtonGroup* m_filter; // of m_ui
};

} // namespace tomely
