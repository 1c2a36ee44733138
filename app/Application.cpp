#include "app/Application.h"

#include "app/CollectionFileType.h"
#include "app/Help.h"
#include "app/MainMenu.h"
#include "app/WindowMenu.h"
#include "document/BookListDocument.h"
#include "editor/BookEntryWindowController.h"
#include "listwindow/BookListWindowController.h"
#include "platform/widgets/AfterWaits.h"
#include "platform/widgets/Waiting.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QSessionManager>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

Application::Application(
    UserDefaults& defaults, Alerts& alerts, FilePanels& panels, FetchPolicy fetchPolicy)
    : m_defaults(defaults)
    , m_alerts(alerts)
    , m_panels(panels)
    , m_fetchPolicy(std::move(fetchPolicy))
    , m_toolbar(defaults)
    , m_documents({alerts, panels, defaults, collectionFileType(),
          [this] {
              return makeDocument();
          }})
    , m_delegate(m_documents, defaults, alerts, panels)
    , m_startWindow(m_documents)
{
    QApplication::setQuitOnLastWindowClosed(
        m_delegate.applicationShouldTerminateAfterLastWindowClosed());
    qApp->installEventFilter(&m_contextMenuKey);
    connect(&m_documents, &DocumentController::documentOpened, &m_startWindow, &QWidget::hide);
    connect(&m_documents, &DocumentController::documentClosed, this,
        &Application::showStartWindowWhenAlone);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &Application::askBeforeLogout,
        Qt::DirectConnection);
    connect(&m_startWindow, &StartWindow::preferencesRequested, this,
        [this] { preferences().showWindow(); });
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

void Application::keepDesktopRecents()
{
    m_desktopRecents = std::make_unique<DesktopRecents>(
        DesktopRecents::Program{u"Tomely"_s, u"tomely %f"_s, u"application/x-tomely-collection"_s});
    connect(&m_documents, &DocumentController::recentDocumentsChanged, this,
        &Application::noteRecents, Qt::UniqueConnection);
}

void Application::noteRecents()
{
    const QStringList paths = m_documents.recentDocuments(); // the one just used is the first
    if (paths.isEmpty())
        m_desktopRecents->clear();
    else
        m_desktopRecents->note(paths.first());
}

PreferencesController& Application::preferences()
{
    // Made when they are first asked for: the program starts without.
    if (!m_preferences) {
        m_preferences = std::make_unique<PreferencesController>(m_defaults, m_panels);
        connect(m_preferences.get(), &PreferencesController::quitRequested, this,
            [this] { quit(m_documents); });
    }
    return *m_preferences;
}

void Application::comeForward()
{
    Document* const document = m_documents.currentDocument();
    if (document && document->mainWindow())
        document->mainWindow()->bringToFront();
    else if (!Waiting::isWaiting()) // the first file is still being opened
        m_startWindow.present();
}

void Application::askBeforeLogout(QSessionManager& session)
{
    const bool isEdited = std::ranges::any_of(
        m_documents.documents(), [](const auto& document) { return document->hasUnsavedWork(); });
    if (!isEdited)
        return;
    // The questions are answered later; until then the session has to wait.
    session.cancel();
    if (session.allowsInteraction())
        afterWaits(*this, [this] { quit(m_documents); });
    session.release();
}

void Application::showStartWindowWhenAlone()
{
    // On the way out it would only flash up.
    if (m_documents.documents().empty() && !m_documents.isClosingAll())
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
    auto controller = std::make_unique<BookListWindowController>(document, listWindowServices());
    QMainWindow& mainWindow = *controller->window();
    addFileMenu(mainWindow, document, m_documents,
        {[&list = *controller](QMenu& menu) { list.addFileCommands(menu); },
            [this] {
                preferences().showWindow();
            }});
    controller->addCommandMenus(*mainWindow.menuBar());
    addWindowMenu(mainWindow, m_documents);
    addHelpMenu(mainWindow);
    BookListWindow* const window = controller.get();
    document.addWindowController(std::move(controller));
    return window;
}

ListWindowServices Application::listWindowServices()
{
    const auto withWindowMenu = [this](std::unique_ptr<BookEntryWindowController> editor) {
        addWindowMenu(*editor->window(), m_documents);
        addHelpKey(*editor->window());
        return editor;
    };
    return {m_alerts, m_defaults, m_panels, m_toolbar,
        [this, withWindowMenu](BookListDocument& document, QRect frame) {
            return withWindowMenu(
                BookEntryWindowController::initWithRect(frame, document, editorServices()));
        },
        [this, withWindowMenu](BookListDocument& document, BookEntry& book) {
            return withWindowMenu(
                BookEntryWindowController::initWithEntry(book, document, editorServices()));
        }};
}

EditorServices Application::editorServices()
{
    return {{m_defaults, m_alerts,
                [this] {
                    return std::make_unique<UrlFetch>(m_fetchPolicy);
                }},
        m_panels, &m_spellChecker};
}

} // namespace tomely
