// Names of a collection's columns, fields, types and months as a person reads them, in the person's
// language. What is stored, compared and exported stays as the collection has it, in English.

#pragma once

#include <QString>

namespace tomely {

class ColumnEntry;

/// The heading of a column. What a person called a custom field stays; its default name does not.
QString displayName(const ColumnEntry& column);

/// The longer name of a column, where columns are chosen.
QString displaySelectionName(const ColumnEntry& column);

/// The label of the custom field under that column key.
QString displayLabel(qint32 columnKey, const QString& label);

/// The text of a book's type; empty where the type has none.
QString displayType(qint32 type);

/// "January" to "December" for 1 to 12, else empty.
QString displayMonth(qint32 month);

/// Month and year of a date: "June, 2001", "June", "2001" or nothing. A month below 1 is none; one
/// above 12 has no name.
QString displayDate(qint32 month, const QString& year);

} // namespace tomely
