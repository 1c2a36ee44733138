#include "model/GroupMembership.h"

#include "model/KeyText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tomely {

namespace {

template <class Entries>
auto lowerBound(Entries& entries, QStringView key)
{
    return std::lower_bound(entries.begin(), entries.end(), key,
        [](const GroupMembership::Entry& entry, QStringView wanted) {
            return KeyOrder()(entry.key, wanted);
        });
}

} // namespace

void GroupMembership::insert(const QString& key, const QString& value)
{
    const auto place = lowerBound(m_entries, key);
    if (place != m_entries.end() && place->key == key)
        place->value = value;
    else
        m_entries.insert(place, {key, value});
}

GroupMembership GroupMembership::fromEntries(std::vector<Entry> entries)
{
    const auto before = [](const Entry& left, const Entry& right) {
        return KeyOrder()(left.key, right.key);
    };
    std::ranges::stable_sort(entries, before);
    GroupMembership groups;
    for (Entry& entry : entries) {
        if (!groups.m_entries.empty() && groups.m_entries.back().key == entry.key)
            groups.m_entries.back() = std::move(entry);
        else
            groups.m_entries.push_back(std::move(entry));
    }
    return groups;
}

bool GroupMembership::remove(QStringView key)
{
    const auto place = lowerBound(m_entries, key);
    if (place == m_entries.end() || place->key != key)
        return false;
    m_entries.erase(place);
    return true;
}

bool GroupMembership::contains(QStringView key) const
{
    const auto place = lowerBound(m_entries, key);
    return place != m_entries.end() && place->key == key;
}

bool GroupMembership::contains(qint32 groupKey) const
{
    if (m_entries.empty())
        return false;
    std::array<char, 12> digits{}; // "-2147483648" and a spare
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), groupKey).ptr;
    const QLatin1StringView key(digits.data(), end);
    return std::any_of(
        m_entries.begin(), m_entries.end(), [key](const Entry& entry) { return entry.key == key; });
}

} // namespace tomely
