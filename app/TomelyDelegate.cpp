#include "app/TomelyDelegate.h"

#include "app/CollectionFileType.h"
#include "model/CaseFolding.h"
#include "platform/Alerts.h"
#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/DocumentController.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tomely {

TomelyDelegate::TomelyDelegate(
    DocumentController& documents, UserDefaults& defaults, Alerts& alerts, FilePanels& panels)
    : m_documents(documents)
    , m_defaults(defaults)
    , m_alerts(alerts)
    , m_panels(panels)
{
}

void TomelyDelegate::applicationDidFinishLaunching()
{
    if (m_defaults.integerForKey(PreferenceKeys::PreferencesVersion) < preferencesVersion)
        m_defaults.setBool(PreferenceKeys::EnableAlternateSources, true);
    m_defaults.setInteger(PreferenceKeys::PreferencesVersion, preferencesVersion);
    m_defaults.synchronize();
}

bool TomelyDelegate::applicationShouldOpenUntitledFile()
{
    if (m_askedForUntitledFile)
        return false;
    m_askedForUntitledFile = true;
    return !tryToOpenDefaultDocument();
}

bool TomelyDelegate::tryToOpenDefaultDocument()
{
    const QByteArray bookmark = m_defaults.dataForKey(PreferenceKeys::BookmarkData);
    if (!bookmark.isNull())
        return tryToOpenDefaultDocumentWithBookmarkData(bookmark);
    const QString path = m_defaults.stringForKey(PreferenceKeys::DefaultFile);
    return !path.isEmpty() && tryToOpenDefaultDocumentWithBookmarkFileName(path);
}

bool TomelyDelegate::tryToOpenDefaultDocumentWithBookmarkData(const QByteArray& bookmark)
{
    const std::optional<QString> path = resolveBookmark(bookmark);
    if (!path)
        return false;
    return m_documents.documentForFile(*path) || m_documents.openDocument(*path);
}

bool TomelyDelegate::tryToOpenDefaultDocumentWithBookmarkFileName(const QString& path)
{
    m_alerts.runModal(messageAlert(QCoreApplication::translate("TomelyDelegate",
        "You will be prompted to select your default file.\n\nThis is only required once.")));
    const QString chosen =
        m_panels.runModalOpenPanel(collectionFileType(), QFileInfo(path).absolutePath());
    if (chosen.isEmpty())
        return false;
    const QByteArray bookmark = makeBookmark(chosen);
    const bool isSame = compareIgnoringCase(chosen, path) == 0;
    if (isSame
        || m_alerts.runModal(confirmationAlert(QCoreApplication::translate(
               "TomelyDelegate", "Change default file to selected file?")))
            == 0)
        storeDefaultFile(bookmark, chosen);
    // Also after "No": the file that was picked is opened this once.
    return tryToOpenDefaultDocumentWithBookmarkData(bookmark);
}

void TomelyDelegate::storeDefaultFile(const QByteArray& bookmark, const QString& path)
{
    m_defaults.setData(PreferenceKeys::BookmarkData, bookmark);
    m_defaults.setString(PreferenceKeys::DefaultFile, path);
    m_defaults.synchronize();
}

} // namespace tomely
