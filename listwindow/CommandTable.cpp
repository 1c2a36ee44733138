#include "listwindow/CommandTable.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const QList<Command>& table()
{
    static const QList<Command> commands = {
        {CommandId::AddBook, "addBook"_L1, QT_TRANSLATE_NOOP("Commands", "&Add Book…"),
            "addbook"_L1, {QKeySequence(Qt::CTRL | Qt::Key_B)}},
        {CommandId::EditBook, "editBook"_L1, QT_TRANSLATE_NOOP("Commands", "&Edit Book…"),
            "editbook"_L1, {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)},
            KeyScope::BookTable, EnabledWhen::BookSelected},
        {CommandId::DeleteBook, "deleteBook"_L1, QT_TRANSLATE_NOOP("Commands", "&Delete Book…"),
            "deletebook"_L1, {QKeySequence(QKeySequence::Delete)}, KeyScope::BookTable,
            EnabledWhen::BookSelected},
        {CommandId::RemoveFromGroup, "removeFromGroup"_L1,
            QT_TRANSLATE_NOOP("Commands", "&Remove from Group…"), "removefromgroup"_L1, {},
            KeyScope::Window, EnabledWhen::BookAndGroupSelected},
        {CommandId::ScaleAllImages, "scaleAllImages"_L1,
            QT_TRANSLATE_NOOP("Commands", "&Scale All Pictures…"), {}, {}},
        {CommandId::RemoveAllImages, "removeAllImages"_L1,
            QT_TRANSLATE_NOOP("Commands", "Remove All &Pictures…"), {}, {}},
        {CommandId::AddGroup, "addGroup"_L1, QT_TRANSLATE_NOOP("Commands", "&New Group"),
            "addgroup"_L1, {QKeySequence(Qt::CTRL | Qt::Key_G)}},
        {CommandId::RenameGroup, "renameGroup"_L1, QT_TRANSLATE_NOOP("Commands", "&Rename Group"),
            {}, {QKeySequence(Qt::Key_F2)}, KeyScope::Window, EnabledWhen::GroupSelected},
        {CommandId::DeleteGroup, "deleteGroup"_L1, QT_TRANSLATE_NOOP("Commands", "&Delete Group…"),
            "deletegroup"_L1, {}, KeyScope::Window, EnabledWhen::GroupSelected},
        {CommandId::CustomizeGroups, "customizeGroups"_L1,
            QT_TRANSLATE_NOOP("Commands", "&Manage Groups…"), {}, {}},
        {CommandId::CustomizeList, "customizeList"_L1, QT_TRANSLATE_NOOP("Commands", "&Columns…"),
            "columns"_L1, {}},
        {CommandId::CustomizeToolbar, "customizeToolbar"_L1,
            QT_TRANSLATE_NOOP("Commands", "Customise &Toolbar…"), "customize"_L1, {}},
        {CommandId::Find, "find"_L1, QT_TRANSLATE_NOOP("Commands", "&Find"), "search"_L1,
            {QKeySequence(QKeySequence::Find)}},
        {CommandId::ClearFilter, "clearFilter"_L1, QT_TRANSLATE_NOOP("Commands", "Clear &Filter"),
            {}, {}},
        {CommandId::ImportXML, "importXML"_L1, QT_TRANSLATE_NOOP("Commands", "&Import XML…"), {},
            {}},
        {CommandId::ExportXML, "exportXML"_L1, QT_TRANSLATE_NOOP("Commands", "Export &XML…"), {},
            {}},
        {CommandId::ExportCSV, "exportCSV"_L1, QT_TRANSLATE_NOOP("Commands", "&Export CSV…"), {},
            {}},
        {CommandId::PrintPreview, "printPreview"_L1,
            QT_TRANSLATE_NOOP("Commands", "Print Previe&w…"), {}, {}},
        {CommandId::Print, "print"_L1, QT_TRANSLATE_NOOP("Commands", "&Print…"), "print"_L1,
            {QKeySequence(QKeySequence::Print)}},
    };
    return commands;
}

} // namespace

std::span<const Command> commandTable()
{
    return table();
}

const Command& command(CommandId id)
{
    return table().at(static_cast<qsizetype>(id));
}

bool enableOption(const Command& command, const CommandContext& context)
{
    switch (command.enabledWhen) {
    case EnabledWhen::Always:
        return true;
    case EnabledWhen::BookSelected:
        return context.hasSelectedBook;
    case EnabledWhen::GroupSelected:
        return context.hasSelectedGroup;
    case EnabledWhen::BookAndGroupSelected:
        return context.hasSelectedBook && context.hasSelectedGroup;
    }
    return false;
}

} // namespace tomely
