// The rows of the group manager: its own list of groups, and the ticks that say which of them the
// edited book is in. A group that the document has is renamed in the document at once; everything
// else reaches it only when the dialog is confirmed.

#pragma once

#include "document/GroupEntry.h"
#include "document/widgets/GroupNameTable.h"
#include "model/GroupMembership.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QStringList>

#include <vector>

namespace tomely {

class GroupDictionary;

class GroupManagerRows : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        CheckColumn = GroupNameTable::FirstColumn,
        NameColumn = GroupNameTable::NameColumn
    };

    /// The groups, which must outlive the rows, by name. Without a membership there is nothing to
    /// tick.
    GroupManagerRows(
        GroupDictionary& groups, const GroupMembership* selectedGroups, QObject* parent = nullptr);

    /// The key of the group in a row; null for a row out of range.
    QString keyOfRow(int row) const;

    /// Empty for a row out of range.
    QString nameOfRow(int row) const;

    /// -1 when there is no such row.
    int rowOfKey(const QString& key) const;

    /// Adds a group without a name at the end.
    void append(const GroupEntry& group);

    void remove(int row);

    void sortByName();

    /// Ticks the group in a row, or takes its tick away.
    void checkboxChanged(int row);

    /// The groups that are ticked.
    const GroupMembership& selectedGroups() const { return m_dSelectedGroups; }

    /// Makes these rows the groups of the document. Groups that were added elsewhere since the rows
    /// were made stay, unless they are among the deleted ones.
    void storeGroups(const QStringList& deletedGroups);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// The tick in a row has come or gone.
    void ticked(int row);

private:
    QString nameOf(const GroupEntry& row) const;
    void setGroupName(int row, const QString& name);

    GroupDictionary& m_groups;
    // By their keys these are the document's own groups; a record there may go at any time, when a
    // group is deleted in another window.
    std::vector<GroupEntry> m_aGroups;
    QSet<QString> m_knownKeys; // of the groups that there were at first
    GroupMembership m_dSelectedGroups;
    bool m_hasMembership = false;
};

} // namespace tomely
