// Owns one window of a document: keeps its title and its mark for unsaved changes up to date and
// turns the person's wish to close it into a signal. What is in the window is a derived class's
// affair.

#pragma once

#include "platform/DocumentWindow.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>

namespace tomely {

class Document;

class WindowController : public QObject, public DocumentWindow {
    Q_OBJECT

public:
    /// The document must outlive the controller.
    explicit WindowController(Document& document);
    ~WindowController() override;

    QMainWindow* window() const { return m_window; }

    void showWindow() override;
    void bringToFront() override;
    QObject* windowObject() override;

Q_SIGNALS:
    /// The person asked for the window to be closed; it stays open until its owner closes it.
    void closeRequested();

    /// The window is the active one now.
    void activated();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The text of the title bar; by default the document's name.
    virtual QString windowTitle() const;

    void updateTitle();

    /// Shows whether the document has unsaved changes; by default as the title bar's mark.
    virtual void setDocumentEdited(bool edited);

private:
    Document& m_document;
    QPointer<QMainWindow> m_window; // owned; also destroyed by the toolkit at the program's end
};

} // namespace tomely
