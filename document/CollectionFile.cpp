#include "document/CollectionFile.h"

#include "platform/ArchiveError.h"
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"

#include <algorithm>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qint32 firstVersionWithLabels = 2;
constexpr qint32 firstVersionWithFrames = 3;
constexpr qint32 firstVersionWithCleanGroups = 4;

// A window that repaints this often moves its progress bar smoothly and loses no time by it.
constexpr int booksPerReport = 500;

class CollectionReader {
public:
    CollectionReader(QByteArrayView bytes, const Progress& progress)
        : m_unarchiver(bytes)
        , m_progress(progress)
    {
    }

    CollectionContents read()
    {
        m_contents = CollectionContents::makeNew();
        m_contents.fileVersion = m_unarchiver.decodeInt32Block();
        if (m_contents.fileVersion >= CollectionContents::firstUnknownVersion)
            throw NewerVersionError(m_contents.fileVersion);
        m_contents.lastGroupKey = m_unarchiver.decodeInt32Block();
        readGroups();
        if (m_contents.fileVersion >= firstVersionWithLabels)
            readLabels();
        m_contents.lastBookIdn = m_unarchiver.decodeInt32Block();
        readBooks();
        m_contents.windowFrame = readFrame();
        m_contents.sortField = m_unarchiver.decodeInt32Block();
        readColumns();
        if (m_contents.fileVersion >= firstVersionWithFrames)
            readLayout();
        bringUpToDate();
        return std::move(m_contents);
    }

private:
    /// Calls `readEntry` with the normalised key of each entry; an absent dictionary has none.
    template <class ReadEntry>
    void readDictionary(ReadEntry&& readEntry)
    {
        m_unarchiver.decodeDictionary(
            [&] { readEntry(normalizedKey(m_unarchiver.decodeString())); });
    }

    /// Reads the object of an entry; nothing is kept of an entry whose object is absent.
    template <class Record, class Decode>
    bool readRecord(QLatin1StringView className, Record& record, Decode&& decode)
    {
        return m_unarchiver.decodeObject(className, [&] { record = decode(); });
    }

    void readGroups()
    {
        m_contents.groups = {};
        std::vector<GroupEntry> unplaced;
        readDictionary([&](const QString& key) {
            GroupEntry group;
            if (!readRecord("GroupEntry"_L1, group,
                    [this] { return GroupEntry::initWithCoder(m_unarchiver); }))
                return;
            // Group 0 is the library, and whoever selects a group needs its number.
            if (keyNumber(key).value_or(0) < 1 || m_contents.groups.contains(key)) {
                unplaced.push_back(group);
                return;
            }
            group.setKeyText(key);
            m_contents.groups.insert(group);
        });
        raiseCounter(m_contents.lastGroupKey, m_contents.groups.byKey());
        numberUnplaced(unplaced, m_contents.lastGroupKey, m_contents.groups.byKey(),
            [this](const QString& key, GroupEntry& group) {
                group.setKeyText(key);
                m_contents.groups.insert(group);
            });
    }

    void readLabels()
    {
        m_contents.labels.clear();
        m_unarchiver.decodeDictionary([this] {
            const qint64 offset = m_unarchiver.offset();
            const qint64 key = m_unarchiver.decodeNumber();
            if (key != static_cast<qint32>(key))
                throw ArchiveError(offset, u"a column key of more than 32 bits"_s);
            m_contents.labels[static_cast<qint32>(key)] = m_unarchiver.decodeString();
        });
    }

    void readBooks()
    {
        qint64 sinceReport = 0;
        std::vector<std::unique_ptr<BookEntry>> unplaced;
        readDictionary([&](const QString& key) {
            auto book = std::make_unique<BookEntry>();
            if (!readRecord("BookEntry"_L1, *book, [this] {
                    return BookEntry::initWithCoder(m_unarchiver, m_contents.fileVersion);
                }))
                return;
            if (key.isEmpty() || m_contents.books.contains(key))
                unplaced.push_back(std::move(book));
            else
                placeBook(key, std::move(book));
            if (m_progress && ++sinceReport % booksPerReport == 0)
                m_progress(m_unarchiver.offset(), m_unarchiver.size());
        });
        raiseCounter(m_contents.lastBookIdn, m_contents.books);
        numberUnplaced(unplaced, m_contents.lastBookIdn, m_contents.books,
            [this](const QString& key, std::unique_ptr<BookEntry>& book) {
                placeBook(key, std::move(book));
            });
    }

    void placeBook(const QString& key, std::unique_ptr<BookEntry> book)
    {
        if (book->getKey() != key)
            book->setKeyText(key);
        // Our own files hold the books in this order, which makes the end the right place.
        m_contents.books.insert_or_assign(m_contents.books.end(), key, std::move(book));
    }

    void readColumns()
    {
        m_contents.columns.clear();
        readDictionary([this](const QString& key) {
            ColumnEntry column;
            if (!readRecord("ColumnEntry"_L1, column,
                    [this] { return ColumnEntry::initWithCoder(m_unarchiver); }))
                return;
            column.setKeyText(key);
            m_contents.columns.insert_or_assign(key, column);
        });
    }

    QRectF readFrame()
    {
        const auto values = m_unarchiver.decodeFloatsBlock();
        return {values[0], values[1], values[2], values[3]};
    }

    void readLayout()
    {
        m_contents.customizeListFrame = readFrame();
        m_contents.groupManagerFrame = readFrame();
        for (QRectF& pane : m_contents.imageSplitter)
            pane = readFrame();
        for (QRectF& pane : m_contents.listSplitter)
            pane = readFrame();
    }

    void bringUpToDate()
    {
        if (m_contents.fileVersion < firstVersionWithCleanGroups)
            m_contents.removeNonExistentGroup();
        initListColumns(m_contents.columns, m_contents.labels);
    }

    /// A counter that lags behind its keys would hand out the number of an entry that exists, and
    /// one below 0 the group key 0, which is the whole library.
    template <class Entries>
    static void raiseCounter(qint32& counter, const Entries& entries)
    {
        counter = std::max(counter, 0);
        for (const auto& [key, entry] : entries)
            counter = std::max(counter, keyNumber(key).value_or(0));
    }

    /// Places the entries that came without a key, or with one that another entry has already,
    /// under the next numbers: two entries of a file must not become one only because their keys
    /// read the same. When no number is left, under the first that no entry has.
    template <class Unplaced, class Entries, class Place>
    static void numberUnplaced(
        Unplaced& unplaced, qint32& counter, const Entries& entries, Place place)
    {
        qint32 gap = 0;
        for (auto& entry : unplaced) {
            if (counter < std::numeric_limits<qint32>::max()) {
                place(keyText(++counter), entry);
                continue;
            }
            do {
                ++gap;
            } while (entries.contains(keyText(gap)));
            place(keyText(gap), entry);
        }
    }

    Unarchiver m_unarchiver;
    const Progress& m_progress;
    CollectionContents m_contents;
};

class CollectionWriter {
public:
    CollectionWriter(const CollectionContents& contents, const Progress& progress)
        : m_contents(contents)
        , m_progress(progress)
    {
    }

    QByteArray write()
    {
        m_archiver.encodeInt32Block(CollectionContents::currentVersion);
        m_archiver.encodeInt32Block(m_contents.lastGroupKey);
        writeRecords("GroupEntry"_L1, m_contents.groups.byKey());
        writeLabels();
        m_archiver.encodeInt32Block(m_contents.lastBookIdn);
        writeBooks();
        writeFrame(m_contents.windowFrame);
        m_archiver.encodeInt32Block(m_contents.sortField);
        writeRecords("ColumnEntry"_L1, m_contents.columns);
        writeFrame(m_contents.customizeListFrame);
        writeFrame(m_contents.groupManagerFrame);
        for (const QRectF& pane : m_contents.imageSplitter)
            writeFrame(pane);
        for (const QRectF& pane : m_contents.listSplitter)
            writeFrame(pane);
        return m_archiver.takeData();
    }

private:
    template <class Record>
    void writeRecord(QLatin1StringView className, const QString& key, const Record& record)
    {
        m_archiver.encodeString(key);
        m_archiver.beginObject(className);
        record.encodeWithCoder(m_archiver);
        m_archiver.endObject();
    }

    template <class Records>
    void writeRecords(QLatin1StringView className, const Records& records)
    {
        m_archiver.beginDictionary(static_cast<qsizetype>(records.size()));
        for (const auto& [key, record] : records)
            writeRecord(className, key, record);
        m_archiver.endObject();
    }

    void writeLabels()
    {
        m_archiver.beginDictionary(static_cast<qsizetype>(m_contents.labels.size()));
        for (const auto& [key, label] : m_contents.labels) {
            m_archiver.encodeNumber(key);
            m_archiver.encodeString(label);
        }
        m_archiver.endObject();
    }

    void writeBooks()
    {
        const auto total = static_cast<qint64>(m_contents.books.size());
        qint64 done = 0;
        m_archiver.beginDictionary(static_cast<qsizetype>(total));
        for (const auto& [key, book] : m_contents.books) {
            writeRecord("BookEntry"_L1, key, *book);
            if (m_progress && ++done % booksPerReport == 0)
                m_progress(done, total);
        }
        m_archiver.endObject();
    }

    void writeFrame(const QRectF& frame)
    {
        m_archiver.encodeFloatsBlock({frame.x(), frame.y(), frame.width(), frame.height()});
    }

    const CollectionContents& m_contents;
    const Progress& m_progress;
    Archiver m_archiver;
};

} // namespace

CollectionContents readCollection(QByteArrayView bytes, const Progress& progress)
{
    return CollectionReader(bytes, progress).read();
}

QByteArray writeCollection(const CollectionContents& contents, const Progress& progress)
{
    return CollectionWriter(contents, progress).write();
}

} // namespace tomely
