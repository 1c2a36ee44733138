#include "platform/widgets/DocumentController.h"

#include "platform/Alerts.h"
#include "platform/Document.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/AfterWaits.h"
#include "platform/widgets/Waiting.h"
#include "platform/widgets/WaitPanel.h"
#include "platform/widgets/WindowController.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// Answers a question about closing that is never answered: its window goes, and it with it.
class AnswerGuard {
public:
    explicit AnswerGuard(DocumentController::Done done) : m_done(std::move(done)) { }

    ~AnswerGuard()
    {
        if (m_done)
            m_done(false);
    }

    Q_DISABLE_COPY_MOVE(AnswerGuard)

    void answer(bool happened)
    {
        if (const DocumentController::Done done = std::exchange(m_done, {}))
            done(happened);
    }

    DocumentController::Done take() { return std::exchange(m_done, {}); }

private:
    DocumentController::Done m_done;
};

QWidget* windowOf(const Document& document)
{
    DocumentWindow* const window = document.mainWindow();
    return window ? qobject_cast<QWidget*>(window->windowObject()) : nullptr;
}

/// What is being typed in a window is a change like any other.
void endEditing(const Document& document)
{
    for (const auto& window : document.windowControllers())
        window->endEditing();
}

void answer(const DocumentController::Done& done, bool happened)
{
    if (done)
        done(happened);
}

/// One name for a file however it was reached: links resolved, relative paths made absolute.
QString canonicalPath(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

} // namespace

DocumentController::DocumentController(Environment environment, QObject* parent)
    : QObject(parent)
    , m_environment(std::move(environment))
{
}

DocumentController::~DocumentController() = default;

Document* DocumentController::currentDocument() const
{
    if (m_current)
        return m_current;
    return m_documents.empty() ? nullptr : m_documents.back().get();
}

Document* DocumentController::documentForFile(const QString& path) const
{
    const QString wanted = canonicalPath(path);
    const auto place = std::ranges::find_if(m_documents, [&wanted](const auto& document) {
        return !document->filePath().isEmpty() && canonicalPath(document->filePath()) == wanted;
    });
    return place == m_documents.end() ? nullptr : place->get();
}

// Making and opening

Document* DocumentController::newDocument()
{
    std::unique_ptr<Document> document = m_environment.makeDocument();
    document->setUntitledName(nextUntitledName());
    return adopt(std::move(document));
}

QString DocumentController::nextUntitledName()
{
    ++m_untitledCount;
    return m_untitledCount == 1 ? tr("Untitled") : tr("Untitled %1").arg(m_untitledCount);
}

Document* DocumentController::openDocument(const QString& path)
{
    if (Waiting::isWaiting()) {
        afterWaits(*this, [this, path] { openDocument(path); });
        return nullptr;
    }
    if (Document* const open = documentForFile(path)) {
        if (DocumentWindow* const window = open->mainWindow())
            window->bringToFront();
        return open;
    }
    std::unique_ptr<Document> document = readDocument(path, nullptr);
    return document ? adopt(std::move(document)) : nullptr;
}

std::unique_ptr<Document> DocumentController::readDocument(const QString& path, QWidget* window)
{
    std::unique_ptr<Document> document = m_environment.makeDocument();
    std::optional<DocumentFailure> failure;
    {
        const QString name = QFileInfo(path).completeBaseName();
        WaitPanel panel(window, tr("Opening '%1'…").arg(name), WaitPanel::Cancel::Possible);
        failure = document->readFromFile(path, panel.progress());
    }
    if (!failure) {
        noteRecent(document->filePath());
        return document;
    }
    if (!failure->cancelled)
        sayCannotOpen(path, *failure);
    return nullptr;
}

void DocumentController::sayCannotOpen(const QString& path, const DocumentFailure& failure)
{
    const QString text = failure.standsAlone
        ? failure.reason
        : tr("The file '%1' could not be opened.\n\n%2").arg(path, failure.reason);
    m_environment.alerts.runModal(messageAlert(text));
}

Document* DocumentController::adopt(std::unique_ptr<Document> document)
{
    Document* const adopted = document.get();
    m_documents.push_back(std::move(document));
    adopted->makeWindowControllers();
    if (auto* const window = dynamic_cast<WindowController*>(adopted->mainWindow()))
        watchWindow(*adopted, *window);
    watchFurtherWindows(*adopted);
    m_current = adopted;
    adopted->showWindows();
    Q_EMIT documentOpened(adopted);
    return adopted;
}

void DocumentController::watchWindow(Document& document, WindowController& window)
{
    connect(&window, &WindowController::closeRequested, &document,
        [this, &document] { close(document); });
    connect(&window, &WindowController::activated, &document,
        [this, &document] { m_current = &document; });
}

void DocumentController::watchFurtherWindows(Document& document)
{
    connect(&document, &Document::windowAdded, this, [this, &document](DocumentWindow* added) {
        if (auto* const window = dynamic_cast<WindowController*>(added))
            connect(window, &WindowController::activated, &document,
                [this, &document] { m_current = &document; });
    });
}

void DocumentController::openWithPanel(QWidget* window)
{
    m_environment.panels.beginOpenPanel(
        window, m_environment.fileType, [this](const QStringList& paths) {
            for (const QString& path : paths)
                openDocument(path);
        });
}

// Saving

bool DocumentController::write(Document& document, const QString& path)
{
    std::optional<DocumentFailure> failure;
    {
        WaitPanel panel(windowOf(document), tr("Saving '%1'…").arg(document.displayName()),
            WaitPanel::Cancel::Impossible);
        failure = document.writeToFile(path, panel.progress());
    }
    if (failure) {
        m_environment.alerts.runModal(messageAlert(
            tr("'%1' could not be saved.\n\n%2").arg(document.displayName(), failure->reason)));
        return false;
    }
    noteRecent(document.filePath());
    return true;
}

void DocumentController::save(Document& document, Done done)
{
    if (Waiting::isWaiting())
        return answer(done, false);
    if (document.filePath().isEmpty())
        return saveAs(document, std::move(done));
    if (document.isFileChangedOutside())
        return askToReplace(document, std::move(done));
    answer(done, write(document, document.filePath()));
}

void DocumentController::askToReplace(Document& document, Done done)
{
    const Alert question{
        tr("The file of '%1' was changed by another program since you opened it.\n\nDo you want to "
           "replace it with what you have here? What the other program wrote will be lost.")
            .arg(document.displayName()),
        {tr("Replace"), tr("Cancel")}, 1, 1};
    m_environment.alerts.beginSheet(windowOf(document), question,
        [this, target = QPointer(&document), done = std::move(done)](int button) {
            if (!target || button != 0)
                return answer(done, false);
            answer(done, write(*target, target->filePath()));
        });
}

void DocumentController::saveAs(Document& document, Done done)
{
    if (Waiting::isWaiting())
        return answer(done, false);
    const QString suggested = document.filePath().isEmpty()
        ? QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
              .filePath(withExtension(document.displayName(), m_environment.fileType))
        : document.filePath();
    m_environment.panels.beginSavePanel(windowOf(document), m_environment.fileType, suggested,
        [this, target = QPointer(&document), done = std::move(done)](const QString& path) {
            if (path.isEmpty())
                return answer(done, false);
            writeAs(target, path, done);
        });
}

void DocumentController::writeAs(
    const QPointer<Document>& document, const QString& path, const Done& done)
{
    // A panel of the desktop is answered also while the program waits for something.
    if (Waiting::isWaiting())
        return afterWaits(*this, [this, document, path, done] { writeAs(document, path, done); });
    if (!document)
        return answer(done, false);
    const Document* const holder = documentForFile(path);
    if (holder && holder != document) {
        m_environment.alerts.runModal(messageAlert(
            tr("'%1' is open in another window. Choose another name.").arg(holder->displayName())));
        return answer(done, false);
    }
    answer(done, write(*document, path));
}

// Reverting

void DocumentController::revert(Document& document, const Done& done)
{
    if (Waiting::isWaiting() || document.filePath().isEmpty())
        return answer(done, false);
    endEditing(document);
    settleWindows(document, [this, target = QPointer(&document), done](bool settled) {
        if (!settled || !target)
            return answer(done, false);
        if (target->isDocumentEdited())
            return askToRevert(*target, done);
        reopen(*target, done);
    });
}

void DocumentController::askToRevert(Document& document, Done done)
{
    if (DocumentWindow* const window = document.mainWindow())
        window->bringToFront();
    const Alert question{
        tr("Do you want to go back to the saved version of '%1'?\n\nYour changes since will be "
           "lost.")
            .arg(document.displayName()),
        {tr("Revert"), tr("Cancel")}, 1, 1};
    m_environment.alerts.beginSheet(windowOf(document), question,
        [this, target = QPointer(&document), done = std::move(done)](int button) {
            if (!target || button != 0)
                return answer(done, false);
            reopen(*target, done);
        });
}

void DocumentController::reopen(Document& document, const Done& done)
{
    // The file is read before the document is let go, so that a damaged file costs nothing.
    std::unique_ptr<Document> fresh = readDocument(document.filePath(), windowOf(document));
    if (!fresh)
        return answer(done, false);
    remove(document);
    adopt(std::move(fresh));
    answer(done, true);
}

// Closing

void DocumentController::close(Document& document, const Done& done)
{
    if (Waiting::isWaiting())
        return answer(done, false);
    endEditing(document);
    settleWindows(document, [this, target = QPointer(&document), done](bool settled) {
        if (!settled || !target)
            return answer(done, false);
        if (target->isDocumentEdited())
            return askToSave(*target, done);
        remove(*target);
        Q_EMIT documentClosed();
        answer(done, true);
    });
}

bool DocumentController::beginAsking(const Document& document, DocumentWindow* window)
{
    // The question belongs on a window that can be seen, and there only once.
    QPointer<QObject>& asked = m_asked[&document];
    const auto& windows = document.windowControllers();
    const auto place = std::ranges::find_if(windows,
        [&asked](const auto& candidate) { return asked && candidate->windowObject() == asked; });
    if (place != windows.end()) {
        (*place)->bringToFront();
        return false;
    }
    if (window) {
        window->bringToFront();
        asked = window->windowObject();
    }
    return true;
}

void DocumentController::settleWindows(Document& document, Done done)
{
    const auto& windows = document.windowControllers();
    const auto place = std::ranges::find_if(
        windows, [](const auto& window) { return window->unsavedWork().has_value(); });
    if (place == windows.end())
        return answer(done, true);
    DocumentWindow* const window = place->get();
    if (!beginAsking(document, window))
        return answer(done, false);
    const UnsavedWork work = *window->unsavedWork();
    const Alert question = work.canBeKept
        ? Alert{work.question, {tr("Save"), tr("Don't Save"), tr("Cancel")}, 0, 2}
        : Alert{work.question, {tr("Discard"), tr("Cancel")}, 1, 1};
    m_environment.alerts.beginSheet(window->windowObject(), question,
        [this, target = QPointer(&document), window, canBeKept = work.canBeKept,
            guard = std::make_shared<AnswerGuard>(std::move(done))](int button) {
            m_asked.erase(target);
            const bool isCancelled = button == (canBeKept ? 2 : 1);
            if (!target || isCancelled)
                return guard->answer(false);
            // The sheet goes with its window, so an answer means that the window is there.
            if (canBeKept && button == 0) {
                if (!window->keepWork())
                    return guard->answer(false);
            } else {
                window->dropWork();
            }
            settleWindows(*target, guard->take());
        });
}

void DocumentController::askToSave(Document& document, Done done)
{
    if (!beginAsking(document, document.mainWindow()))
        return answer(done, false);
    const Alert question{tr("Do you want to save the changes to '%1'?").arg(document.displayName()),
        {tr("Save"), tr("Don't Save"), tr("Cancel")}, 0, 2};
    m_environment.alerts.beginSheet(windowOf(document), question,
        [this, target = QPointer(&document), done = std::move(done)](int button) {
            m_asked.erase(target);
            if (!target || button == 2)
                return answer(done, false);
            if (button == 1)
                target->clearChangeCount();
            const auto closeSaved = [this, target, done](bool saved) {
                if (!saved || !target)
                    return answer(done, false);
                close(*target, done);
            };
            if (button == 0)
                save(*target, closeSaved);
            else
                closeSaved(true);
        });
}

void DocumentController::closeAll(Done done)
{
    m_isClosingAll = true;
    if (m_documents.empty()) {
        answer(done, true);
        m_isClosingAll = false;
        return;
    }
    close(*m_documents.back(), [this, done = std::move(done)](bool closed) {
        if (closed)
            return closeAll(done);
        m_isClosingAll = false;
        answer(done, false);
    });
}

void DocumentController::remove(Document& document)
{
    const auto place = std::ranges::find(
        m_documents, &document, [](const auto& candidate) { return candidate.get(); });
    if (place == m_documents.end())
        return;
    for (const auto& window : document.windowControllers()) {
        if (auto* const widget = qobject_cast<QWidget*>(window->windowObject()))
            widget->hide();
    }
    if (m_current == &document)
        m_current = nullptr;
    m_asked.erase(&document);
    // One of its windows may be handling an event right now.
    place->release()->deleteLater();
    m_documents.erase(place);
}

// Recent documents

QStringList DocumentController::recentDocuments() const
{
    return m_environment.defaults.stringListForKey(PreferenceKeys::RecentDocuments);
}

void DocumentController::noteRecent(const QString& path)
{
    QStringList paths = recentDocuments();
    paths.removeAll(path);
    paths.prepend(path);
    if (paths.size() > recentLimit)
        paths.resize(recentLimit);
    m_environment.defaults.setStringList(PreferenceKeys::RecentDocuments, paths);
    Q_EMIT recentDocumentsChanged();
}

void DocumentController::clearRecentDocuments()
{
    m_environment.defaults.remove(PreferenceKeys::RecentDocuments);
    Q_EMIT recentDocumentsChanged();
}

} // namespace tomely
