#include "model/BookField.h"

#include <algorithm>
#include <array>
#include <bit>

namespace tomely {

// A friend of the record, so that rows can point at what is stored.
struct BookFieldTable {
    using Id = BookField::Id;

    // In the order in which the command line dumps a book.
    static constexpr std::array rows = std::to_array<BookField>({
        {Id::Title, "title", 0, FieldKind::Text,
            TextAccess{&BookEntry::m_strTitle, &BookEntry::getTitle, &BookEntry::setTitle}},
        {Id::Author, "author", 2, FieldKind::Text,
            TextAccess{&BookEntry::m_strAuthor, &BookEntry::getAuthor, &BookEntry::setAuthor}},
        {Id::Notes, "notes", 40, FieldKind::Text,
            TextAccess{&BookEntry::m_strNotes, &BookEntry::getNotes, &BookEntry::setNotes}},
        {Id::Type, "type", 84, FieldKind::Type,
            IntegerAccess{&BookEntry::m_iType, &BookEntry::getType, &BookEntry::setType}},
        {Id::Rating, "rating", 6, FieldKind::Rating,
            IntegerAccess{&BookEntry::m_iRating, &BookEntry::getRating, &BookEntry::setRating}},
        {Id::PricePaid, "pricePaid", 30, FieldKind::Real,
            RealAccess{
                &BookEntry::m_dblPricePaid, &BookEntry::getPricePaid, &BookEntry::setPricePaid}},
        {Id::PricePaidFrom, "pricePaidFrom", 82, FieldKind::Text,
            TextAccess{&BookEntry::m_strPricePaidFrom, &BookEntry::getPricePaidFrom,
                &BookEntry::setPricePaidFrom}},
        {Id::Publisher, "publisher", 26, FieldKind::Text,
            TextAccess{
                &BookEntry::m_strPublisher, &BookEntry::getPublisher, &BookEntry::setPublisher}},
        {Id::ISBN, "isbn", 34, FieldKind::Text,
            TextAccess{&BookEntry::m_strISBN, &BookEntry::getISBN, &BookEntry::setISBN}},
        {Id::Pages, "pages", 28, FieldKind::Integer,
            IntegerAccess{&BookEntry::m_nPages, &BookEntry::getPages, &BookEntry::setPages}},
        {Id::EstValue, "estValue", 32, FieldKind::Real,
            RealAccess{
                &BookEntry::m_dblEstValue, &BookEntry::getEstValue, &BookEntry::setEstValue}},
        {Id::Location, "location", 36, FieldKind::Text,
            TextAccess{
                &BookEntry::m_strLocation, &BookEntry::getLocation, &BookEntry::setLocation}},
        {Id::LentTo, "lentTo", 38, FieldKind::Text,
            TextAccess{&BookEntry::m_strLentTo, &BookEntry::getLentTo, &BookEntry::setLentTo}},
        {Id::MonthPublished, "monthPublished", 10, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iMonthPublished, &BookEntry::getMonthPublished,
                &BookEntry::setMonthPublished}},
        {Id::YearPublished, "yearPublished", 10, FieldKind::Year,
            TextAccess{&BookEntry::m_strYearPublished, &BookEntry::getYearPublished,
                &BookEntry::setYearPublished}},
        {Id::MonthEstValue, "monthEstValue", 78, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iMonthEstValue, &BookEntry::getMonthEstValue,
                &BookEntry::setMonthEstValue}},
        {Id::YearEstValue, "yearEstValue", 78, FieldKind::Year,
            TextAccess{&BookEntry::m_strYearEstValue, &BookEntry::getYearEstValue,
                &BookEntry::setYearEstValue}},
        {Id::MonthLent, "monthLent", 80, FieldKind::Month,
            IntegerAccess{
                &BookEntry::m_iMonthLent, &BookEntry::getMonthLent, &BookEntry::setMonthLent}},
        {Id::YearLent, "yearLent", 80, FieldKind::Year,
            TextAccess{
                &BookEntry::m_strYearLent, &BookEntry::getYearLent, &BookEntry::setYearLent}},
        {Id::MonthPurchased, "monthPurchased", 12, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iMonthPurchased, &BookEntry::getMonthPurchased,
                &BookEntry::setMonthPurchased}},
        {Id::YearPurchased, "yearPurchased", 12, FieldKind::Year,
            TextAccess{&BookEntry::m_strYearPurchased, &BookEntry::getYearPurchased,
                &BookEntry::setYearPurchased}},
        {Id::MonthFirstRead, "monthFirstRead", 14, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iMonthFirstRead, &BookEntry::getMonthFirstRead,
                &BookEntry::setMonthFirstRead}},
        {Id::YearFirstRead, "yearFirstRead", 14, FieldKind::Year,
            TextAccess{&BookEntry::m_strYearFirstRead, &BookEntry::getYearFirstRead,
                &BookEntry::setYearFirstRead}},
        {Id::MonthLastRead, "monthLastRead", 8, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iMonthLastRead, &BookEntry::getMonthLastRead,
                &BookEntry::setMonthLastRead}},
        {Id::YearLastRead, "yearLastRead", 8, FieldKind::Year,
            TextAccess{&BookEntry::m_strYearLastRead, &BookEntry::getYearLastRead,
                &BookEntry::setYearLastRead}},
        {Id::MonthCopyright, "monthCopyright", 16, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iMonthCopyright, &BookEntry::getMonthCopyright,
                &BookEntry::setMonthCopyright}},
        {Id::YearCopyright, "yearCopyright", 16, FieldKind::Year,
            TextAccess{&BookEntry::m_strYearCopyright, &BookEntry::getYearCopyright,
                &BookEntry::setYearCopyright}},
        {Id::CustomField1, "customField1", 42, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField1, &BookEntry::getCustomField1,
                &BookEntry::setCustomField1}},
        {Id::CustomField2, "customField2", 44, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField2, &BookEntry::getCustomField2,
                &BookEntry::setCustomField2}},
        {Id::CustomField3, "customField3", 46, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField3, &BookEntry::getCustomField3,
                &BookEntry::setCustomField3}},
        {Id::CustomField4, "customField4", 48, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField4, &BookEntry::getCustomField4,
                &BookEntry::setCustomField4}},
        {Id::CustomField5, "customField5", 50, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField5, &BookEntry::getCustomField5,
                &BookEntry::setCustomField5}},
        {Id::CustomField6, "customField6", 52, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField6, &BookEntry::getCustomField6,
                &BookEntry::setCustomField6}},
        {Id::CustomField7, "customField7", 54, FieldKind::Text,
            TextAccess{&BookEntry::m_strCustomField7, &BookEntry::getCustomField7,
                &BookEntry::setCustomField7}},
        {Id::CustomYear1, "customYear1", 56, FieldKind::Year,
            TextAccess{&BookEntry::m_strCustomYear1, &BookEntry::getCustomYear1,
                &BookEntry::setCustomYear1}},
        {Id::CustomMonth1, "customMonth1", 56, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iCustomMonth1, &BookEntry::getCustomMonth1,
                &BookEntry::setCustomMonth1}},
        {Id::CustomYear2, "customYear2", 58, FieldKind::Year,
            TextAccess{&BookEntry::m_strCustomYear2, &BookEntry::getCustomYear2,
                &BookEntry::setCustomYear2}},
        {Id::CustomMonth2, "customMonth2", 58, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iCustomMonth2, &BookEntry::getCustomMonth2,
                &BookEntry::setCustomMonth2}},
        {Id::CustomYear3, "customYear3", 60, FieldKind::Year,
            TextAccess{&BookEntry::m_strCustomYear3, &BookEntry::getCustomYear3,
                &BookEntry::setCustomYear3}},
        {Id::CustomMonth3, "customMonth3", 60, FieldKind::Month,
            IntegerAccess{&BookEntry::m_iCustomMonth3, &BookEntry::getCustomMonth3,
                &BookEntry::setCustomMonth3}},
        {Id::CustomSwitch1, "customSwitch1", 62, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch1, &BookEntry::isCustomSwitch1,
                &BookEntry::setCustomSwitch1}},
        {Id::CustomSwitch2, "customSwitch2", 64, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch2, &BookEntry::isCustomSwitch2,
                &BookEntry::setCustomSwitch2}},
        {Id::CustomSwitch3, "customSwitch3", 66, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch3, &BookEntry::isCustomSwitch3,
                &BookEntry::setCustomSwitch3}},
        {Id::CustomSwitch4, "customSwitch4", 68, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch4, &BookEntry::isCustomSwitch4,
                &BookEntry::setCustomSwitch4}},
        {Id::CustomSwitch5, "customSwitch5", 70, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch5, &BookEntry::isCustomSwitch5,
                &BookEntry::setCustomSwitch5}},
        {Id::CustomSwitch6, "customSwitch6", 72, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch6, &BookEntry::isCustomSwitch6,
                &BookEntry::setCustomSwitch6}},
        {Id::CustomSwitch7, "customSwitch7", 74, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch7, &BookEntry::isCustomSwitch7,
                &BookEntry::setCustomSwitch7}},
        {Id::CustomSwitch8, "customSwitch8", 76, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bCustomSwitch8, &BookEntry::isCustomSwitch8,
                &BookEntry::setCustomSwitch8}},
        {Id::Own, "own", 18, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bOwn, &BookEntry::own, &BookEntry::setOwn}},
        {Id::Signed, "signed", 20, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bSigned, &BookEntry::isSigned, &BookEntry::setSigned}},
        {Id::FirstEdition, "firstEdition", 22, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bFirstEdition, &BookEntry::isFirstEdition,
                &BookEntry::setFirstEdition}},
        {Id::Read, "read", 24, FieldKind::Flag,
            FlagAccess{&BookEntry::m_bRead, &BookEntry::haveRead, &BookEntry::setRead}},
    });
};

namespace {

constexpr int columnKeyLimit = 86; // keys run from 0 to 84

struct ColumnFields {
    const BookField* value = nullptr;
    const BookField* month = nullptr;
};

std::array<ColumnFields, columnKeyLimit> makeColumnIndex()
{
    std::array<ColumnFields, columnKeyLimit> index;
    for (const BookField& field : BookFieldTable::rows) {
        ColumnFields& column = index.at(static_cast<std::size_t>(field.columnKey));
        (field.kind == FieldKind::Month ? column.month : column.value) = &field;
    }
    return index;
}

ColumnFields fieldsOfColumn(int columnKey)
{
    static const std::array<ColumnFields, columnKeyLimit> index = makeColumnIndex();
    if (columnKey < 0 || columnKey >= columnKeyLimit)
        return {};
    return index.at(static_cast<std::size_t>(columnKey));
}

bool sameValue(const QString& left, const QString& right)
{
    return left == right && left.isNull() == right.isNull();
}

// Bit by bit, so that a value that is not a number equals itself.
bool sameValue(double left, double right)
{
    return std::bit_cast<quint64>(left) == std::bit_cast<quint64>(right);
}

template <class Value>
bool sameValue(Value left, Value right)
{
    return left == right;
}

} // namespace

std::span<const BookField> bookFields()
{
    return BookFieldTable::rows;
}

const BookField& bookField(BookField::Id id)
{
    return BookFieldTable::rows.at(static_cast<std::size_t>(id));
}

const BookField* fieldOfColumn(int columnKey)
{
    return fieldsOfColumn(columnKey).value;
}

const BookField* monthField(int columnKey)
{
    return fieldsOfColumn(columnKey).month;
}

bool equalContents(const BookEntry& left, const BookEntry& right)
{
    const bool sameFields = std::ranges::all_of(bookFields(), [&](const BookField& field) {
        return std::visit(
            [&](const auto& access) {
                return sameValue(left.*access.stored, right.*access.stored);
            },
            field.access);
    });
    if (!sameFields || !(left.getSelectedGroups() == right.getSelectedGroups()))
        return false;
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        if (left.getImageData(slot) != right.getImageData(slot)
            || left.getImageData(slot).isNull() != right.getImageData(slot).isNull())
            return false;
    }
    return true;
}

} // namespace tomely
