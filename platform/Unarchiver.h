// Reads a sequential archive of either byte order, group by group, in the order in which the caller
// asks. Any bytes are survived: they end in values or in one ArchiveError. It must not know what
// the records mean: their bodies are the caller's.

#pragma once

#include "platform/ArchiveCursor.h"

#include <array>
#include <optional>
#include <QByteArray>
#include <QList>
#include <QString>

namespace tomely {

class Unarchiver {
public:
    /// The fewest bytes that a dictionary's entry takes: two groups, each a type and a nil.
    static constexpr qint64 MinimumBytesOfEntry = 4;

    /// Reads the header. The bytes must outlive the unarchiver and the views that it hands out.
    /// Throws ArchiveError, as every operation below does when the stream ends too early, holds
    /// something else than is asked for, or is damaged; the unarchiver is then of no more use.
    explicit Unarchiver(QByteArrayView data);

    /// One block of bytes, seen where they stand in the stream.
    QByteArrayView decodeBytes();

    /// Blocks of at least 1, 4, 8 and 16 bytes, big-endian whatever the stream's own order; bytes
    /// after those are ignored.
    quint8 decodeByteBlock();
    qint32 decodeInt32Block();
    double decodeDoubleBlock();
    std::array<double, 4> decodeFloatsBlock();

    /// A text: null for nil, empty but not null for an empty one. One that the stream refers to
    /// again shares its characters. Malformed UTF-8 becomes U+FFFD.
    QString decodeString();

    /// Bytes as an object: null for nil, empty but not null for empty ones. A copy, shared when the
    /// stream refers to it again.
    QByteArray decodeData();

    /// A number as an object, of any integer type, or of a real type when it is whole. Nil is
    /// damage.
    qint64 decodeNumber();

    /// A count, of any integer type, of things that take at least so many (1 or more) bytes each:
    /// one that is negative or more than what is left can hold is damage, so that it may be
    /// reserved for.
    qint64 decodeCount(qint64 minimumBytesEach);

    /// A record of that class. body() reads the record's own groups. False, without calling body,
    /// for nil. A record that the stream refers to again is read again: body() is called for it as
    /// for a first one.
    template <class Body>
    bool decodeObject(QLatin1StringView className, Body&& body);

    /// A dictionary as an object. entry() is called for each entry and reads one group for the key
    /// and one for the value, both objects. False, without calling anything, for nil.
    /// reserve(count), when given, is called once before the first entry.
    template <class Entry>
    bool decodeDictionary(Entry&& entry);
    template <class Reserve, class Entry>
    bool decodeDictionary(Reserve&& reserve, Entry&& entry);

    /// A dictionary that has written itself into its owner's record, with no object of its own.
    template <class Entry>
    void decodeInlineDictionary(Entry&& entry);

    /// Where the next group begins, and where the stream ends, in bytes.
    qint64 offset() const { return m_cursor.offset(); }

    qint64 size() const { return m_cursor.size(); }

private:
    enum class Kind : quint8 {
        Open, // still being read
        Class,
        CharacterString,
        String,
        Data,
        Number,
        Dictionary,
        Record,
    };

    /// One entry of the object table. There may be millions: 16 bytes each.
    struct Object {
        qint64 offset; // of the byte that begins it; ascending in the table
        quint32
            payload; // an index into what its kind says, or the length of what can be read again
        Kind kind;
    };

    struct ObjectMet {
        enum Form { Nil, New, Known } form;

        quint32 number;
    };

    /// A record or dictionary that is being read, for the first time or again.
    struct Visit {
        quint32 number;
        Kind kind;
        qint64 resumeAt; // where the reference to it ended, or -1
    };

    /// The names under which one kind of object is written.
    struct ClassNames {
        QByteArrayView name;
        QByteArrayView mutableName;
    };

    bool replaying() const { return m_replays > 0; }

    QByteArrayView decodeBlock(qsizetype size);
    QByteArrayView readType();
    void expectType(char type);
    void expectEndOfObject();
    quint32 readSharedString(const char* role);
    quint32 readNewSharedString();
    quint32 readClass(int depth);
    void expectClass(const ClassNames& names);
    QByteArrayView readCharacterString();
    quint32 enterObject(Kind wanted);
    quint32 knownObject(Kind wanted);
    void finishObject(quint32 number, Kind kind, qint64 payload);
    ObjectMet meetObject(Kind wanted);
    std::optional<Visit> enterRecord(QLatin1StringView className);
    std::optional<Visit> enterDictionary();
    std::optional<Visit> enterBody(Kind kind, const ClassNames& names);
    void leaveBody(const Visit& visit);

    ArchiveCursor m_cursor;
    QList<QByteArrayView> m_sharedStrings; // in the order of the stream
    QList<Object> m_objects;
    QList<QString> m_strings;
    QList<QByteArray> m_data;
    QList<qint64> m_numbers;
    qint64 m_replayBudget = 0;
    int m_replays = 0;
};

template <class Body>
bool Unarchiver::decodeObject(QLatin1StringView className, Body&& body)
{
    const std::optional<Visit> visit = enterRecord(className);
    if (!visit)
        return false;
    body();
    leaveBody(*visit);
    return true;
}

template <class Entry>
bool Unarchiver::decodeDictionary(Entry&& entry)
{
    return decodeDictionary([](qint64) {}, entry);
}

template <class Reserve, class Entry>
bool Unarchiver::decodeDictionary(Reserve&& reserve, Entry&& entry)
{
    const std::optional<Visit> visit = enterDictionary();
    if (!visit)
        return false;
    const qint64 count = decodeCount(MinimumBytesOfEntry);
    reserve(count);
    for (qint64 i = 0; i < count; ++i)
        entry();
    leaveBody(*visit);
    return true;
}

template <class Entry>
void Unarchiver::decodeInlineDictionary(Entry&& entry)
{
    const qint64 count = decodeCount(MinimumBytesOfEntry);
    for (qint64 i = 0; i < count; ++i)
        entry();
}

} // namespace tomely
