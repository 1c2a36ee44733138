#include "platform/UserDefaults.h"

#include <optional>

#include <QByteArrayView>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/AtomicFile.h"
#include "platform/LenientNumbers.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

using Values = QMap<QString, QVariant>;

// Another program holds the lock for as long as it takes to write a few lines.
constexpr int lockMilliseconds = 2000;

// QSettings knows the INI syntax, but is not let near the real file: on a full disk it replaces the
// file by an empty one and reports success, and it remembers what it read by path, size and time.
// So it works on scratch files that nobody else has and that are never used twice.

Values parseFile(const QString& path)
{
    const QSettings settings(path, QSettings::IniFormat);
    Values values;
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys) {
        const QVariant value = settings.value(key);
        if (value.isValid())
            values.insert(key, value);
    }
    return values;
}

bool writeScratch(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

// Gives nothing when there is a file that cannot be read.
std::optional<Values> readValues(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.exists() ? std::nullopt : std::optional<Values>(Values());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    const QTemporaryDir scratch;
    const QString copy = scratch.filePath(u"read.ini"_s);
    // Preferences that may be a little old are better than none.
    return parseFile(scratch.isValid() && writeScratch(copy, bytes) ? copy : path);
}

// Gives nothing when there is no room for the scratch files.
std::optional<QByteArray> encodeValues(const Values& values)
{
    if (values.isEmpty())
        return QByteArray();
    const QTemporaryDir scratch;
    const QString path = scratch.filePath(u"write.ini"_s);
    {
        QSettings settings(path, QSettings::IniFormat);
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            settings.setValue(value.key(), value.value());
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    // A file cut short ends within a line or lacks keys.
    const QString copy = scratch.filePath(u"check.ini"_s);
    if (!bytes.endsWith('\n') || !writeScratch(copy, bytes)
        || parseFile(copy).keys() != values.keys())
        return std::nullopt;
    return bytes;
}

// The file holds texts, lists of texts and data; a text with commas that a person typed without
// quotes comes as a list.
QString textOf(const QVariant& value)
{
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u", "_s);
    if (value.typeId() == QMetaType::QByteArray)
        return QString::fromUtf8(value.toByteArray());
    return value.toString();
}

} // namespace

UserDefaults::UserDefaults() : UserDefaults(defaultFilePath()) { }

UserDefaults::UserDefaults(const QString& filePath)
    : m_filePath(filePath)
    , m_values(readValues(filePath).value_or(Values()))
{
}

UserDefaults::~UserDefaults()
{
    if (!m_pending.isEmpty())
        synchronize();
}

QString UserDefaults::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/Tomely/Tomely.ini"_L1;
}

bool UserDefaults::boolForKey(const QString& key) const
{
    const QString text = stringForKey(key).trimmed();
    for (const QLatin1StringView yes : {"true"_L1, "yes"_L1, "on"_L1}) {
        if (text.compare(yes, Qt::CaseInsensitive) == 0)
            return true;
    }
    return leadingDouble(text) != 0;
}

qint64 UserDefaults::integerForKey(const QString& key) const
{
    return leadingInt64(stringForKey(key));
}

QString UserDefaults::stringForKey(const QString& key) const
{
    return textOf(m_values.value(key));
}

QStringList UserDefaults::stringListForKey(const QString& key) const
{
    const QVariant value = m_values.value(key);
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    const QString text = textOf(value);
    return text.isEmpty() ? QStringList() : QStringList(text);
}

QByteArray UserDefaults::dataForKey(const QString& key) const
{
    const QVariant value = m_values.value(key);
    if (!value.isValid())
        return {};
    const QByteArray data =
        value.typeId() == QMetaType::QByteArray ? value.toByteArray() : textOf(value).toUtf8();
    return data.isNull() ? QByteArray("") : data;
}

// Values are kept in the form in which they come back from the file, so that reading is the same
// before and after.

void UserDefaults::setBool(const QString& key, bool value)
{
    change(key, value ? u"true"_s : u"false"_s);
}

void UserDefaults::setInteger(const QString& key, qint64 value)
{
    change(key, QString::number(value));
}

void UserDefaults::setString(const QString& key, const QString& value)
{
    change(key, value);
}

void UserDefaults::setStringList(const QString& key, const QStringList& value)
{
    if (value.size() > 1)
        change(key, value);
    else
        change(key, value.value(0));
}

void UserDefaults::setData(const QString& key, const QByteArray& value)
{
    change(key, value.isNull() ? QVariant() : QVariant(value));
}

void UserDefaults::remove(const QString& key)
{
    change(key, QVariant());
}

bool UserDefaults::synchronize()
{
    if (m_pending.isEmpty()) {
        const std::optional<Values> values = readValues(m_filePath);
        m_values = values.value_or(m_values);
        return values.has_value();
    }
    // The lock keeps two programs from each writing the file without the other's change.
    QLockFile lock(m_filePath + ".lock"_L1);
    if (!QDir().mkpath(QFileInfo(m_filePath).absolutePath()) || !lock.tryLock(lockMilliseconds))
        return false;
    std::optional<Values> values = readValues(m_filePath);
    if (!values)
        return false;
    apply(m_pending, *values);
    const std::optional<QByteArray> bytes = encodeValues(*values);
    if (!bytes || !AtomicFile::write(m_filePath, *bytes).isOk())
        return false;
    m_values = *std::move(values);
    m_pending.clear();
    return true;
}

void UserDefaults::change(const QString& key, const QVariant& value)
{
    m_pending.insert(key, value);
    apply(m_pending, m_values);
    // Later changes in the same turn of the event loop go to disk together with this one.
    if (m_writeScheduled || !QCoreApplication::instance())
        return;
    m_writeScheduled = true;
    QTimer::singleShot(0, &m_context, [this] {
        m_writeScheduled = false;
        if (!m_pending.isEmpty())
            synchronize();
    });
}

void UserDefaults::apply(const Values& changes, Values& values)
{
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change->isValid())
            values.insert(change.key(), *change);
        else
            values.remove(change.key());
    }
}

} // namespace tomely
