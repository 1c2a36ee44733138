#include "document/GroupDictionary.h"

#include "model/CaseFolding.h"

#include <algorithm>

namespace tomely {

const GroupEntry* GroupDictionary::find(QStringView key) const
{
    const auto place = m_groups.find(key);
    return place == m_groups.end() ? nullptr : &place->second;
}

GroupEntry* GroupDictionary::find(QStringView key)
{
    const auto place = m_groups.find(key);
    return place == m_groups.end() ? nullptr : &place->second;
}

std::vector<const GroupEntry*> GroupDictionary::byName() const
{
    std::vector<const GroupEntry*> groups;
    groups.reserve(m_groups.size());
    for (const auto& [key, group] : m_groups)
        groups.push_back(&group);
    // Stable, so that equal names stay in the order of their keys.
    std::ranges::stable_sort(groups, [](const GroupEntry* left, const GroupEntry* right) {
        return lessIgnoringCase(left->getGroupName(), right->getGroupName());
    });
    return groups;
}

} // namespace tomely
