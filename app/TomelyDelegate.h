// Decides what a person sees at start: upgrades the stored preferences, then opens the default
// collection, or else an untitled one.

#pragma once

#include <QByteArray>
#include <QString>

namespace tomely {

class Alerts;
class DocumentController;
class FilePanels;
class UserDefaults;

class TomelyDelegate {
public:
    /// The layout of the preferences that this program writes.
    static constexpr int preferencesVersion = 3;

    /// Everything must outlive the delegate.
    TomelyDelegate(
        DocumentController& documents, UserDefaults& defaults, Alerts& alerts, FilePanels& panels);

    /// Upgrades the preferences of earlier versions.
    void applicationDidFinishLaunching();

    /// Asked once at start: opens the default collection, and answers whether an untitled one is
    /// wanted instead. Asked again, it answers false: coming forward never makes a collection.
    bool applicationShouldOpenUntitledFile();

    /// The program stays when the last window closes.
    bool applicationShouldTerminateAfterLastWindowClosed() const { return false; }

    /// True when the default collection is open now.
    bool tryToOpenDefaultDocument();
    bool tryToOpenDefaultDocumentWithBookmarkData(const QByteArray& bookmark);

    /// Older preferences hold only the path of the default collection: the person picks the file
    /// once more, and it is opened and remembered by a reference.
    bool tryToOpenDefaultDocumentWithBookmarkFileName(const QString& path);

private:
    void storeDefaultFile(const QByteArray& bookmark, const QString& path);

    DocumentController& m_documents;
    UserDefaults& m_defaults;
    Alerts& m_alerts;
    FilePanels& m_panels;
    bool m_askedForUntitledFile = false;
};

} // namespace tomely
