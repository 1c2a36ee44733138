// The sheet that shows the pages as they will be printed. It paints only the page that is looked
// at, so that a library of any size is there at once, and follows the list while it is open.

#pragma once

#include "listwindow/PrintPages.h"

#include <QDialog>
#include <QPrinter>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class PrintPreview;
}

namespace tomely {

class PrintPreview : public QDialog {
    Q_OBJECT

public:
    /// Previews what `makePages` makes for the printer as it is set. The printer must outlive the
    /// preview, which deletes itself when it is closed. Show it with open().
    PrintPreview(QPrinter& printer, std::function<PrintPages()> makePages, QWidget* parent);
    ~PrintPreview() override;

    /// Makes the pages anew, after the list or the print settings changed.
    void refresh();

Q_SIGNALS:
    void printRequested();

    /// The person wants the paper the other way round.
    void orientationChosen(QPageLayout::Orientation orientation);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectControls();
    void showPage();
    void fitPage();
    double dotsPerPixel() const;
    void paintPage() const;

    QPrinter& m_printer;
    std::function<PrintPages()> m_makePages;
    std::unique_ptr<Ui::PrintPreview> m_ui;
    std::optional<PrintPages> m_pages; // there from the first refresh() on
};

} // namespace tomely
