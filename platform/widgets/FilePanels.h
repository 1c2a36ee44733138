// The panels in which a person picks files. Behind an interface, so that a test can pick without a
// panel.

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace tomely {

class Alerts;

/// What kind of file a panel is about.
struct FileType {
    QString extension; // without the dot
    QString name; // "Tomely Collections"
    /// Other extensions that files of this kind have. With any, a name proves nothing, and the
    /// panel also offers all files, of which one can be picked.
    QStringList furtherExtensions = {};
};

class FilePanels {
public:
    virtual ~FilePanels() = default;

    /// Blocks until a file is picked; empty when the panel is cancelled. Starts in `folder`, or in
    /// the folder used last when that is empty.
    virtual QString runModalOpenPanel(const FileType& type, const QString& folder) = 0;

    /// Opens a panel for existing files on `window` (or for itself) and returns at once. `picked`
    /// gets the paths; it is not called when the panel is cancelled. Starts in `folder`, or in the
    /// folder used last when that is empty or gone.
    virtual void beginOpenPanel(QWidget* window, const FileType& type,
        std::function<void(const QStringList& paths)> picked, const QString& folder = {}) = 0;

    /// Opens a panel for a file to write, with `suggestedPath` filled in. `picked` gets a path that
    /// ends with the type's extension and may be replaced, or an empty one when the panel is
    /// cancelled.
    virtual void beginSavePanel(QWidget* window, const FileType& type, const QString& suggestedPath,
        std::function<void(const QString& path)> picked) = 0;
};

/// `path` with the extension of `type`, added when it is missing; a path that the desktop granted
/// to a confined program stays as it is.
QString withExtension(const QString& path, const FileType& type);

/// The desktop's own panels.
class DesktopFilePanels : public FilePanels {
public:
    /// The alerts must outlive the panels.
    explicit DesktopFilePanels(Alerts& alerts) : m_alerts(alerts) { }

    QString runModalOpenPanel(const FileType& type, const QString& folder) override;
    void beginOpenPanel(QWidget* window, const FileType& type,
        std::function<void(const QStringList& paths)> picked, const QString& folder = {}) override;
    void beginSavePanel(QWidget* window, const FileType& type, const QString& suggestedPath,
        std::function<void(const QString& path)> picked) override;

private:
    Alerts& m_alerts;
};

} // namespace tomely
