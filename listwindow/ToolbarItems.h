// What a toolbar can hold, as a table: each item has an identifier that is stored, and either a
// command, the place of the search, or room between others. How a toolbar shows its items is not
// its business.

#pragma once

#include "listwindow/CommandTable.h"

#include <QIcon>
#include <QLatin1StringView>
#include <QStringList>

#include <span>

namespace tomely {

enum class ToolbarItemKind { Command, Search, Separator, Space, FlexibleSpace };

struct ToolbarItem {
    QLatin1StringView identifier;
    const char* label = ""; // untranslated; in the toolbar and in the choice of items
    ToolbarItemKind kind = ToolbarItemKind::Command;
    CommandId command = CommandId::AddBook; // of the kind Command only
    QLatin1StringView icon; // of resources/icons; a command has its own

    /// Separators and spaces, of which a toolbar may hold any number.
    bool isSpacer() const
    {
        return kind != ToolbarItemKind::Command && kind != ToolbarItemKind::Search;
    }
};

/// All items, in the order in which a person chooses from them.
std::span<const ToolbarItem> allowedToolbarItems();

/// Nothing for an unknown identifier.
const ToolbarItem* toolbarItem(QStringView identifier);

QString toolbarItemLabel(const ToolbarItem& item);
QIcon toolbarItemIcon(const ToolbarItem& item);

/// Identifiers of a toolbar that nobody changed.
QStringList defaultToolbarItems();

/// The identifiers that a toolbar can show: unknown ones are dropped, and all but the first of an
/// item that is no spacer.
QStringList validToolbarItems(const QStringList& identifiers);

} // namespace tomely
