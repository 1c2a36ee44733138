// The whole program as a person has it before them, with preferences and files of its own, and the
// hands that work in its windows. Widgets are found by their names.

#pragma once

#include "app/Application.h"
#include "document/BookListDocument.h"
#include "editor/BookEntryWindowController.h"
#include "listwindow/BookListWindowController.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/MessageBoxAlerts.h"
#include "tests/support/FakeFilePanels.h"
#include "tests/support/Files.h"

#include <QTemporaryDir>

#include <optional>

class QAction;
class QHeaderView;
class QLineEdit;
class QMainWindow;
class QMessageBox;
class QSplitter;
class QTableView;

namespace tomely {

/// A window of a collection and what is in it.
class CollectionWindow {
public:
    explicit CollectionWindow(Document& document);

    BookListDocument& document() const { return m_document; }

    BookListWindowController& controller() const { return m_controller; }

    QMainWindow& window() const;

    template <class Widget>
    Widget& find(const QString& name) const
    {
        return *window().findChild<Widget*>(name);
    }

    QTableView& books() const;
    QTableView& groups() const;
    QHeaderView& header() const;
    QString status() const;

    /// Texts of a column of the book list, from the top.
    QStringList cells(qint32 columnKey, int count) const;

    QStringList groupNames() const;
    QString selectedGroup() const;
    void clickGroup(const QString& name) const;

    /// Presses F2 on the selected group; the field in which its name is typed.
    QLineEdit* startRenaming() const;
    QLineEdit* nameField() const;

    /// Keys of the columns, from the left.
    QList<qint32> columnKeys() const;
    int columnOf(qint32 columnKey) const;
    void clickHeading(qint32 columnKey) const;
    void dragColumnEdge(qint32 columnKey, int distance) const;
    void dragHandle(QSplitter& splitter, int distance) const;

    /// Drags an edge to and fro until the window is settled, so that drags count; the document is
    /// unedited then.
    bool settle() const;

    void choose(const QString& action) const;

private:
    BookListDocument& m_document;
    BookListWindowController& m_controller;
};

/// A window of an editor and what is in it.
class EditorWindow {
public:
    explicit EditorWindow(BookEntryWindowController& controller) : m_controller(&controller) { }

    BookEntryWindowController& controller() const { return *m_controller; }

    QMainWindow& window() const;

    template <class Widget>
    Widget& find(const QString& name) const
    {
        return *window().findChild<Widget*>(name);
    }

    /// Clicks into a text field, marks what is there and types.
    void type(const QString& name, const QString& text) const;

    /// Chooses the item of a pop-up by its keyboard.
    void choose(const QString& name, const QString& item) const;

    void click(const QString& name) const;

private:
    BookEntryWindowController* m_controller;
};

class ProgramOnScreen {
public:
    /// Asks nobody when an ISBN is typed, unless it is told how.
    explicit ProgramOnScreen(const std::optional<FetchPolicy>& fetchPolicy = {});
    ~ProgramOnScreen();
    Q_DISABLE_COPY_MOVE(ProgramOnScreen)

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// A copy of the sample library in the folder; its path.
    QString classics(const QString& name = QStringLiteral("Classics.books")) const;

    /// A collection of a few books in the folder; its path.
    QString smallCollection(const QString& name) const;

    /// Opens a collection and waits until its window can be used.
    CollectionWindow open(const QString& path);

    /// Adds a book by the window's menu key; its editor, active.
    EditorWindow addBook(const CollectionWindow& window);

    /// Edits the book of that title by its row in the list; its editor, active.
    EditorWindow edit(const CollectionWindow& window, const QString& title);

    /// The editor that is active; waits for one.
    EditorWindow activeEditor(const CollectionWindow& window);

    /// The window of the only open collection.
    CollectionWindow onlyWindow();

    std::size_t openCount() { return application.documents().documents().size(); }

    /// The alert that is on screen, of any window; nullptr when there is none.
    static QMessageBox* alert();
    static QString alertText();

    /// Waits for an alert and clicks a button of it; false when none comes.
    static bool answer(int button);

    /// Does something that blocks in an alert until its button is clicked; the alert's text.
    template <class Act>
    static QString textOfModal(Act act, int button = 0)
    {
        QString text;
        const auto timer = answerModalLater(button, text);
        act();
        return text;
    }

private:
    static std::unique_ptr<QObject> answerModalLater(int button, QString& text);

    QTemporaryDir m_folder;

public:
    UserDefaults defaults{m_folder.filePath(QStringLiteral("Tomely.ini"))};
    MessageBoxAlerts alerts;
    FakeFilePanels panels;
    Application application;
};

} // namespace tomely
