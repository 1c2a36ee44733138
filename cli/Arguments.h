// What stands behind a command's name, taken apart into options with their values and operands.
// Which options there are it is told; what they mean it does not know.

#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <span>

namespace tomely {

/// An option of a command.
struct Option {
    QLatin1StringView name; // with its dashes: "--group"
    QLatin1StringView valueName; // "KEY"; empty when the option takes no value
    QLatin1StringView meaning; // for the help
};

/// Options that belong together; several commands may share them.
struct OptionGroup {
    QLatin1StringView title;
    std::span<const Option> options;
};

struct Arguments {
    /// What every command understands instead of doing its work.
    enum class Request { None, Help, Version };

    Request request = Request::None;
    QStringList operands;
    std::map<QString, QString> values; // by the option's name with its dashes

    /// Nothing when the option was not given; an empty text when its value is empty, or when it
    /// takes none.
    std::optional<QString> value(QLatin1StringView option) const;
};

/// Both "--option value" and "--option=value" give a value, which may begin with a dash; "--" ends
/// the options. A request for help or the version counts whatever else is wrong, and the first of
/// them wins. Throws UsageError for an option that is unknown, repeated, without its value or with
/// one that it does not take.
Arguments parseArguments(const QStringList& texts, std::span<const OptionGroup> known);

} // namespace tomely
