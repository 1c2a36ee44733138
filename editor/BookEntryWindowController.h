// The editor of one book: shows a copy of a record, lets the person change it, and writes it back
// on save. What each part of the window does is its own file's affair: the form, the custom labels,
// the image wells. It must not outlive its document; its book may be gone before it.

#pragma once

#include "document/BookEditorWindow.h"
#include "editor/LookupServices.h"
#include "model/GroupMembership.h"
#include "platform/widgets/WindowController.h"

#include <QDate>
#include <QRect>

#include <functional>
#include <memory>

namespace Ui {
class BookEntryWindow;
}

namespace tomely {

class BookEntry;
class BookListDocument;
class BookLookupController;
class CompletingComboBox;
class CustomLabels;
class EntryForm;
class FilePanels;
class GroupManagerController;
class ImageWells;
class LookupWorkflow;
class SpellChecker;

/// What an editor needs from the program; everything must outlive it.
struct EditorServices {
    LookupServices lookup;
    FilePanels& panels;
    SpellChecker* spellChecker = nullptr; // may be missing
    std::function<QDate()> today = &QDate::currentDate; // in the person's calendar and time zone
};

class BookEntryWindowController : public WindowController, public BookEditorWindow {
    Q_OBJECT

public:
    /// An editor for a new book, filled in as the preferences say; at `frame` in screen coordinates
    /// unless that is empty. Not shown yet.
    static std::unique_ptr<BookEntryWindowController> initWithRect(
        QRect frame, BookListDocument& document, const EditorServices& services);

    /// An editor for a book of the document. Not shown yet.
    static std::unique_ptr<BookEntryWindowController> initWithEntry(
        const BookEntry& entry, BookListDocument& document, const EditorServices& services);

    ~BookEntryWindowController() override;

    QString getBookKey() const override { return m_strBookKey; }

    /// The ISBN as it was typed.
    QString getISBN() const;

    /// The person has finished with the ISBN: looks it up when it is another one than before.
    void isbnChanged();

    /// Lets the person tick the book's groups, in a sheet; they are written on save.
    void manageGroups();

    /// Asks for an ISBN to look up, in a sheet.
    void lookupBook();

    /// Writes the book into the document, adds it when it is not there, and closes the window,
    /// unless the sender is the controller itself. Nothing happens, and the answer is false, while
    /// Save is disabled or when the collection takes no book any more.
    bool saveEntry(const QObject* sender);

    /// Saves, and opens an editor for another new book in this one's place.
    void addMore();

    /// Closes the window; nothing is written.
    void cancelEntry();

    /// Save and Add More are possible when the title has more than white space.
    void textDidChange();

    /// The read switch is about listening for an audio book.
    void changedBookType();

    /// The first call gives a window without a frame its size and a place over the list.
    void showWindow() override;

    void updateColumnName() override;
    void closeEditor() override;

    // What the document asks of its windows.
    std::optional<UnsavedWork> unsavedWork() const override;
    bool keepWork() override;

    void dropWork() override { closeEditor(); }

    void endEditing() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QString windowTitle() const override;

    /// The book is written on save only, so the window never shows the mark for unsaved changes.
    void setDocumentEdited(bool) override { }

private:
    BookEntryWindowController(BookListDocument& document, EditorServices services);

    void init_common();
    void windowDidLoad();
    void place();
    QSize preferredSize() const;
    void fillNew();
    void fill(const BookEntry& entry);
    void presetUserDefaults();
    void selectFirstTab(bool isNew);
    void windowDidBecomeKey();
    void reloadCombos();
    void setComboSizes();

    UserDefaults& defaults() const { return m_services.lookup.defaults; }

    QList<std::pair<CompletingComboBox*, QStringList>> combos() const;
    GroupMembership groupsToStore(GroupMembership present) const;
    void setSaveEnabled(bool enabled);

    BookListDocument& m_document;
    EditorServices m_services;
    std::unique_ptr<Ui::BookEntryWindow> m_ui;
    std::unique_ptr<EntryForm> m_form;
    std::unique_ptr<CustomLabels> m_labels;
    std::unique_ptr<ImageWells> m_wells;
    std::unique_ptr<LookupWorkflow> m_lookup;
    QPointer<BookLookupController> m_bookLookupController; // owned by the window
    QPointer<GroupManagerController> m_groupManagerController; // owned by the window
    QString m_strBookKey; // null for a new book
    GroupMembership m_dSelectedGroups; // the editor's own copy
    GroupMembership m_openedGroups; // as they were when the editor opened
    bool m_isPlaced = false;
    bool m_isClosed = false;
};

} // namespace tomely
