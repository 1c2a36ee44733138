#include "document/CollectionContents.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace tomely {

CollectionContents CollectionContents::makeNew()
{
    CollectionContents contents;
    contents.initGroupEntries();
    contents.labels = defaultCustomFieldLabels();
    initListColumns(contents.columns, contents.labels);
    return contents;
}

void CollectionContents::initGroupEntries()
{
    groups = {};
    lastGroupKey = 0;
    for (const QString& name : {u"Fiction"_s, u"Non Fiction"_s}) {
        GroupEntry group;
        group.setKey(++lastGroupKey);
        group.setGroupName(name);
        groups.insert(group);
    }
    sortField = 0;
}

void CollectionContents::removeNonExistentGroup()
{
    for (const auto& [bookKey, book] : books) {
        QStringList gone;
        for (const GroupMembership::Entry& entry : book->getSelectedGroups()) {
            if (!groups.contains(entry.key))
                gone.append(entry.key);
        }
        for (const QString& groupKey : gone)
            book->removeFromGroup(groupKey);
    }
}

} // namespace tomely
