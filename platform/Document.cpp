#include "platform/Document.h"

#include "platform/ArchiveError.h"
#include "platform/AtomicFile.h"
#include "platform/FileReading.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <new>

namespace tomely {

namespace {

/// Owns a window until the event loop is reached again: a window may be closing itself right now.
class LateOwner : public QObject {
public:
    explicit LateOwner(std::unique_ptr<DocumentWindow> window) : m_window(std::move(window)) { }

private:
    std::unique_ptr<DocumentWindow> m_window;
};

} // namespace

QString Document::displayName() const
{
    if (m_filePath.isEmpty())
        return m_untitledName;
    const QFileInfo info(m_filePath);
    const QString name = info.completeBaseName();
    return name.isEmpty() ? info.fileName() : name;
}

void Document::setUntitledName(const QString& name)
{
    m_untitledName = name;
    Q_EMIT nameChanged();
}

std::optional<DocumentFailure> Document::readFromFile(const QString& path, const Progress& progress)
{
    // Before it is read, so that a change during the reading is noticed later.
    const FileState state = fileState(path);
    try {
        const auto bytes = readWholeFile(path, halfOf(progress, 0));
        if (const QString* const error = std::get_if<QString>(&bytes))
            return DocumentFailure{*error};
        if (auto failure = loadDataRepresentation(std::get<QByteArray>(bytes), halfOf(progress, 1)))
            return failure;
    } catch (const OperationCancelled&) {
        return DocumentFailure{.reason = {}, .cancelled = true};
    } catch (const std::bad_alloc&) {
        return DocumentFailure{tr("There is not enough memory")};
    }
    m_filePath = QFileInfo(path).absoluteFilePath();
    m_fileState = state;
    clearChangeCount();
    Q_EMIT nameChanged();
    return std::nullopt;
}

Document::FileState Document::fileState(const QString& path)
{
    const QFileInfo info(path);
    return {info.lastModified(), info.size()};
}

bool Document::isFileChangedOutside() const
{
    return !m_filePath.isEmpty() && QFileInfo::exists(m_filePath)
        && fileState(m_filePath) != m_fileState;
}

std::optional<DocumentFailure> Document::writeToFile(const QString& path, const Progress& progress)
{
    try {
        const QByteArray bytes = dataRepresentation(halfOf(progress, 0));
        if (const FileResult result = AtomicFile::write(path, bytes, halfOf(progress, 1));
            !result.isOk())
            return DocumentFailure{result.error};
    } catch (const ArchiveError& error) {
        return DocumentFailure{error.message()};
    } catch (const std::bad_alloc&) {
        return DocumentFailure{tr("There is not enough memory")};
    }
    m_filePath = QFileInfo(path).absoluteFilePath();
    m_fileState = fileState(m_filePath);
    clearChangeCount();
    Q_EMIT nameChanged();
    return std::nullopt;
}

void Document::addWindowController(std::unique_ptr<DocumentWindow> window)
{
    m_windows.push_back(std::move(window));
    Q_EMIT windowAdded(m_windows.back().get());
}

void Document::removeWindowController(DocumentWindow* window)
{
    const auto place =
        std::ranges::find(m_windows, window, [](const auto& candidate) { return candidate.get(); });
    if (place == m_windows.end() || place == m_windows.begin())
        return;
    auto* const owner = new LateOwner(std::move(*place));
    m_windows.erase(place);
    std::erase_if(m_lateOwners, [](const auto& earlier) { return earlier.isNull(); });
    m_lateOwners.emplace_back(owner);
    owner->deleteLater();
}

void Document::destroyWindowControllers()
{
    m_windows.clear();
    // A removed window still looks at the document, so it cannot wait any longer.
    for (const QPointer<QObject>& owner : m_lateOwners)
        delete owner.data();
    m_lateOwners.clear();
}

bool Document::hasUnsavedWork() const
{
    return isDocumentEdited() || std::ranges::any_of(m_windows, [](const auto& window) {
        return window->unsavedWork().has_value();
    });
}

DocumentWindow* Document::mainWindow() const
{
    return m_windows.empty() ? nullptr : m_windows.front().get();
}

void Document::showWindows()
{
    for (const auto& window : m_windows)
        window->showWindow();
}

void Document::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    Q_EMIT editedChanged(edited);
}

} // namespace tomely
