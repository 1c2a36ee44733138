// Makes the parts of the program and ties them together: documents with their windows and menus,
// the start window, the delegate, and other starts of the program that hand over their files.

#pragma once

#include "app/PreferencesController.h"
#include "app/StartWindow.h"
#include "app/TomelyDelegate.h"
#include "editor/SpellChecker.h"
#include "listwindow/ToolbarConfiguration.h"
#include "platform/DesktopRecents.h"
#include "platform/network/UrlFetch.h"
#include "platform/widgets/ContextMenuKey.h"
#include "platform/widgets/DocumentController.h"

#include <QObject>

class QSessionManager;

namespace tomely {

class BookListDocument;
class BookListWindow;
struct EditorServices;
struct ListWindowServices;

class Application : public QObject {
    Q_OBJECT

public:
    /// Everything must outlive the application. Look-ups keep to the fetch policy.
    Application(
        UserDefaults& defaults, Alerts& alerts, FilePanels& panels, FetchPolicy fetchPolicy = {});

    /// Shows the first windows: those files, or the default collection, or an untitled one. When no
    /// file can be opened the start window comes up.
    void start(const QStringList& files);

    /// Opens files for another start of the program; without files it comes forward.
    void openForOtherStart(const QStringList& files);

    /// From now on the desktop's list of recent files learns what is opened and saved, and what is
    /// cleared from the menu.
    void keepDesktopRecents();

    DocumentController& documents() { return m_documents; }

    StartWindow& startWindow() { return m_startWindow; }

    /// The window of the preferences, the only one of the program.
    PreferencesController& preferences();

private:
    std::unique_ptr<Document> makeDocument();
    BookListWindow* makeWindow(BookListDocument& document);
    ListWindowServices listWindowServices();
    EditorServices editorServices();
    void comeForward();
    void askBeforeLogout(QSessionManager& session);
    void showStartWindowWhenAlone();
    void noteRecents();

    UserDefaults& m_defaults;
    Alerts& m_alerts;
    FilePanels& m_panels;
    FetchPolicy m_fetchPolicy;
    ContextMenuKey m_contextMenuKey; // in all windows
    SpellChecker m_spellChecker; // for the notes of all editors
    ToolbarConfiguration m_toolbar; // of all main windows
    DocumentController m_documents;
    TomelyDelegate m_delegate;
    StartWindow m_startWindow;
    std::unique_ptr<PreferencesController> m_preferences;
    std::unique_ptr<DesktopRecents> m_desktopRecents; // once they are kept
};

} // namespace tomely
