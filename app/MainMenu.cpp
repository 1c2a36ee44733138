#include "app/MainMenu.h"

#include "app/Help.h"
#include "platform/Document.h"
#include "platform/widgets/DocumentController.h"

#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

struct Item {
    QLatin1StringView name; // object name
    QString text;
    QLatin1StringView icon; // of the desktop's theme
    QKeySequence::StandardKey keys = QKeySequence::UnknownKey;
};

/// The texts of this file for translators.
struct MainMenu {
    Q_DECLARE_TR_FUNCTIONS(MainMenu)
};

template <class Triggered>
QAction* addItem(QMenu& menu, const Item& item, Triggered triggered)
{
    QAction* const action = menu.addAction(QIcon::fromTheme(item.icon), item.text);
    action->setObjectName(item.name);
    if (item.keys != QKeySequence::UnknownKey)
        action->setShortcuts(shortcutsFor(item.keys));
    QObject::connect(action, &QAction::triggered, &menu, triggered);
    return action;
}

/// File names, and in front of names that are alike the folders that tell them apart.
QString recentText(const QString& path, const QStringList& all)
{
    const QString name = QFileInfo(path).completeBaseName();
    const auto alike = std::ranges::count_if(
        all, [&name](const QString& other) { return QFileInfo(other).completeBaseName() == name; });
    QString text = alike > 1 ? path : name;
    return text.replace(u'&', "&&"_L1);
}

void fillRecentMenu(QMenu& menu, DocumentController& documents)
{
    menu.clear();
    const QStringList paths = documents.recentDocuments();
    for (const QString& path : paths) {
        QAction* const action = menu.addAction(recentText(path, paths));
        action->setStatusTip(path);
        action->setEnabled(QFileInfo::exists(path));
        QObject::connect(action, &QAction::triggered, &menu,
            [&documents, path] { documents.openDocument(path); });
    }
    menu.addSeparator();
    QAction* const clear = menu.addAction(MainMenu::tr("&Clear Menu"));
    clear->setEnabled(!paths.isEmpty());
    QObject::connect(
        clear, &QAction::triggered, &menu, [&documents] { documents.clearRecentDocuments(); });
}

void addRecentMenu(QMenu& fileMenu, DocumentController& documents)
{
    QMenu* const recent = fileMenu.addMenu(MainMenu::tr("Open &Recent"));
    recent->setObjectName("recentMenu"_L1);
    // Filled when it is opened: files come and go, and other windows add to it.
    QObject::connect(recent, &QMenu::aboutToShow, recent,
        [recent, &documents] { fillRecentMenu(*recent, documents); });
}

} // namespace

void addFileMenu(QMainWindow& window, Document& document, DocumentController& documents,
    const FileMenuParts& parts)
{
    QMenu& menu = *window.menuBar()->addMenu(MainMenu::tr("&File"));
    menu.setObjectName("fileMenu"_L1);
    addItem(menu,
        {"newCollection"_L1, MainMenu::tr("&New Collection"), "document-new"_L1, QKeySequence::New},
        [&documents] { documents.newDocument(); });
    addItem(menu,
        {"openCollection"_L1, MainMenu::tr("&Open…"), "document-open"_L1, QKeySequence::Open},
        [&documents, &window] { documents.openWithPanel(&window); });
    addRecentMenu(menu, documents);
    menu.addSeparator();
    addItem(menu, {"save"_L1, MainMenu::tr("&Save"), "document-save"_L1, QKeySequence::Save},
        [&documents, &document] { documents.save(document); });
    addItem(menu,
        {"saveAs"_L1, MainMenu::tr("Save &As…"), "document-save-as"_L1, QKeySequence::SaveAs},
        [&documents, &document] { documents.saveAs(document); });
    QAction* const revert =
        addItem(menu, {"revert"_L1, MainMenu::tr("Re&vert to Saved"), "document-revert"_L1},
            [&documents, &document] { documents.revert(document); });
    QObject::connect(&menu, &QMenu::aboutToShow, revert,
        [revert, &document] { revert->setEnabled(!document.filePath().isEmpty()); });
    menu.addSeparator();
    parts.addWindowCommands(menu);
    menu.addSeparator();
    addItem(menu,
        {"preferences"_L1, MainMenu::tr("Pre&ferences…"), "preferences-system"_L1,
            QKeySequence::Preferences},
        parts.showPreferences)
        ->setMenuRole(QAction::PreferencesRole);
    menu.addSeparator();
    addItem(menu,
        {"closeWindow"_L1, MainMenu::tr("&Close"), "window-close"_L1, QKeySequence::Close},
        [&documents, &document] { documents.close(document); });
    addItem(menu, {"quit"_L1, MainMenu::tr("&Quit"), "application-exit"_L1, QKeySequence::Quit},
        [&documents] { quit(documents); })
        ->setMenuRole(QAction::QuitRole);
}

void addHelpMenu(QMainWindow& window)
{
    QMenu& menu = *window.menuBar()->addMenu(MainMenu::tr("&Help"));
    menu.setObjectName("helpMenu"_L1);
    addItem(menu,
        {"guide"_L1, MainMenu::tr("&Guide"), "help-contents"_L1, QKeySequence::HelpContents},
        [&window] { openGuide(&window); });
    addItem(menu, {"reportProblem"_L1, MainMenu::tr("&Report a Problem…"), "tools-report-bug"_L1},
        [&window] { reportProblem(&window); });
    menu.addSeparator();
    addItem(menu, {"about"_L1, MainMenu::tr("&About Tomely"), "help-about"_L1}, [&window] {
        showAbout(&window);
    })->setMenuRole(QAction::AboutRole);
}

QList<QKeySequence> shortcutsFor(QKeySequence::StandardKey command)
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(command);
    if (!keys.isEmpty())
        return keys;
    if (command == QKeySequence::SaveAs)
        return {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)};
    if (command == QKeySequence::Quit)
        return {QKeySequence(Qt::CTRL | Qt::Key_Q)};
    if (command == QKeySequence::Preferences)
        return {QKeySequence(Qt::CTRL | Qt::Key_Comma)};
    return {};
}

void quit(DocumentController& documents)
{
    documents.closeAll([](bool closed) {
        if (closed)
            QApplication::quit();
    });
}

} // namespace tomely
