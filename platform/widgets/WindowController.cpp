#include "platform/widgets/WindowController.h"

#include "platform/Document.h"

#include <QCloseEvent>
#include <QMainWindow>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// In a title "[*]" is where the mark for unsaved changes goes; doubled it is itself.
QString withMark(QString title)
{
    return title.replace("[*]"_L1, "[*][*]"_L1) + "[*]"_L1;
}

} // namespace

WindowController::WindowController(Document& document)
    : m_document(document)
    , m_window(new QMainWindow)
{
    m_window->installEventFilter(this);
    connect(&document, &Document::nameChanged, this, &WindowController::updateTitle);
    connect(&document, &Document::editedChanged, this,
        [this](bool edited) { setDocumentEdited(edited); });
    m_window->setWindowModified(document.isDocumentEdited());
    m_window->setWindowTitle(withMark(document.displayName()));
}

WindowController::~WindowController()
{
    if (m_window)
        m_window->removeEventFilter(this);
    delete m_window;
}

void WindowController::showWindow()
{
    m_window->show();
}

void WindowController::bringToFront()
{
    if (m_window->isMinimized())
        m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    showWindow();
    m_window->raise();
    m_window->activateWindow();
}

QObject* WindowController::windowObject()
{
    return m_window;
}

QString WindowController::windowTitle() const
{
    return m_document.displayName();
}

void WindowController::updateTitle()
{
    if (!m_window)
        return;
    m_window->setWindowTitle(withMark(windowTitle()));
    m_window->setWindowFilePath(m_document.filePath());
}

void WindowController::setDocumentEdited(bool edited)
{
    if (m_window)
        m_window->setWindowModified(edited);
}

bool WindowController::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close && watched == m_window) {
        event->ignore();
        Q_EMIT closeRequested();
        return true;
    }
    if (event->type() == QEvent::WindowActivate && watched == m_window)
        Q_EMIT activated();
    return QObject::eventFilter(watched, event);
}

} // namespace tomely
