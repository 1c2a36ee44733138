// The groups of a collection by key. Whoever walks them for people gets them by name, as the side
// bar shows them; the file has them in the order of their keys.

#pragma once

#include "document/GroupEntry.h"
#include "model/KeyText.h"

#include <vector>

namespace tomely {

class GroupDictionary {
public:
    /// Stores a group under its key, replacing the one that has it.
    void insert(const GroupEntry& group) { m_groups.insert_or_assign(group.getKey(), group); }

    /// False when there is no such group.
    bool remove(const QString& key) { return m_groups.erase(key) > 0; }

    /// nullptr when there is no such group.
    const GroupEntry* find(QStringView key) const;
    GroupEntry* find(QStringView key);

    bool contains(QStringView key) const { return m_groups.find(key) != m_groups.end(); }

    qsizetype size() const { return static_cast<qsizetype>(m_groups.size()); }

    bool isEmpty() const { return m_groups.empty(); }

    /// By name, ignoring case; equal names in the order of their keys. The pointers are good until
    /// a group is added or removed.
    std::vector<const GroupEntry*> byName() const;

    /// In ascending numeric order of the keys.
    const KeyDictionary<GroupEntry>& byKey() const { return m_groups; }

private:
    KeyDictionary<GroupEntry> m_groups;
};

} // namespace tomely
