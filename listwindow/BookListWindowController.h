// The main window of a collection: builds it from its rooms (list engine, tables, columns, side
// bar, filter bar, commands, toolbar) and wires them. What each room does is its own file's affair.

#pragma once

#include "document/BookListWindow.h"
#include "listwindow/BookCommands.h"
#include "listwindow/CommandTable.h"
#include "listwindow/engine/ListEngine.h"
#include "listwindow/GroupCommands.h"
#include "platform/widgets/WindowController.h"

#include <QPointer>
#include <QTimer>

#include <memory>

class QLabel;
class QMenu;
class QMenuBar;
class QSplitter;

namespace Ui {
class BookListWindow;
}

namespace tomely {

class BookDrag;
class BookExchange;
class BookListDocument;
class BookPrinting;
class BookTableModel;
class BookTableView;
class ColumnLayout;
class CommandActions;
class CommandToolbar;
class CustomizeListController;
class EmptyList;
class FilterBar;
class GroupSidebar;
class HeaderMenu;
struct WindowPanes;

class BookListWindowController : public WindowController, public BookListWindow {
    Q_OBJECT

public:
    /// How long a new window settles before moves of columns and splitters count as the person's.
    static constexpr int startupTimerMilliseconds = 100;
    static constexpr int startupTimerTicks = 5;

    /// Builds the window and loads it, which leaves the document unchanged. The document must
    /// outlive the controller.
    BookListWindowController(BookListDocument& document, ListWindowServices services);
    ~BookListWindowController() override;

    // What the document asks of its window.
    void refresh() override;
    void setBooksChanged() override;
    void groupsChanged() override;
    void columnsSelectionChanged() override;
    void updateColumnName(const ColumnEntry& column) override;
    void initFilterDropDown() override;
    void updateCurrentColumnInfo() override;
    WindowLayout currentLayout() override;
    void addNewBook(QRect frame) override;
    void endGroupNameEditting() override;
    void printDocument() override;

    void endEditing() override { endGroupNameEditting(); }

    /// Adds the window's own commands to the menu File of the program.
    void addFileCommands(QMenu& fileMenu);

    /// Adds the menus of the window's commands, which are the window's own affair, between those of
    /// the program.
    void addCommandMenus(QMenuBar& menuBar);

    /// The first call restores the layout that is saved with the document.
    void showWindow() override;

    QSplitter* getImageSplitter() const;
    QSplitter* getListSplitter() const;

    const std::vector<BookEntry*>& getDisplayedBooks() const
    {
        return m_engine.getDisplayedBooks();
    }

    const std::vector<BookEntry*>& getAllBooks() const { return m_engine.getAllBooks(); }

    /// Which books are shown; a change shows with the next refresh().
    BookFilter& filter() { return m_engine.filter(); }

    /// "12 of 250 displayed"
    QString statusText() const;

private:
    void buildBookTable();
    void buildSidebar();
    void buildFileCommands();
    void buildToolbar();
    void windowDidLoad();
    void connectRooms();
    void connectCommands();
    void startupTimer();
    WindowPanes panes() const;
    void windowLayoutChanged();
    void didClickTableColumn(qint32 columnKey);
    void groupSelected(qint32 groupKey);
    void reloadTable();
    void bookListSelectionDidChange();
    void showStatus();
    void perform(CommandId id);
    bool takesCommands() const;
    void find();
    void clickedCustomizeList();
    void clickedCustomizeToolbar();
    void showBookMenu(QPoint place);
    void updateCommands();
    QStringList selectedBookKeys() const;

    BookListDocument& m_document;
    std::unique_ptr<Ui::BookListWindow> m_ui;
    ListWindowServices m_services;
    ListEngine m_engine;
    BookTableView* m_bookTable = nullptr; // of m_ui
    EmptyList* m_emptyList = nullptr; // in the list's place while no book is shown
    QLabel* m_idStatusText = nullptr;
    FilterBar* m_filterBar = nullptr; // of the toolbar
    CommandToolbar* m_toolbar = nullptr; // of the window
    std::unique_ptr<BookTableModel> m_bookModel;
    std::unique_ptr<ColumnLayout> m_columns;
    std::unique_ptr<HeaderMenu> m_headerMenu;
    std::unique_ptr<BookDrag> m_bookDrag;
    std::unique_ptr<GroupSidebar> m_sidebar;
    BookCommands m_commands;
    std::unique_ptr<GroupCommands> m_groupCommands;
    std::unique_ptr<BookExchange> m_exchange;
    std::unique_ptr<BookPrinting> m_printing;
    std::unique_ptr<CommandActions> m_actions;
    QPointer<CustomizeListController> m_customizeListController; // owned by the window
    QTimer m_startupTimer;
    int m_startupTimerCounter = 0;
    bool m_bShowWindowCalled = false;
    bool m_bDetectUIChanges = false;
    bool m_isReloading = false;
    quint64 m_shownStamp = 0; // of the book whose picture is shown
};

} // namespace tomely
