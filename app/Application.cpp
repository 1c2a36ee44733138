#include "app/Application.h"

#include "app/CollectionFileType.h"
#include "app/MainMenu.h"
#include "document/BookListDocument.h"
#include "listwindow/BookListWindowController.h"

#include <QApplication>
#include <QMainWindow>

namespace tomely {

Application::Application(UserDefaults& defaults, Alerts& alerts, FilePanels& panels)
    : m_defaults(defaults)
    , m_alerts(alerts)
    , m_documents({alerts, panels, defaults, collectionFileType(),
          [this] {
              return makeDocument();
          }})
    , m_delegate(m_documents, defaults, alerts, panels)
    , m_startWindow(m_documents)
{
    QApplication::setQuitOnLastWindowClosed(
        m_delegate.applicationShouldTerminateAfterLastWindowClosed());
    connect(&m_documents, &DocumentController::documentOpened, &m_startWindow, &QWidget::hide);
    connect(&m_documents, &DocumentController::documentClosed, this,
        &Application::showStartWindowWhenAlone);
    connect(&m_startWindow, &StartWindow::closedByUser, qApp, &QApplication::quit);
}

void Application::start(const QStringList& files)
{
    m_delegate.applicationDidFinishLaunching();
    if (files.isEmpty()) {
        if (m_delegate.applicationShouldOpenUntitledFile())
            m_documents.newDocument();
        return;
    }
    for (const QString& file : files)
        m_documents.openDocument(file);
    showStartWindowWhenAlone();
}

void Application::openForOtherStart(const QStringList& files)
{
    if (files.isEmpty())
        return comeForward();
    for (const QString& file : files)
        m_documents.openDocument(file);
}

void Application::comeForward()
{
    Document* const document = m_documents.currentDocument();
    if (document && document->mainWindow())
        document->mainWindow()->bringToFront();
    else
        m_startWindow.present();
}

void Application::showStartWindowWhenAlone()
{
    if (m_documents.documents().empty())
        m_startWindow.present();
}

std::unique_ptr<Document> Application::makeDocument()
{
    return std::make_unique<BookListDocument>(
        BookListServices{&m_alerts, &m_defaults, [this](BookListDocument& document) {
                             return makeWindow(document);
                         }});
}

BookListWindow* Application::makeWindow(BookListDocument& document)
{
    auto controller = std::make_unique<BookListWindowController>(document);
    addMainMenu(*controller->window(), document, m_documents);
    BookListWindow* const window = controller.get();
    document.addWindowController(std::move(controller));
    return window;
}

} // namespace tomely
