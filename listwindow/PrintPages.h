// The printed table as pages: scaled down to the width of the paper when it is wider, whole rows
// one under the other, heading and rule on the first page. All rows are equally high, so any page
// can be painted by itself, however many books come before it.

#pragma once

#include "listwindow/PrintColumns.h"
#include "listwindow/SingleLineDelegate.h"
#include "model/BookEntry.h"
#include "platform/Progress.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>

#include <memory>
#include <span>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace tomely {

/// What is printed, and in which letters.
struct PrintContent {
    std::vector<PrintColumn> columns;
    const std::vector<BookEntry*>& displayedBooks;
    QFont font;
};

class PrintPages {
public:
    /// The pages of the table on paper of that layout, of which the table takes what is within the
    /// margins. Everything is measured in dots, of which `resolution` make an inch. The books must
    /// outlive the pages; they may change, and the pages with them.
    PrintPages(PrintContent content, const QPageLayout& paper, int resolution);

    /// At least 1.
    qsizetype pageCount() const;

    /// Paints the page of that number, the first is 0, black on whatever is there. The painter's
    /// origin is the corner where the margins meet.
    void paint(QPainter& painter, qsizetype page) const;

    /// Paints these pages onto a device that the painter paints on already, each on a sheet of its
    /// own. False when the device failed. What `progress` throws leaves the rest unpainted.
    bool print(QPainter& painter, QPagedPaintDevice& device, std::span<const qsizetype> pages,
        const Progress& progress) const;

private:
    void paintRow(QPainter& painter, qsizetype row, double top) const;
    QString shownText(const PrintColumn& column, qsizetype row, double width) const;

    PrintContent m_content;
    std::unique_ptr<const SingleLineDelegate> m_screen; // what a cell makes of its text
    double m_dotsPerPoint; // with the scale
    QFont m_font;
    QFontMetricsF m_metrics;
    double m_rowHeight; // dots
    qsizetype m_rowsPerPage;
};

} // namespace tomely
