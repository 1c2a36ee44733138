#include "listwindow/engine/ColumnKind.h"

#include "platform/LenientNumbers.h"

namespace tomely {

ColumnKind columnKind(qint32 key)
{
    const BookField* const field = fieldOfColumn(key);
    if (!field)
        return ColumnKind::None;
    switch (field->kind) {
    case FieldKind::Text:
        return ColumnKind::Text;
    case FieldKind::Month:
    case FieldKind::Year:
        return ColumnKind::Date;
    case FieldKind::Integer:
        return ColumnKind::Integer;
    case FieldKind::Rating:
        return ColumnKind::Rating;
    case FieldKind::Real:
        return ColumnKind::Real;
    case FieldKind::Flag:
        return ColumnKind::Flag;
    case FieldKind::Type:
        return ColumnKind::Type;
    }
    return ColumnKind::None;
}

MonthYear dateOfColumn(qint32 key, const BookEntry& book)
{
    return {monthField(key)->integer(book), leadingInt(fieldOfColumn(key)->text(book))};
}

} // namespace tomely
