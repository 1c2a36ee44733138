// A document with a main window that nobody sees, and editors of its books as they are opened.

#pragma once

#include "document/BookListDocument.h"
#include "editor/BookEntryWindowController.h"
#include "platform/network/UrlFetch.h"
#include "platform/UserDefaults.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/FakeFilePanels.h"
#include "tests/support/SmallCollection.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QPointer>
#include <QTemporaryDir>

namespace tomely {

class EditorDesk {
public:
    EditorDesk() { document.makeWindowControllers(); }

    ~EditorDesk() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    Q_DISABLE_COPY_MOVE(EditorDesk)

    QString path(const QString& name) const { return m_folder.filePath(name); }

    BookEntryWindowController& openNew(QRect frame = {})
    {
        return show(BookEntryWindowController::initWithRect(frame, document, services()));
    }

    BookEntryWindowController& open(const BookEntry& book)
    {
        return show(BookEntryWindowController::initWithEntry(book, document, services()));
    }

    /// A control of an editor by its name.
    template <class Control>
    static Control& find(const BookEntryWindowController& editor, const QString& name)
    {
        auto* const control = editor.window()->findChild<Control*>(name);
        if (!control)
            qFatal("there is no %s", qPrintable(name));
        return *control;
    }

private:
    EditorServices services()
    {
        return {{defaults, alerts, [this] { return std::make_unique<UrlFetch>(fetchPolicy); },
                    placeholderDigest},
            panels, nullptr, [this] {
                return today;
            }};
    }

    BookEntryWindowController& show(std::unique_ptr<BookEntryWindowController> editor)
    {
        BookEntryWindowController& shown = *editor;
        document.addWindowController(std::move(editor));
        shown.bringToFront();
        return shown;
    }

    static FetchPolicy nobodyToAsk()
    {
        FetchPolicy policy;
        policy.mayConnect = [](const QHostAddress&) {
            return false;
        };
        return policy;
    }

    QTemporaryDir m_folder;

public:
    UserDefaults defaults{m_folder.filePath(QStringLiteral("Tomely.ini"))};
    FakeAlerts alerts;
    FakeFilePanels panels;
    FetchPolicy fetchPolicy = nobodyToAsk();
    QString placeholderDigest = PlaceholderDigest.toString();
    QDate today{2026, 5, 17};
    FakeBookListWindow* list = nullptr; // owned by the document
    BookListDocument document{FakeBookListWindow::services(list)};
};

} // namespace tomely
