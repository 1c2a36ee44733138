// What the list can do with a column: which field it shows, and of what kind that is. Filter, order
// and cells ask here, so that they agree on what a column key means.

#pragma once

#include "model/BookField.h"

namespace tomely {

/// Keys that the list knows beside the fields' own.
namespace ColumnKey {
inline constexpr qint32 Groups = -3; // filter only
inline constexpr qint32 Images = -2; // filter only
inline constexpr qint32 AuthorAndTitle = -1; // filter only
inline constexpr qint32 Title = 0;
inline constexpr qint32 Author = 2;
inline constexpr qint32 RowNumber = 4; // cells only
inline constexpr qint32 EstValueDate = 78;
inline constexpr qint32 Last = 84;
} // namespace ColumnKey

enum class ColumnKind {
    None, // no field has that key
    Text,
    Date, // a month and a year
    Integer,
    Real,
    Rating,
    Flag,
    Type,
};

/// The kind of the field that the column `key` shows.
ColumnKind columnKind(qint32 key);

/// A month (0 for none) and a year read leniently from its text (0 for none).
struct MonthYear {
    qint32 month = 0;
    qint32 year = 0;
};

/// The date that the date column `key` shows of a book.
MonthYear dateOfColumn(qint32 key, const BookEntry& book);

} // namespace tomely
