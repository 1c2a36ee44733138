// The menus File and Help, the same in every window: they speak to the documents of the program.

#pragma once

#include <QKeySequence>
#include <QList>

class QMainWindow;
class QWidget;

namespace tomely {

class Document;
class DocumentController;

/// Adds the menu File to a window of `document`. Everything must outlive the window.
void addFileMenu(QMainWindow& window, Document& document, DocumentController& documents);

/// Adds the menu Help.
void addHelpMenu(QMainWindow& window);

/// The desktop's keys for a command, or the usual ones where the desktop has none for it.
QList<QKeySequence> shortcutsFor(QKeySequence::StandardKey command);

/// Closes all documents, asking where there are changes, and ends the program unless the person
/// cancels.
void quit(DocumentController& documents);

/// Says what the program is, on a window.
void showAbout(QWidget* window);

} // namespace tomely
