#include "listwindow/ToolbarConfiguration.h"

#include "listwindow/ToolbarItems.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr std::array displayNames = {"iconAndText"_L1, "iconOnly"_L1, "textOnly"_L1};

} // namespace

ToolbarConfiguration::ToolbarConfiguration(UserDefaults& defaults) : m_defaults(defaults) { }

QStringList ToolbarConfiguration::items() const
{
    const QStringList stored = m_defaults.stringListForKey(PreferenceKeys::ToolbarItems);
    const QStringList valid = validToolbarItems(stored);
    const bool isEmptyByChoice =
        stored.isEmpty() && m_defaults.contains(PreferenceKeys::ToolbarItems);
    return valid.isEmpty() && !isEmptyByChoice ? defaultToolbarItems() : valid;
}

void ToolbarConfiguration::setItems(const QStringList& identifiers)
{
    const QStringList valid = validToolbarItems(identifiers);
    if (valid == items())
        return;
    m_defaults.setStringList(PreferenceKeys::ToolbarItems, valid);
    Q_EMIT changed();
}

void ToolbarConfiguration::restoreDefaultItems()
{
    const bool isOther = items() != defaultToolbarItems();
    m_defaults.remove(PreferenceKeys::ToolbarItems);
    if (isOther)
        Q_EMIT changed();
}

ToolbarDisplay ToolbarConfiguration::display() const
{
    const QString stored = m_defaults.stringForKey(PreferenceKeys::ToolbarDisplay);
    const auto* const name = std::ranges::find(displayNames, stored);
    return name == displayNames.end()
        ? ToolbarDisplay::IconAndText
        : static_cast<ToolbarDisplay>(std::distance(displayNames.begin(), name));
}

void ToolbarConfiguration::setDisplay(ToolbarDisplay display)
{
    if (display == this->display())
        return;
    m_defaults.setString(
        PreferenceKeys::ToolbarDisplay, displayNames.at(static_cast<std::size_t>(display)));
    Q_EMIT changed();
}

} // namespace tomely
