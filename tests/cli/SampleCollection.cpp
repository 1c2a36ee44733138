#include "tests/cli/SampleCollection.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

std::unique_ptr<BookEntry> book(const QString& title, const QString& author)
{
    auto entry = std::make_unique<BookEntry>();
    entry->setTitle(title);
    if (!author.isNull())
        entry->setAuthor(author);
    return entry;
}

std::unique_ptr<BookEntry> emma()
{
    auto entry = book(u"Emma"_s, u"Jane Austen"_s);
    entry->setMonthPublished(12);
    entry->setYearPublished(u"1815"_s);
    entry->setPages(474);
    entry->setPricePaid(12.5);
    entry->setRating(5);
    entry->setOwn(true);
    entry->addToGroup(u"1"_s);
    entry->setImageData(1, "a picture"_ba);
    return entry;
}

std::unique_ptr<BookEntry> walden()
{
    auto entry = book(u"Walden"_s, u"Henry Thoreau"_s);
    entry->setYearPublished(u"1854"_s);
    entry->setPages(352);
    entry->setType(1);
    entry->addToGroup(u"2"_s);
    return entry;
}

std::unique_ptr<BookEntry> persuasion()
{
    auto entry = book(u"Persuasion"_s, u"Jane Austen"_s);
    entry->setMonthPublished(6);
    entry->setYearPublished(u"1817"_s);
    entry->setPages(249);
    entry->setPricePaid(4.99);
    entry->setMonthLent(6);
    entry->setYearLent(u"2001"_s);
    entry->setRead(true);
    entry->addToGroup(u"1"_s);
    entry->addToGroup(u"2"_s);
    return entry;
}

} // namespace

std::unique_ptr<BookListDocument> sample()
{
    auto document = std::make_unique<BookListDocument>();
    document->addBook(emma());
    document->addBook(walden());
    document->addBook(persuasion());
    document->addBook(book(u"吾輩は猫である"_s, u"夏目漱石"_s));
    auto tabs = book(u"Tabs, \"quotes\" and \\"_s, {});
    tabs->setNotes(u"one\ttwo\nthree\rfour\\five"_s);
    document->addBook(std::move(tabs));
    return document;
}

bool save(BookListDocument& document, const QString& path)
{
    return !document.writeToFile(path);
}

bool saveSample(const QString& path)
{
    return save(*sample(), path);
}

bool setFileVersion(const QString& path, char version)
{
    QByteArray bytes = fileBytes(path);
    const qsizetype place = bytes.indexOf(QByteArray("\0\0\0\4", 4));
    if (place < 0)
        return false;
    bytes[place + 3] = version;
    return writeBytes(path, bytes);
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace tomely
