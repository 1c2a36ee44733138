// The menus File and Help, the same in every window: they speak to the documents of the program.

#pragma once

#include <QKeySequence>
#include <QList>

#include <functional>

class QMainWindow;
class QMenu;

namespace tomely {

class Document;
class DocumentController;

/// What the menu File has besides the commands about documents.
struct FileMenuParts {
    std::function<void(QMenu& menu)> addWindowCommands; // what the window itself can do
    std::function<void()> showPreferences;
};

/// Adds the menu File to a window of `document`. Everything must outlive the window.
void addFileMenu(QMainWindow& window, Document& document, DocumentController& documents,
    const FileMenuParts& parts);

/// Adds the menu Help.
void addHelpMenu(QMainWindow& window);

/// The desktop's keys for a command, or the usual ones where the desktop has none for it.
QList<QKeySequence> shortcutsFor(QKeySequence::StandardKey command);

/// Closes all documents, asking where there are changes, and ends the program unless the person
/// cancels.
void quit(DocumentController& documents);

} // namespace tomely
