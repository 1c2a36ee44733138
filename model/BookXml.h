// A book as its element of the XML interchange file: which element carries which field, in what
// order and how. Pictures and groups are not part of it. It knows nothing of the file around it.

#pragma once

#include "model/BookField.h"

#include <string>

namespace tomely {

struct BookElement {
    enum class Value {
        Text, // written unless empty
        Decimal, // four digits behind the point, written unless zero
        Integer, // written unless zero
        Date, // month and year, written unless both are empty
        Flag, // "1" or "0", always written
        Switch, // "1", written when set
        Type, // the text of the book type, written unless it is empty
    };

    std::u16string_view name; // all ASCII
    Value value{};
    BookField::Id field{}; // of a date, its month
};

/// In the order in which they are written.
std::span<const BookElement> bookElements();

/// Appends the book's element with its indentation and line ends. Texts are escaped; years are not,
/// so one with an ampersand makes a file that cannot be read: files have always been written so.
void appendBookXml(const BookEntry& book, std::u16string& xml);

} // namespace tomely
