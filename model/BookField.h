// The fields of a book as a table: what XML, CSV, columns, filter, order, cells and the command
// line walk, so that nobody else lists the sixty of them. A new field is a row here and its
// accessors.

#pragma once

#include "model/BookEntry.h"

#include <span>
#include <string_view>
#include <variant>

namespace tomely {

enum class FieldKind {
    Text,
    Month, // 0 none, 1 to 12
    Year, // free text
    Integer,
    Rating,
    Real,
    Flag,
    Type, // the number of a book type
};

/// How a field is reached: the stored value itself, where an absent text is null, and the accessors
/// with their rules (never an absent text, trimming).
template <class Value, class Argument>
struct FieldAccess {
    Value BookEntry::*stored;
    Value (BookEntry::*get)() const;
    void (BookEntry::*set)(Argument);
};

using TextAccess = FieldAccess<QString, const QString&>;
using IntegerAccess = FieldAccess<qint32, qint32>;
using RealAccess = FieldAccess<double, double>;
using FlagAccess = FieldAccess<bool, bool>;

struct BookField {
    /// In the order of the table.
    enum class Id : quint8 {
        Title,
        Author,
        Notes,
        Type,
        Rating,
        PricePaid,
        PricePaidFrom,
        Publisher,
        ISBN,
        Pages,
        EstValue,
        Location,
        LentTo,
        MonthPublished,
        YearPublished,
        MonthEstValue,
        YearEstValue,
        MonthLent,
        YearLent,
        MonthPurchased,
        YearPurchased,
        MonthFirstRead,
        YearFirstRead,
        MonthLastRead,
        YearLastRead,
        MonthCopyright,
        YearCopyright,
        CustomField1,
        CustomField2,
        CustomField3,
        CustomField4,
        CustomField5,
        CustomField6,
        CustomField7,
        CustomYear1,
        CustomMonth1,
        CustomYear2,
        CustomMonth2,
        CustomYear3,
        CustomMonth3,
        CustomSwitch1,
        CustomSwitch2,
        CustomSwitch3,
        CustomSwitch4,
        CustomSwitch5,
        CustomSwitch6,
        CustomSwitch7,
        CustomSwitch8,
        Own,
        Signed,
        FirstEdition,
        Read,
    };

    Id id;
    std::string_view name;
    /// The list column that shows the field. The month and the year of a date share one.
    int columnKey;
    FieldKind kind;
    std::variant<TextAccess, IntegerAccess, RealAccess, FlagAccess> access;

    /// The value as stored, a null text for an absent one.
    QString storedText(const BookEntry& book) const
    {
        return book.*std::get<TextAccess>(access).stored;
    }

    /// Stores a text without any rule, as it stands in a file.
    void storeText(BookEntry& book, const QString& value) const
    {
        book.*std::get<TextAccess>(access).stored = value;
    }

    QString text(const BookEntry& book) const { return (book.*std::get<TextAccess>(access).get)(); }

    qint32 integer(const BookEntry& book) const
    {
        return (book.*std::get<IntegerAccess>(access).get)();
    }

    double real(const BookEntry& book) const { return (book.*std::get<RealAccess>(access).get)(); }

    bool flag(const BookEntry& book) const { return (book.*std::get<FlagAccess>(access).get)(); }

    void setText(BookEntry& book, const QString& value) const
    {
        (book.*std::get<TextAccess>(access).set)(value);
    }

    void setInteger(BookEntry& book, qint32 value) const
    {
        (book.*std::get<IntegerAccess>(access).set)(value);
    }

    void setReal(BookEntry& book, double value) const
    {
        (book.*std::get<RealAccess>(access).set)(value);
    }

    void setFlag(BookEntry& book, bool value) const
    {
        (book.*std::get<FlagAccess>(access).set)(value);
    }
};

/// Every field but the key, the groups and the pictures.
std::span<const BookField> bookFields();

const BookField& bookField(BookField::Id id);

/// The field that a list column shows, or nullptr when no field has that column key. For a date
/// column this is its year; see monthField().
const BookField* fieldOfColumn(int columnKey);

/// The month that belongs to the date column `columnKey`, or nullptr for any other column.
const BookField* monthField(int columnKey);

/// True when the two books hold the same in every field, group and picture; keys are not compared.
bool equalContents(const BookEntry& left, const BookEntry& right);

} // namespace tomely
