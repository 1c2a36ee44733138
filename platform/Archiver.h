// Writes a sequential archive, little-endian: groups, each a type and a value, one after another
// without names. It knows the stream's classes of text, data, numbers and dictionaries; of records
// it knows only that they have a class name and write their own groups.

#pragma once

#include "platform/ArchiveBuffer.h"
#include "platform/ArchivedStringIndex.h"

#include <array>
#include <QByteArray>
#include <QHash>
#include <QString>
#include <vector>

namespace tomely {

class Archiver {
public:
    /// An archive that holds its header and nothing else.
    Archiver();

    // Every operation below appends one group and throws ArchiveError when a length, a count or the
    // number of objects is more than 31 bits can say; the archive is then of no more use.

    /// One block of any bytes.
    void encodeBytes(QByteArrayView bytes);

    /// Blocks of 1, 4, 8 and 16 bytes, big-endian whatever the stream's own order. The four numbers
    /// are narrowed to single precision.
    void encodeByteBlock(quint8 value);
    void encodeInt32Block(qint32 value);
    void encodeDoubleBlock(double value);
    void encodeFloatsBlock(const std::array<double, 4>& values);

    /// Where an object could stand, none.
    void encodeNil();

    /// A text; a null one is nil. Equal texts are written once and referred to from then on. A
    /// surrogate without its other half becomes U+FFFD.
    void encodeString(const QString& text);

    /// Bytes as an object; null is nil. Written in full each time.
    void encodeData(const QByteArray& data);

    /// A number as an object.
    void encodeNumber(qint32 number);

    /// A record of that class. The caller writes the record's own groups and then calls
    /// endObject().
    void beginObject(QLatin1StringView className);

    /// A dictionary as an object. The caller writes, count times, one group for the key and one for
    /// the value, both objects, and then calls endObject().
    void beginDictionary(qsizetype count);

    void endObject();

    /// A count alone: what a dictionary that writes itself into its owner's record begins with.
    void encodeCount(qsizetype count);

    /// The bytes written so far.
    qsizetype size() const { return m_buffer.size(); }

    /// The whole archive. The archiver is used up.
    QByteArray takeData();

private:
    /// A shared string with a place of its own here, because it is needed too often to be searched.
    struct KnownString {
        QByteArrayView characters;
        qint32 number = -1;
    };

    struct WrittenClass {
        QByteArray name;
        qint32 number;
    };

    qint32 takeObjectNumber();
    qint32 numberOfClass(QLatin1StringView name) const;
    void writeReference(qint32 number);
    void writeSharedString(QByteArrayView characters);
    void writeKnownString(KnownString& string);
    void writeCountedBytes(QByteArrayView bytes);
    void writeClass(QLatin1StringView name);
    void writeFirstString(const QString& text);

    ArchiveBuffer m_buffer;
    ArchivedStringIndex m_strings;
    KnownString m_bytesType{"+"};
    KnownString m_objectType{"@"};
    KnownString m_integerType{"i"};
    KnownString m_characterStringType{"*"};
    QHash<QByteArray, qint32> m_otherSharedStrings;
    std::vector<WrittenClass> m_classes;
    qint32 m_sharedStringCount = 0;
    qint32 m_objectCount = 0;
    qint32 m_integerTypeObject = -1;
    QByteArray m_stringPrefix;
};

} // namespace tomely
