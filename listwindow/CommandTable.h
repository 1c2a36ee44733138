// The commands of the main window as a table: what they are called, which keys they have and when
// they can be given. Menus and toolbar are built from it; what a command does is not its business.

#pragma once

#include <QKeySequence>
#include <QLatin1StringView>
#include <QList>

#include <span>

namespace tomely {

enum class CommandId {
    AddBook,
    EditBook,
    DeleteBook,
    RemoveFromGroup,
    ScaleAllImages,
    RemoveAllImages,
    AddGroup,
    RenameGroup,
    DeleteGroup,
    CustomizeGroups,
    CustomizeList,
    CustomizeToolbar,
    Find,
    ClearFilter,
    ImportXML,
    ExportXML,
    ExportCSV,
    PrintPreview,
    Print,
};

/// What a command needs before it can be given. A group is one other than the library.
enum class EnabledWhen { Always, BookSelected, GroupSelected, BookAndGroupSelected };

/// Where a command's keys mean it.
enum class KeyScope {
    Window,
    BookTable, // Return and Delete mean something else where a text is typed
};

struct Command {
    CommandId id = CommandId::AddBook;
    QLatin1StringView name; // of its action
    const char* text = ""; // in menus, untranslated
    QLatin1StringView icon; // of resources/icons; may be empty
    QList<QKeySequence> keys;
    KeyScope keyScope = KeyScope::Window;
    EnabledWhen enabledWhen = EnabledWhen::Always;
};

/// In the order of the enumeration.
std::span<const Command> commandTable();

const Command& command(CommandId id);

/// What is selected in the window, as far as commands depend on it.
struct CommandContext {
    bool hasSelectedBook = false;
    bool hasSelectedGroup = false; // other than the library
};

bool enableOption(const Command& command, const CommandContext& context);

} // namespace tomely
