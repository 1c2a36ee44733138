// The window of the preferences of the whole program. It holds what the person has set until that
// is confirmed; whoever needs a preference reads it from the store at that moment, so nobody has to
// be told.

#pragma once

#include <QByteArray>
#include <QDialog>
#include <QString>

#include <memory>

class QLineEdit;

namespace Ui {
class Preferences;
}

namespace tomely {

class FilePanels;
class UserDefaults;

class PreferencesController : public QDialog {
    Q_OBJECT

public:
    /// Everything must outlive the window.
    PreferencesController(UserDefaults& defaults, FilePanels& panels);
    ~PreferencesController() override;

    /// Shows the window in the middle of the screen, with the stored preferences. A window that is
    /// shown already comes forward, with what was set in it.
    void showWindow();

    /// Shows what is stored.
    void loadSettings();

    /// Stores what is shown, right or wrong, and writes the file. False when the file could not be
    /// written: then what is shown counts until the program ends, and is written later if it can
    /// be.
    bool saveSettings();

    /// Stores what is shown and closes. As long as a host was typed that is none, nothing happens
    /// but that its field gets the focus; when the file cannot be written the window stays and says
    /// so.
    void OK();
    /// The same, but the window stays.
    void Apply();
    /// Closes the window; nothing is stored.
    void Cancel();

    /// Asks for the default collection, which counts once it is saved.
    void selectDefaultFile();
    /// Follows the check box of the default collection: without the tick there is none.
    void toggleFileSelected();
    void displayFileName(const QString& name);

Q_SIGNALS:
    /// The person pressed the keys that end the program.
    void quitRequested();

private:
    void connectControls();
    void setUpNotes();
    void fitToScreen();
    QSize wholeSize() const;

    /// What the fields of hosts and the line below them say about hosts that are none.
    void checkHosts();
    QLineEdit* firstWrongHost() const;

    /// False when something keeps the window open.
    bool trySaving();

    UserDefaults& m_defaults;
    FilePanels& m_panels;
    std::unique_ptr<Ui::Preferences> m_ui;

    // The default collection as it is to be saved: a reference, null without one, and its path.
    QByteArray m_bookmarkData;
    QString m_bookmarkFileName;
};

} // namespace tomely
