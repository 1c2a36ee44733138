#include "document/CollectionContents.h"

using namespace Qt::StringLiterals;

namespace tomely {

CollectionContents CollectionContents::makeNew()
{
    CollectionContents contents;
    contents.initGroupEntries();
    contents.initCustomFieldLabels();
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
    for (const auto& [bookKey, book] : books)
        book->keepGroupsIf([this](const QString& groupKey) { return groups.contains(groupKey); });
}

} // namespace tomely
