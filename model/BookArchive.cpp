// The record of one book inside a collection's archive: items without names, told apart by their
// order and width alone. The order is history, not structure, so it is a table of its own.

#include "model/BookEntry.h"
#include "model/BookField.h"
#include "model/KeyText.h"
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"

#include <array>

namespace tomely {

namespace {

using Id = BookField::Id;

struct ArchiveItem {
    Id field;
    qint32 since; // the first file version that carries the item
};

// Between the key, which comes first, and the pictures and groups, which come last. Publisher
// stands apart because it was added with version 1, the custom fields because they came with
// version 2.
constexpr std::array archiveItems = std::to_array<ArchiveItem>({
    {Id::Title, 0},
    {Id::Author, 0},
    {Id::Notes, 0},
    {Id::PricePaid, 0},
    {Id::PricePaidFrom, 0},
    {Id::ISBN, 0},
    {Id::Pages, 0},
    {Id::EstValue, 0},
    {Id::Location, 0},
    {Id::LentTo, 0},
    {Id::MonthPublished, 0},
    {Id::MonthEstValue, 0},
    {Id::MonthLent, 0},
    {Id::MonthPurchased, 0},
    {Id::MonthFirstRead, 0},
    {Id::MonthLastRead, 0},
    {Id::MonthCopyright, 0},
    {Id::YearPublished, 0},
    {Id::YearEstValue, 0},
    {Id::YearLent, 0},
    {Id::YearPurchased, 0},
    {Id::YearFirstRead, 0},
    {Id::YearLastRead, 0},
    {Id::YearCopyright, 0},
    {Id::Own, 0},
    {Id::Signed, 0},
    {Id::FirstEdition, 0},
    {Id::Read, 0},
    {Id::Type, 0},
    {Id::Rating, 0},
    {Id::Publisher, 1},
    {Id::CustomField1, 2},
    {Id::CustomField2, 2},
    {Id::CustomField3, 2},
    {Id::CustomField4, 2},
    {Id::CustomField5, 2},
    {Id::CustomField6, 2},
    {Id::CustomField7, 2},
    {Id::CustomYear1, 2},
    {Id::CustomYear2, 2},
    {Id::CustomYear3, 2},
    {Id::CustomMonth1, 2},
    {Id::CustomMonth2, 2},
    {Id::CustomMonth3, 2},
    {Id::CustomSwitch1, 2},
    {Id::CustomSwitch2, 2},
    {Id::CustomSwitch3, 2},
    {Id::CustomSwitch4, 2},
    {Id::CustomSwitch5, 2},
    {Id::CustomSwitch6, 2},
    {Id::CustomSwitch7, 2},
    {Id::CustomSwitch8, 2},
});

constexpr qint32 firstVersionWithPictures = 3;

struct ItemWriter {
    Archiver& archiver;
    const BookEntry& book;

    void operator()(const TextAccess& access) const { archiver.encodeString(book.*access.stored); }

    void operator()(const RealAccess& access) const
    {
        archiver.encodeDoubleBlock(book.*access.stored);
    }

    void operator()(const IntegerAccess& access) const
    {
        archiver.encodeInt32Block(book.*access.stored);
    }

    void operator()(const FlagAccess& access) const
    {
        archiver.encodeByteBlock(book.*access.stored ? 1 : 0);
    }
};

struct ItemReader {
    Unarchiver& unarchiver;
    BookEntry& book;

    void operator()(const TextAccess& access) const
    {
        book.*access.stored = unarchiver.decodeString();
    }

    void operator()(const RealAccess& access) const
    {
        book.*access.stored = unarchiver.decodeDoubleBlock();
    }

    void operator()(const IntegerAccess& access) const
    {
        book.*access.stored = unarchiver.decodeInt32Block();
    }

    void operator()(const FlagAccess& access) const
    {
        book.*access.stored = unarchiver.decodeByteBlock() != 0;
    }
};

// An older file leaves a text empty, not absent; numbers and switches are 0 in a fresh record.
void setMissing(BookEntry& book, const BookField& field)
{
    if (const auto* const access = std::get_if<TextAccess>(&field.access))
        book.*access->stored = QString(QLatin1StringView(""));
}

GroupMembership readMembership(Unarchiver& unarchiver)
{
    std::vector<GroupMembership::Entry> entries;
    unarchiver.decodeInlineDictionary([&] {
        const QString storedKey = unarchiver.decodeString();
        const QString storedValue = unarchiver.decodeString();
        const QString key = normalizedKey(storedKey);
        entries.push_back({key, storedValue == storedKey ? key : storedValue});
    });
    return GroupMembership::fromEntries(std::move(entries));
}

} // namespace

void BookEntry::encodeWithCoder(Archiver& archiver) const
{
    archiver.encodeString(m_strBookKey);
    const ItemWriter writer{archiver, *this};
    for (const ArchiveItem& item : archiveItems)
        std::visit(writer, bookField(item.field).access);
    for (const QByteArray& jpeg : m_images)
        archiver.encodeData(jpeg);
    // The dictionary writes itself into the record, with no object of its own around it.
    archiver.encodeCount(m_dSelectedGroups.size());
    for (const GroupMembership::Entry& group : m_dSelectedGroups) {
        archiver.encodeString(group.key);
        archiver.encodeString(group.value);
    }
}

BookEntry BookEntry::initWithCoder(Unarchiver& unarchiver, qint32 archiveVersion)
{
    BookEntry book;
    book.m_strBookKey = normalizedKey(unarchiver.decodeString());
    const ItemReader reader{unarchiver, book};
    for (const ArchiveItem& item : archiveItems) {
        const BookField& field = bookField(item.field);
        if (item.since == 0 || archiveVersion >= item.since)
            std::visit(reader, field.access);
        else
            setMissing(book, field);
    }
    if (archiveVersion >= firstVersionWithPictures) {
        for (QByteArray& jpeg : book.m_images)
            jpeg = unarchiver.decodeData();
    }
    book.m_dSelectedGroups = readMembership(unarchiver);
    return book;
}

} // namespace tomely
