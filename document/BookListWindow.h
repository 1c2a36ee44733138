// The main window of a collection as its document speaks to it. The document knows no more of
// windows than this, so that the command line and tests can do without one.

#pragma once

#include "document/ColumnEntry.h"

#include <QRect>
#include <QRectF>

#include <array>

namespace tomely {

/// Where the window and its panes are, in the file's own terms (see CollectionContents).
struct WindowLayout {
    QRectF windowFrame;
    std::array<QRectF, 2> imageSplitter;
    std::array<QRectF, 2> listSplitter;
};

class BookListWindow {
public:
    virtual ~BookListWindow() = default;

    /// Computes the displayed books again and shows them.
    virtual void refresh() = 0;

    /// Books were added, edited or removed, or their groups changed; a refresh follows.
    virtual void setBooksChanged() = 0;

    /// Groups were added, renamed or removed.
    virtual void groupsChanged() = 0;

    /// Columns were marked to be shown or hidden (see ColumnEntry positions).
    virtual void columnsSelectionChanged() = 0;

    /// A column has a new name.
    virtual void updateColumnName(const ColumnEntry& column) = 0;

    /// The names of filter fields changed.
    virtual void initFilterDropDown() = 0;

    /// Copies order and widths of the shown columns into the document's column records.
    virtual void updateCurrentColumnInfo() = 0;

    /// Where everything is now.
    virtual WindowLayout currentLayout() = 0;

    /// Opens an editor for a new book; at `frame` in screen coordinates unless that is empty.
    virtual void addNewBook(QRect frame) = 0;

    /// Takes over a group name that is still being typed.
    virtual void endGroupNameEditting() = 0;

    /// Lets the person print the displayed books.
    virtual void printDocument() = 0;
};

} // namespace tomely
