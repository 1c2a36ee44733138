#include "platform/Unarchiver.h"

#include "platform/ArchiveError.h"
#include "platform/ArchiveFormat.h"
#include "platform/ArchiveTypes.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int DeepestClassChain = 16;

// What reading records again may cost, in bytes, beyond one reading of the whole stream.
constexpr qint64 ReplayAllowance = 65536;

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

constexpr QByteArrayView bytesOf(QLatin1StringView text)
{
    return {text.data(), text.size()};
}

// The toolkit's own conversion drops a byte-order mark at the beginning, which here is a character
// like any other.
QString textOf(QByteArrayView utf8)
{
    if (!utf8.startsWith(ByteOrderMark))
        return QString::fromUtf8(utf8);
    return QChar(QChar::ByteOrderMark) + QString::fromUtf8(utf8.sliced(ByteOrderMark.size()));
}

} // namespace

Unarchiver::Unarchiver(QByteArrayView data)
    : m_cursor(data)
    , m_replayBudget(data.size() + ReplayAllowance)
{
    if (m_cursor.takeByte() != archive::StreamVersion)
        throw ArchiveError(0, u"an unknown stream version"_s);
    const qint64 signatureAt = m_cursor.offset();
    const QByteArrayView signature = m_cursor.takeBytes(m_cursor.takeLength());
    if (signature == archive::BigEndianSignature)
        m_cursor.setBigEndian(true);
    else if (signature != archive::LittleEndianSignature)
        throw ArchiveError(
            signatureAt, u"the unknown signature %1"_s.arg(ArchiveError::quoted(signature)));
    m_cursor.takeInteger();
}

QByteArrayView Unarchiver::decodeBytes()
{
    expectType(archive::BytesType);
    return m_cursor.takeBytes(m_cursor.takeLength());
}

QByteArrayView Unarchiver::decodeBlock(qsizetype size)
{
    const qint64 start = m_cursor.offset();
    const QByteArrayView block = decodeBytes();
    if (block.size() < size) {
        throw ArchiveError(
            start, u"a block of %1 bytes where %2 were expected"_s.arg(block.size()).arg(size));
    }
    return block;
}

quint8 Unarchiver::decodeByteBlock()
{
    return static_cast<quint8>(decodeBlock(1).front());
}

qint32 Unarchiver::decodeInt32Block()
{
    return qFromBigEndian<qint32>(decodeBlock(sizeof(qint32)).data());
}

double Unarchiver::decodeDoubleBlock()
{
    return std::bit_cast<double>(qFromBigEndian<quint64>(decodeBlock(sizeof(double)).data()));
}

std::array<double, 4> Unarchiver::decodeFloatsBlock()
{
    std::array<double, 4> values{};
    const char* from = decodeBlock(sizeof(float) * values.size()).data();
    for (double& value : values) {
        value = std::bit_cast<float>(qFromBigEndian<quint32>(from));
        from += sizeof(float);
    }
    return values;
}

QString Unarchiver::decodeString()
{
    const ObjectMet met = meetObject(Kind::String);
    if (met.form == ObjectMet::Nil)
        return {};
    if (met.form == ObjectMet::New) {
        expectClass({bytesOf(archive::StringClass), bytesOf(archive::MutableStringClass)});
        const QByteArrayView utf8 = decodeBytes();
        expectEndOfObject();
        if (!replaying()) {
            finishObject(met.number, Kind::String, m_strings.size());
            m_strings.append(textOf(utf8));
        }
    }
    return m_strings.at(m_objects.at(met.number).payload);
}

QByteArray Unarchiver::decodeData()
{
    const ObjectMet met = meetObject(Kind::Data);
    if (met.form == ObjectMet::Nil)
        return {};
    if (met.form == ObjectMet::New) {
        expectClass({bytesOf(archive::DataClass), bytesOf(archive::MutableDataClass)});
        const qint64 count = decodeCount(1);
        const qint64 typeAt = m_cursor.offset();
        const QByteArrayView type = readType();
        if (!archive::isBytesType(type, count))
            throw ArchiveError(
                typeAt, u"type %1 for %2 bytes"_s.arg(ArchiveError::quoted(type)).arg(count));
        const QByteArrayView bytes = m_cursor.takeBytes(count);
        expectEndOfObject();
        if (!replaying()) {
            finishObject(met.number, Kind::Data, m_data.size());
            m_data.append(bytes.toByteArray());
        }
    }
    return m_data.at(m_objects.at(met.number).payload);
}

qint64 Unarchiver::decodeNumber()
{
    const qint64 start = m_cursor.offset();
    const ObjectMet met = meetObject(Kind::Number);
    if (met.form == ObjectMet::Nil)
        throw ArchiveError(start, u"nil where a number was expected"_s);
    if (met.form == ObjectMet::New) {
        expectClass({bytesOf(archive::NumberClass), {}});
        expectType(archive::CharacterStringType);
        const QByteArrayView announced = readCharacterString();
        const qint64 typeAt = m_cursor.offset();
        const QByteArrayView type = readType();
        if (type != announced) {
            throw ArchiveError(typeAt,
                u"type %1 for a number of type %2"_s.arg(
                    ArchiveError::quoted(type), ArchiveError::quoted(announced)));
        }
        const qint64 number = archive::takeNumber(m_cursor, type);
        expectEndOfObject();
        if (!replaying()) {
            finishObject(met.number, Kind::Number, m_numbers.size());
            m_numbers.append(number);
        }
    }
    return m_numbers.at(m_objects.at(met.number).payload);
}

qint64 Unarchiver::decodeCount(qint64 minimumBytesEach)
{
    Q_ASSERT(minimumBytesEach > 0);
    const qint64 start = m_cursor.offset();
    const QByteArrayView type = readType();
    if (!archive::isIntegerType(type))
        throw ArchiveError(
            start, u"type %1 where a count was expected"_s.arg(ArchiveError::quoted(type)));
    const qint64 count = m_cursor.takeInteger(ArchiveCursor::Sign::Length);
    if (count < 0)
        throw ArchiveError(start, u"a negative count"_s);
    if (count > m_cursor.bytesLeft() / minimumBytesEach) {
        throw ArchiveError(
            start, u"a count of %1 with %2 bytes left"_s.arg(count).arg(m_cursor.bytesLeft()));
    }
    return count;
}

QByteArrayView Unarchiver::readType()
{
    return m_sharedStrings.at(readSharedString("type"));
}

void Unarchiver::expectType(char type)
{
    const qint64 start = m_cursor.offset();
    const QByteArrayView found = readType();
    if (found.size() != 1 || found.front() != type) {
        throw ArchiveError(start,
            u"type %1 where %2 was expected"_s.arg(
                ArchiveError::quoted(found), ArchiveError::quoted(QByteArrayView(&type, 1))));
    }
}

void Unarchiver::expectEndOfObject()
{
    const qint64 start = m_cursor.offset();
    if (m_cursor.takeByte() != archive::EndOfObject)
        throw ArchiveError(start, u"more where the end of an object was expected"_s);
}

// The number in the table of shared strings. role: what the string is, for a message.
quint32 Unarchiver::readSharedString(const char* role)
{
    const qint64 start = m_cursor.offset();
    const quint8 lead = m_cursor.peekByte();
    if (lead == archive::NewEntry)
        return readNewSharedString();
    if (lead == archive::Nil)
        throw ArchiveError(start, u"a nil %1"_s.arg(QLatin1StringView(role)));
    const qint64 number = m_cursor.takeInteger() - archive::FirstReference;
    if (number < 0 || number >= m_sharedStrings.size()) {
        throw ArchiveError(
            start, u"a reference to a %1 not yet met"_s.arg(QLatin1StringView(role)));
    }
    return static_cast<quint32>(number);
}

quint32 Unarchiver::readNewSharedString()
{
    const qint64 start = m_cursor.offset();
    m_cursor.takeByte();
    const QByteArrayView characters = m_cursor.takeBytes(m_cursor.takeLength());
    if (!replaying()) {
        m_sharedStrings.append(characters);
        return static_cast<quint32>(m_sharedStrings.size() - 1);
    }
    // Met before, in the place where it stands.
    const auto known = std::lower_bound(m_sharedStrings.cbegin(), m_sharedStrings.cend(),
        characters, [](QByteArrayView a, QByteArrayView b) { return a.data() < b.data(); });
    if (known == m_sharedStrings.cend() || known->data() != characters.data())
        throw ArchiveError(start, u"an object that reads differently again"_s);
    return static_cast<quint32>(known - m_sharedStrings.cbegin());
}

// The number of the class in the object table, not for none. depth: of the classes being read.
quint32 Unarchiver::readClass(int depth)
{
    const qint64 start = m_cursor.offset();
    if (m_cursor.peekByte() != archive::NewEntry)
        return knownObject(Kind::Class);
    if (depth == DeepestClassChain)
        throw ArchiveError(start, u"too many superclasses"_s);
    const quint32 number = enterObject(Kind::Class);
    const quint32 name = readSharedString("class name");
    m_cursor.takeInteger();
    if (m_cursor.peekByte() == archive::Nil)
        m_cursor.takeByte();
    else
        readClass(depth + 1);
    finishObject(number, Kind::Class, name);
    return number;
}

void Unarchiver::expectClass(const ClassNames& names)
{
    const qint64 start = m_cursor.offset();
    if (m_cursor.peekByte() == archive::Nil)
        throw ArchiveError(start, u"a nil class"_s);
    const QByteArrayView found = m_sharedStrings.at(m_objects.at(readClass(0)).payload);
    if (found.isEmpty() || (found != names.name && found != names.mutableName)) {
        throw ArchiveError(start,
            u"class %1 where %2 was expected"_s.arg(
                ArchiveError::quoted(found), ArchiveError::quoted(names.name)));
    }
}

QByteArrayView Unarchiver::readCharacterString()
{
    const qint64 start = m_cursor.offset();
    if (m_cursor.peekByte() == archive::Nil)
        throw ArchiveError(start, u"a nil number type"_s);
    quint32 number = 0;
    if (m_cursor.peekByte() == archive::NewEntry) {
        number = enterObject(Kind::CharacterString);
        finishObject(number, Kind::CharacterString, readSharedString("C string"));
    } else {
        number = knownObject(Kind::CharacterString);
    }
    return m_sharedStrings.at(m_objects.at(number).payload);
}

// Takes the byte that begins an entry of the object table and gives the entry's number: the next
// one, or when the object is read again the one that it has already, by where it stands.
quint32 Unarchiver::enterObject(Kind wanted)
{
    const qint64 start = m_cursor.offset();
    m_cursor.takeByte();
    if (!replaying()) {
        if (m_objects.size() > std::numeric_limits<qint32>::max())
            throw ArchiveError(start, u"an object more than can be referred to"_s);
        m_objects.append({start, 0, Kind::Open});
        return static_cast<quint32>(m_objects.size() - 1);
    }
    const auto known = std::lower_bound(m_objects.cbegin(), m_objects.cend(), start,
        [](const Object& object, qint64 offset) { return object.offset < offset; });
    if (known == m_objects.cend() || known->offset != start || known->kind != wanted)
        throw ArchiveError(start, u"an object that reads differently again"_s);
    return static_cast<quint32>(known - m_objects.cbegin());
}

quint32 Unarchiver::knownObject(Kind wanted)
{
    const qint64 start = m_cursor.offset();
    const qint64 number = m_cursor.takeInteger() - archive::FirstReference;
    if (number < 0 || number >= m_objects.size())
        throw ArchiveError(start, u"a reference to an object not yet met"_s);
    const Kind kind = m_objects.at(number).kind;
    if (kind == Kind::Open)
        throw ArchiveError(start, u"a reference to an object that is still being read"_s);
    if (kind != wanted)
        throw ArchiveError(start, u"a reference to an object of the wrong kind"_s);
    return static_cast<quint32>(number);
}

void Unarchiver::finishObject(quint32 number, Kind kind, qint64 payload)
{
    if (replaying())
        return;
    constexpr qint64 largest = std::numeric_limits<quint32>::max();
    Object& object = m_objects[number];
    object.kind = kind;
    object.payload = static_cast<quint32>(std::min(payload, largest));
}

Unarchiver::ObjectMet Unarchiver::meetObject(Kind wanted)
{
    expectType(archive::ObjectType);
    switch (m_cursor.peekByte()) {
    case archive::Nil:
        m_cursor.takeByte();
        return {ObjectMet::Nil, 0};
    case archive::NewEntry:
        return {ObjectMet::New, enterObject(wanted)};
    default:
        return {ObjectMet::Known, knownObject(wanted)};
    }
}

std::optional<Unarchiver::Visit> Unarchiver::enterRecord(QLatin1StringView className)
{
    return enterBody(Kind::Record, {bytesOf(className), {}});
}

std::optional<Unarchiver::Visit> Unarchiver::enterDictionary()
{
    return enterBody(Kind::Dictionary,
        {bytesOf(archive::DictionaryClass), bytesOf(archive::MutableDictionaryClass)});
}

// What is referred to again is read again, from where it stands. All that is read so is counted
// beforehand: a small stream of references to references must not become a large library.
std::optional<Unarchiver::Visit> Unarchiver::enterBody(Kind kind, const ClassNames& names)
{
    const qint64 start = m_cursor.offset();
    const ObjectMet met = meetObject(kind);
    if (met.form == ObjectMet::Nil)
        return std::nullopt;
    Visit visit{met.number, kind, -1};
    if (met.form == ObjectMet::Known) {
        const Object& object = m_objects.at(met.number);
        m_replayBudget -= object.payload;
        if (m_replayBudget < 0)
            throw ArchiveError(start, u"too many references to large objects"_s);
        ++m_replays;
        visit.resumeAt = m_cursor.offset();
        m_cursor.moveTo(object.offset + 1);
    }
    expectClass(names);
    return visit;
}

void Unarchiver::leaveBody(const Visit& visit)
{
    expectEndOfObject();
    if (visit.resumeAt >= 0) {
        --m_replays;
        m_cursor.moveTo(visit.resumeAt);
        return;
    }
    const qint64 length = m_cursor.offset() - m_objects.at(visit.number).offset;
    finishObject(visit.number, visit.kind, length);
}

} // namespace tomely
