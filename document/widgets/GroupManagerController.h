// The sheet in which a person adds, renames and deletes the groups of a collection and, when an
// editor opened it, ticks those that its book is in. Of the groups nothing but new names
// reaches the document before OK; new names of groups that it has reach it at once and survive
// Cancel.

#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class GroupManager;
}

namespace tomely {

class BookListDocument;
class GroupManagerRows;
class GroupMembership;

class GroupManagerController : public QDialog {
    Q_OBJECT

public:
    /// Opens the sheet on a window, which owns it. `selectedGroups` takes the ticks on OK, before
    /// accepted() is told; nullptr for a sheet without ticks. Document and membership must outlive
    /// the window. The sheet destroys itself when it is closed.
    GroupManagerController(
        QWidget& parentWindow, BookListDocument& document, GroupMembership* selectedGroups);
    ~GroupManagerController() override;

    /// Adds a group without a name, whose typing begins; it goes again when it gets none.
    void addGroup();

    /// Deletes the selected group.
    void deleteGroup();

    /// Applies everything to the document and closes the sheet.
    void ok();

    /// Closes the sheet and drops everything but the names that were taken over.
    void cancel();

    /// The same: Escape and the title bar mean Cancel.
    void reject() override;

protected:
    bool event(QEvent* event) override;
    /// A click beside everything ends the typing of a name, too.
    void mousePressEvent(QMouseEvent* event) override;

private:
    void windowDidLoad();
    void adjustWindowSize();
    void storeWindowPosition();
    void noteEndOfEditing(int row);
    void textDidEndEditing();
    void forceOutOfEditMode();
    void selectARow(int row);
    void enableButtons();
    void windowDidBecomeKey();

    BookListDocument& m_BookListDocument;
    GroupMembership* m_dSelectedGroups_Original; // nullptr without one
    std::unique_ptr<Ui::GroupManager> m_ui;
    GroupManagerRows* m_rows; // owned as a child
    QStringList m_aDeletedGroups; // keys
    QString m_editedGroup; // the key of the group whose typing is over but not dealt with
};

} // namespace tomely
