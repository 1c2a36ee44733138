// What the command "lookup" does once it has a network and preferences, so that tests can give it
// theirs.

#pragma once

#include "cli/Arguments.h"

#include <QString>

namespace tomely {

class Output;
class UrlFetch;
class UserDefaults;

/// How a book is printed: "name: value" lines, or one JSON object in which null is not known.
enum class BookFormat { Lines, Json };

/// The options of the command.
OptionGroup lookupOptions();

/// Asks the sources for the book and prints what they know. `typedISBN` is as a person wrote it.
/// Throws UsageError when there is no ISBN in it, CommandFailure when no source knows the book.
void printLookup(const QString& typedISBN, BookFormat format, const UserDefaults& defaults,
    UrlFetch& fetch, Output& output);

} // namespace tomely
