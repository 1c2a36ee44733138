// The menus File and Help, the same in every window: they speak to the documents of the program.

#pragma once

class QMainWindow;
class QWidget;

namespace tomely {

class Document;
class DocumentController;

/// Adds the menus to a window of `document`. Everything must outlive the window.
void addMainMenu(QMainWindow& window, Document& document, DocumentController& documents);

/// Closes all documents, asking where there are changes, and ends the program unless the person
/// cancels.
void quit(DocumentController& documents);

/// Says what the program is, on a window.
void showAbout(QWidget* window);

} // namespace tomely
