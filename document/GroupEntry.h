// One group of a collection: a key and a name. Which books are in it is kept with each book.

#pragma once

#include <QString>

namespace tomely {

class Archiver;
class Unarchiver;

class GroupEntry {
public:
    /// The group's number as text; null until it has one.
    QString getKey() const { return m_strGroupKey; }

    void setKey(qint32 number);

    /// Takes a key text as a file holds it.
    void setKeyText(const QString& key) { m_strGroupKey = key; }

    QString getGroupName() const { return m_strGroupName; }

    void setGroupName(const QString& name) { m_strGroupName = name; }

    void encodeWithCoder(Archiver& archiver) const;

    /// Throws ArchiveError on damage.
    static GroupEntry initWithCoder(Unarchiver& unarchiver);

private:
    QString m_strGroupKey;
    QString m_strGroupName;
};

} // namespace tomely
