// The rows of the group table: "Library" first, then the document's groups by name, as they were
// when they were last populated.

#pragma once

#include "document/widgets/GroupNameTable.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <vector>

namespace tomely {

class GroupDictionary;

class GroupTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        IconColumn = GroupNameTable::FirstColumn,
        NameColumn = GroupNameTable::NameColumn
    };

    /// The key text of a row's group; null for the library.
    static constexpr int KeyRole = Qt::UserRole;

    static constexpr int libraryRow = 0;

    /// The groups must outlive the model.
    explicit GroupTableModel(const GroupDictionary& groups, QObject* parent = nullptr);

    /// Rebuilds the rows from the document.
    void populateGroups();

    /// The number of the group in a row; 0 for the library.
    qint32 groupKeyOfRow(int row) const;

    /// The key text of the group in a row; null for the library.
    QString groupKeyTextOfRow(int row) const;

    /// The row of a group, or -1 when there is none.
    int rowOfGroupKey(qint32 groupKey) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Asks for a rename; the row takes the new name when the groups are populated again.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// A new name was typed for the group.
    void renameRequested(const QString& groupKey, const QString& name);

private:
    struct Row {
        QString key; // null for the library
        QString name;
    };

    QString nameOf(const Row& row) const;

    const GroupDictionary& m_groups;
    std::vector<Row> m_rows; // the library, then m_aSortedGroups: the groups by name
    QIcon m_libraryIcon;
    QIcon m_groupIcon;
};

} // namespace tomely
