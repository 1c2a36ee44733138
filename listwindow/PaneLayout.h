// Where the main window and its panes are: the shares they start with, and the way to the
// collection's file and back.

#pragma once

#include "document/BookListWindow.h"

class QMainWindow;
class QSplitter;

namespace tomely {

class BookListDocument;

/// The window with its panes: groups above the picture, and both beside the list.
struct WindowPanes {
    QMainWindow& window;
    QSplitter& imageSplitter;
    QSplitter& listSplitter;
};

/// How a new window shares its room, and who gains when it grows.
void sharePanes(const WindowPanes& panes);

/// Gives the window and its panes the places that are saved with the document, those of them that
/// are.
void restoreLayout(const WindowPanes& panes, const BookListDocument& document);

/// Where they are now. A place that the platform does not tell is the one saved with the document.
WindowLayout layoutOf(const WindowPanes& panes, const BookListDocument& document);

} // namespace tomely
