// Makes the sample collection from the table beside it: make-classics TABLE FILE. Covers are drawn
// with the fonts of the machine, so the file is made by hand when the table changes, and kept.

#include "document/BookListDocument.h"
#include "model/BookEntry.h"
#include "platform/LenientNumbers.h"
#include "samples/ClassicsTable.h"
#include "samples/CoverArtist.h"

#include <QBuffer>
#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Twice the size at which the first picture of a book is shown: sharp on a screen of scale 2.
constexpr QSize coverSize(436, 626);
constexpr int coverQuality = 78;

struct ShownColumn {
    qint32 key;
    int width;
};

// What the list of a new reader should show at first sight, in this order.
constexpr ShownColumn shownColumns[] = {
    {0, 266}, {2, 160}, {10, 126}, {26, 140}, {6, 58}, {84, 84}};

QByteArray drawCover(const ClassicsRow& row)
{
    if (row.coverDesign.isEmpty())
        return {};
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    CoverArtist::draw(row.coverDesign, row.title, row.author, coverSize)
        .save(&buffer, "JPEG", coverQuality);
    return jpeg;
}

std::unique_ptr<BookEntry> makeBook(const ClassicsRow& row)
{
    auto book = std::make_unique<BookEntry>();
    book->setTitle(row.title);
    book->setAuthor(row.author);
    book->setNotes(row.notes);
    book->setType(BookEntry::getTypeNum(row.type));
    book->setRating(row.rating);
    book->setPricePaid(row.pricePaid);
    book->setPricePaidFrom(row.pricePaidFrom);
    book->setPublisher(row.publisher);
    book->setISBN(row.isbn);
    book->setPages(row.pages);
    book->setEstValue(row.estValue);
    book->setLocation(row.location);
    book->setLentTo(row.lentTo);
    book->setMonthPublished(row.published.month);
    book->setYearPublished(row.published.year);
    book->setYearCopyright(row.copyright);
    book->setMonthPurchased(row.purchased.month);
    book->setYearPurchased(row.purchased.year);
    book->setMonthEstValue(row.estValueDate.month);
    book->setYearEstValue(row.estValueDate.year);
    book->setMonthLent(row.lentDate.month);
    book->setYearLent(row.lentDate.year);
    book->setMonthFirstRead(row.firstRead.month);
    book->setYearFirstRead(row.firstRead.year);
    book->setMonthLastRead(row.lastRead.month);
    book->setYearLastRead(row.lastRead.year);
    book->setOwn(row.own);
    book->setSigned(row.signedCopy);
    book->setFirstEdition(row.firstEdition);
    book->setRead(row.read);
    book->setImageData(1, drawCover(row));
    return book;
}

QString groupNamed(BookListDocument& document, const QString& name)
{
    for (const GroupEntry* const group : document.getGroups().byName()) {
        if (group->getGroupName() == name)
            return group->getKey();
    }
    GroupEntry group;
    group.setKey(document.getNextGroupKey());
    group.setGroupName(name);
    document.getGroups().insert(group);
    return group.getKey();
}

void layOutColumns(BookListDocument& document)
{
    qint32 position = 0;
    for (const ShownColumn& shown : shownColumns) {
        ColumnEntry& column = document.getListColumns().find(keyText(shown.key))->second;
        column.setPosition(position++);
        column.setWidth(shown.width);
    }
}

int makeCollection(const QString& tablePath, const QString& filePath)
{
    const ClassicsTable table = ClassicsTable::read(tablePath);
    if (!table.error.isEmpty()) {
        std::fprintf(stderr, "make-classics: %s\n", qPrintable(table.error));
        return 1;
    }
    BookListDocument document;
    for (const ClassicsRow& row : table.rows) {
        std::unique_ptr<BookEntry> book = makeBook(row);
        for (const QString& name : row.groups)
            book->addToGroup(groupNamed(document, name));
        document.addBook(std::move(book));
    }
    layOutColumns(document);
    if (const auto failure = document.writeToFile(filePath)) {
        std::fprintf(
            stderr, "make-classics: %s: %s\n", qPrintable(filePath), qPrintable(failure->reason));
        return 1;
    }
    std::printf("%s: %lld books\n", qPrintable(filePath),
        static_cast<long long>(document.getBookListSize()));
    return 0;
}

} // namespace

} // namespace tomely

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make-classics TABLE FILE\n", stderr);
        return 2;
    }
    return tomely::makeCollection(arguments.at(1), arguments.at(2));
}
