// The group table beside the list: which group is selected, following changes of the groups, and
// renaming one in place.

#pragma once

#include <QList>
#include <QObject>

namespace tomely {

class BookListDocument;
class GroupTableModel;
class GroupTableView;

class GroupSidebar : public QObject {
    Q_OBJECT

public:
    /// Table and document must outlive the side bar.
    GroupSidebar(GroupTableView& table, BookListDocument& document);

    /// The key of the selected group; 0 is the library.
    qint32 selectedGroupKey() const { return m_nSelectedGroupKey; }

    /// Reads the groups from the document.
    void populateGroups();

    /// Shows the groups again, with the selected one selected.
    void refreshGroupList();

    /// Selects the row of a group; an unknown key leaves the selection as it is.
    void selectGroup(qint32 groupKey);

    /// Follows added, renamed and removed groups: when the selected one is gone, the next one is
    /// selected, or the one above when it was the last. True when another group is selected now.
    bool groupsChanged();

    /// Lets the name of the selected group be typed, with its text selected; nothing happens for
    /// the library.
    void startNaming();

    /// Takes over a name that is being typed.
    void endGroupNameEditting();

Q_SIGNALS:
    /// The person selected another group.
    void groupSelected(qint32 groupKey);

private:
    struct Rename {
        QString groupKey;
        QString name;
    };

    void handleDeletedGroup();
    void bookGroupSelectionDidChange();
    void noteRename(const QString& groupKey, const QString& name);
    void takeOverNames();
    void renameGroup(const Rename& rename);

    GroupTableView& m_table;
    BookListDocument& m_document;
    GroupTableModel* m_model; // owned as a child
    QList<Rename> m_renames; // typed and not taken over yet
    qint32 m_nSelectedGroupKey = 0;
    bool m_bReloadingGroups = false;
};

} // namespace tomely
