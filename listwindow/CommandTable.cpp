#include "listwindow/CommandTable.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const std::array<Command, 5>& table()
{
    static const std::array<Command, 5> commands = {{
        {CommandId::AddBook, "addBook"_L1, QT_TRANSLATE_NOOP("Commands", "&Add Book…"),
            "list-add"_L1, {QKeySequence(Qt::CTRL | Qt::Key_B)}},
        {CommandId::EditBook, "editBook"_L1, QT_TRANSLATE_NOOP("Commands", "&Edit Book…"),
            "document-edit"_L1, {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)},
            KeyScope::BookTable, EnabledWhen::BookSelected},
        {CommandId::DeleteBook, "deleteBook"_L1, QT_TRANSLATE_NOOP("Commands", "&Delete Book…"),
            "edit-delete"_L1, {QKeySequence(QKeySequence::Delete)}, KeyScope::BookTable,
            EnabledWhen::BookSelected},
        {CommandId::ScaleAllImages, "scaleAllImages"_L1,
            QT_TRANSLATE_NOOP("Commands", "&Scale All Pictures…"), {}, {}},
        {CommandId::RemoveAllImages, "removeAllImages"_L1,
            QT_TRANSLATE_NOOP("Commands", "&Remove All Pictures…"), {}, {}},
    }};
    return commands;
}

} // namespace

std::span<const Command> commandTable()
{
    return table();
}

const Command& command(CommandId id)
{
    return table().at(static_cast<std::size_t>(id));
}

bool enableOption(const Command& command, const CommandContext& context)
{
    switch (command.enabledWhen) {
    case EnabledWhen::Always:
        return true;
    case EnabledWhen::BookSelected:
        return context.hasSelectedBook;
    }
    return false;
}

} // namespace tomely
