#include "platform/Archiver.h"

#include "platform/ArchiveError.h"
#include "platform/ArchiveFormat.h"

#include <algorithm>
#include <bit>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

struct ClassFacts {
    QLatin1StringView name;
    qint32 version;
    QLatin1StringView superclass; // empty for none
};

constexpr std::array<ClassFacts, 6> ClassesKnown{{
    {archive::RootClass, 0, {}},
    {archive::StringClass, 1, archive::RootClass},
    {archive::DictionaryClass, 0, archive::RootClass},
    {archive::MutableDictionaryClass, 0, archive::DictionaryClass},
    {archive::ValueClass, 0, archive::RootClass},
    {archive::NumberClass, 0, archive::ValueClass},
}};

ClassFacts factsOf(QLatin1StringView name)
{
    const auto* const found = std::find_if(ClassesKnown.begin(), ClassesKnown.end(),
        [name](const ClassFacts& facts) { return facts.name == name; });
    return found == ClassesKnown.end() ? ClassFacts{name, 0, archive::RootClass} : *found;
}

QByteArrayView bytesOf(QLatin1StringView text)
{
    return {text.data(), text.size()};
}

} // namespace

Archiver::Archiver()
{
    m_buffer.appendByte(archive::StreamVersion);
    m_buffer.appendLength(archive::LittleEndianSignature.size());
    m_buffer.appendBytes(archive::LittleEndianSignature);
    m_buffer.appendInteger(archive::SystemVersion);
}

void Archiver::encodeBytes(QByteArrayView bytes)
{
    writeKnownString(m_bytesType);
    m_buffer.appendLength(bytes.size());
    m_buffer.appendBytes(bytes);
}

void Archiver::encodeByteBlock(quint8 value)
{
    writeKnownString(m_bytesType);
    m_buffer.appendInteger(1);
    m_buffer.appendByte(value);
}

void Archiver::encodeInt32Block(qint32 value)
{
    std::array<char, sizeof(value)> bytes{};
    qToBigEndian(value, bytes.data());
    encodeBytes(bytes);
}

void Archiver::encodeDoubleBlock(double value)
{
    std::array<char, sizeof(value)> bytes{};
    qToBigEndian(std::bit_cast<quint64>(value), bytes.data());
    encodeBytes(bytes);
}

void Archiver::encodeFloatsBlock(const std::array<double, 4>& values)
{
    std::array<char, sizeof(float) * 4> bytes{};
    char* to = bytes.data();
    for (const double value : values) {
        qToBigEndian(std::bit_cast<quint32>(static_cast<float>(value)), to);
        to += sizeof(float);
    }
    encodeBytes(bytes);
}

void Archiver::encodeNil()
{
    writeKnownString(m_objectType);
    m_buffer.appendByte(archive::Nil);
}

// Nearly every text of a large archive comes here, and many are there already. The text is written
// at once, in the place where it belongs if it is new, and given up again when it is not.
void Archiver::encodeString(const QString& text)
{
    if (text.isNull()) {
        encodeNil();
        return;
    }
    if (m_stringPrefix.isEmpty()) {
        writeFirstString(text);
        return;
    }
    writeKnownString(m_objectType);
    const qsizetype start = m_buffer.size();
    m_buffer.appendBytes(m_stringPrefix);
    const qsizetype textAt = m_buffer.size();
    m_buffer.appendText(text);
    const qint32 number = m_strings.findOrAdd(m_buffer, textAt, m_objectCount);
    if (number == m_objectCount) {
        takeObjectNumber();
        m_buffer.appendByte(archive::EndOfObject);
    } else {
        m_buffer.truncate(start);
        writeReference(number);
    }
}

// From the second on, what stands before a text's characters is always the same: two references.
void Archiver::writeFirstString(const QString& text)
{
    const qint32 number = m_objectCount;
    beginObject(archive::StringClass);
    writeKnownString(m_bytesType);
    const qsizetype textAt = m_buffer.size();
    m_buffer.appendText(text);
    m_strings.findOrAdd(m_buffer, textAt, number);
    endObject();

    ArchiveBuffer prefix;
    prefix.appendByte(archive::NewEntry);
    prefix.appendInteger(numberOfClass(archive::StringClass) + archive::FirstReference);
    prefix.appendInteger(m_bytesType.number + archive::FirstReference);
    m_stringPrefix = prefix.take();
}

void Archiver::encodeData(const QByteArray& data)
{
    if (data.isNull()) {
        encodeNil();
        return;
    }
    beginObject(archive::DataClass);
    encodeCount(data.size());
    writeSharedString('[' + QByteArray::number(data.size()) + "c]");
    m_buffer.appendBytes(data);
    endObject();
}

void Archiver::encodeNumber(qint32 number)
{
    beginObject(archive::NumberClass);
    writeKnownString(m_characterStringType);
    if (m_integerTypeObject < 0) {
        m_integerTypeObject = takeObjectNumber();
        m_buffer.appendByte(archive::NewEntry);
        writeKnownString(m_integerType);
    } else {
        writeReference(m_integerTypeObject);
    }
    writeKnownString(m_integerType);
    m_buffer.appendInteger(number);
    endObject();
}

// An object takes its number before its class does.
void Archiver::beginObject(QLatin1StringView className)
{
    writeKnownString(m_objectType);
    takeObjectNumber();
    m_buffer.appendByte(archive::NewEntry);
    writeClass(className);
}

void Archiver::beginDictionary(qsizetype count)
{
    beginObject(archive::MutableDictionaryClass);
    encodeCount(count);
}

void Archiver::endObject()
{
    m_buffer.appendByte(archive::EndOfObject);
}

void Archiver::encodeCount(qsizetype count)
{
    Q_ASSERT(count >= 0);
    writeKnownString(m_integerType);
    m_buffer.appendLength(count);
}

QByteArray Archiver::takeData()
{
    return m_buffer.take();
}

qint32 Archiver::takeObjectNumber()
{
    if (m_objectCount == ArchiveBuffer::LargestInteger)
        throw ArchiveError(m_buffer.size(), u"an object more than can be counted"_s);
    return m_objectCount++;
}

void Archiver::writeReference(qint32 number)
{
    m_buffer.appendInteger(number + archive::FirstReference);
}

void Archiver::writeKnownString(KnownString& string)
{
    if (string.number >= 0) {
        writeReference(string.number);
        return;
    }
    string.number = m_sharedStringCount++;
    writeCountedBytes(string.characters);
}

// Class names and the types of data, of which there may be as many as lengths of pictures.
void Archiver::writeSharedString(QByteArrayView characters)
{
    const auto found = m_otherSharedStrings.constFind(characters.toByteArray());
    if (found != m_otherSharedStrings.constEnd()) {
        writeReference(*found);
        return;
    }
    m_otherSharedStrings.insert(characters.toByteArray(), m_sharedStringCount++);
    writeCountedBytes(characters);
}

void Archiver::writeCountedBytes(QByteArrayView bytes)
{
    m_buffer.appendByte(archive::NewEntry);
    m_buffer.appendLength(bytes.size());
    m_buffer.appendBytes(bytes);
}

// Of a class that has been written, else -1.
qint32 Archiver::numberOfClass(QLatin1StringView name) const
{
    const auto written = std::find_if(m_classes.begin(), m_classes.end(),
        [name](const WrittenClass& candidate) { return candidate.name == bytesOf(name); });
    return written == m_classes.end() ? -1 : written->number;
}

void Archiver::writeClass(QLatin1StringView name)
{
    while (!name.isEmpty()) {
        if (const qint32 number = numberOfClass(name); number >= 0) {
            writeReference(number);
            return;
        }
        const ClassFacts facts = factsOf(name);
        m_classes.push_back({bytesOf(name).toByteArray(), takeObjectNumber()});
        m_buffer.appendByte(archive::NewEntry);
        writeSharedString(bytesOf(name));
        m_buffer.appendInteger(facts.version);
        name = facts.superclass;
    }
    m_buffer.appendByte(archive::Nil);
}

} // namespace tomely
