// The groups that one book is in: group key text to an object text, which is the same key. A flat
// ordered list, since a book is in a handful of groups and a library holds many books.

#pragma once

#include <QString>

#include <vector>

namespace tomely {

class GroupMembership {
public:
    struct Entry {
        QString key; // group key text
        QString value; // what the file holds under it; this program writes the key again

        bool operator==(const Entry&) const = default;
    };

    /// Adds a group, mapped to itself. Adding it again changes nothing.
    void insert(const QString& key) { insert(key, key); }

    /// Adds a group with a value of its own, replacing the value that it had.
    void insert(const QString& key, const QString& value);

    /// All entries at once, in any order; of equal keys the last one counts.
    static GroupMembership fromEntries(std::vector<Entry> entries);

    /// Keeps only the groups for which `isKept` holds of the key text.
    template <class IsKept>
    void keepIf(IsKept isKept)
    {
        std::erase_if(m_entries, [&isKept](const Entry& entry) { return !isKept(entry.key); });
    }

    /// Takes a group out; false when it was not in.
    bool remove(QStringView key);

    bool contains(QStringView key) const;

    /// The same for a group's number, without making its text.
    bool contains(qint32 groupKey) const;

    bool isEmpty() const { return m_entries.empty(); }

    qsizetype size() const { return static_cast<qsizetype>(m_entries.size()); }

    /// The entries in ascending numeric order of their keys.
    std::vector<Entry>::const_iterator begin() const { return m_entries.begin(); }

    std::vector<Entry>::const_iterator end() const { return m_entries.end(); }

    bool operator==(const GroupMembership&) const = default;

private:
    std::vector<Entry> m_entries;
};

} // namespace tomely
