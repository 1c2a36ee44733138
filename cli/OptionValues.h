// Values of options as numbers and words. A value that an option cannot take is a usage error.

#pragma once

#include "cli/Arguments.h"
#include "cli/Failures.h"

#include <algorithm>
#include <optional>
#include <span>

namespace tomely {

UsageError cannotTake(QLatin1StringView option, const QString& value);

/// Nothing when the option was not given. Throws UsageError for what is no whole number of 32 bits.
std::optional<qint32> integerOption(const Arguments& arguments, QLatin1StringView option);

/// The whole number that `value` is. Throws UsageError naming `option`.
qint32 integerValue(QLatin1StringView option, const QString& value);

/// True for the keys of the catalogue's columns.
bool isCatalogueKey(qint32 key);

/// One of the words that an option takes.
template <class Value>
struct Choice {
    QLatin1StringView word;
    Value value;
};

/// Nothing when the option was not given. Throws UsageError for a word that is none of `choices`.
template <class Value>
std::optional<Value> choiceOption(
    const Arguments& arguments, QLatin1StringView option, std::span<const Choice<Value>> choices)
{
    const std::optional<QString> word = arguments.value(option);
    if (!word)
        return std::nullopt;
    const auto found = std::ranges::find(choices, *word, &Choice<Value>::word);
    if (found == choices.end())
        throw cannotTake(option, *word);
    return found->value;
}

} // namespace tomely
