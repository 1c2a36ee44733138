#include "listwindow/ToolbarItems.h"

#include "platform/widgets/SymbolicIcon.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr auto items = std::to_array<ToolbarItem>({
    {"addbook"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Add Book"), ToolbarItemKind::Command,
        CommandId::AddBook, {}},
    {"editbook"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Edit Book"), ToolbarItemKind::Command,
        CommandId::EditBook, {}},
    {"deletebook"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Delete Book"), ToolbarItemKind::Command,
        CommandId::DeleteBook, {}},
    {"removeFromGroup"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Remove"), ToolbarItemKind::Command,
        CommandId::RemoveFromGroup, {}},
    {"customizelist"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Columns"), ToolbarItemKind::Command,
        CommandId::CustomizeList, {}},
    {"addgroup"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Add Group"), ToolbarItemKind::Command,
        CommandId::AddGroup, {}},
    {"deletegroup"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Delete Group"), ToolbarItemKind::Command,
        CommandId::DeleteGroup, {}},
    {"search"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Author & Title"), ToolbarItemKind::Search, {},
        "search"_L1},
    {"print"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Print"), ToolbarItemKind::Command,
        CommandId::Print, {}},
    {"flexiblespace"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Flexible Space"),
        ToolbarItemKind::FlexibleSpace, {}, "flexiblespace"_L1},
    {"customizetoolbar"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Customise"),
        ToolbarItemKind::Command, CommandId::CustomizeToolbar, {}},
    {"space"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Space"), ToolbarItemKind::Space, {},
        "space"_L1},
    {"separator"_L1, QT_TRANSLATE_NOOP("ToolbarItems", "Separator"), ToolbarItemKind::Separator, {},
        "separator"_L1},
});

} // namespace

std::span<const ToolbarItem> allowedToolbarItems()
{
    return items;
}

const ToolbarItem* toolbarItem(QStringView identifier)
{
    const auto* const found = std::ranges::find_if(
        items, [identifier](const ToolbarItem& item) { return item.identifier == identifier; });
    return found == items.end() ? nullptr : found;
}

QString toolbarItemLabel(const ToolbarItem& item)
{
    return QCoreApplication::translate("ToolbarItems", item.label);
}

QIcon toolbarItemIcon(const ToolbarItem& item)
{
    const bool isCommand = item.kind == ToolbarItemKind::Command;
    return symbolicIcon(isCommand ? command(item.command).icon : item.icon);
}

QStringList defaultToolbarItems()
{
    return {u"addbook"_s, u"editbook"_s, u"deletebook"_s, u"removeFromGroup"_s, u"separator"_s,
        u"addgroup"_s, u"deletegroup"_s, u"flexiblespace"_s, u"customizelist"_s, u"separator"_s,
        u"search"_s};
}

QStringList validToolbarItems(const QStringList& identifiers)
{
    QStringList valid;
    for (const QString& identifier : identifiers) {
        const ToolbarItem* const item = toolbarItem(identifier);
        if (item && (item->isSpacer() || !valid.contains(identifier)))
            valid.append(identifier);
    }
    return valid;
}

} // namespace tomely
