// The preferences of the person who runs the program: a small INI file in the desktop's
// configuration folder. Callers read a preference at the moment they use it and keep no copy. This
// class must not know which preferences there are (see PreferenceKeys.h).

#pragma once

#include <QLatin1StringView>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace tomely {

class UserDefaults {
public:
    /// The file of the current user; see defaultFilePath.
    UserDefaults();
    /// Another file, which need not exist yet.
    explicit UserDefaults(const QString& filePath);
    /// Writes what was not written yet.
    ~UserDefaults();
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// "Tomely/Tomely.ini" in the configuration folder, by default ~/.config.
    static QString defaultFilePath();

    QString filePath() const { return m_filePath; }

    bool contains(const QString& key) const { return m_values.contains(key); }

    bool contains(QLatin1StringView key) const { return contains(QString(key)); }

    /// True for a stored true, for a number other than 0, and for the texts "true", "yes" and "on"
    /// in any case; false for anything else, and when the key is absent.
    bool boolForKey(const QString& key) const;

    bool boolForKey(QLatin1StringView key) const { return boolForKey(QString(key)); }

    /// The stored number, or the integer a text starts with (see leadingInt64); 0 when absent.
    qint64 integerForKey(const QString& key) const;

    qint64 integerForKey(QLatin1StringView key) const { return integerForKey(QString(key)); }

    /// The stored text, or the number or data as text; empty when absent.
    QString stringForKey(const QString& key) const;

    QString stringForKey(QLatin1StringView key) const { return stringForKey(QString(key)); }

    /// The stored texts; a single text is a list of one, unless it is empty. Empty when absent.
    QStringList stringListForKey(const QString& key) const;

    QStringList stringListForKey(QLatin1StringView key) const
    {
        return stringListForKey(QString(key));
    }

    /// The stored data, or a text as UTF-8; null only when absent.
    QByteArray dataForKey(const QString& key) const;

    QByteArray dataForKey(QLatin1StringView key) const { return dataForKey(QString(key)); }

    /// What is set can be read at once. It is written to disk when the event loop is next idle, by
    /// synchronize(), or at destruction, whichever comes first. A change that could not be written
    /// stays pending for the next attempt.
    void setBool(const QString& key, bool value);

    void setBool(QLatin1StringView key, bool value) { setBool(QString(key), value); }

    void setInteger(const QString& key, qint64 value);

    void setInteger(QLatin1StringView key, qint64 value) { setInteger(QString(key), value); }

    void setString(const QString& key, const QString& value);

    void setString(QLatin1StringView key, const QString& value) { setString(QString(key), value); }

    void setStringList(const QString& key, const QStringList& value);

    void setStringList(QLatin1StringView key, const QStringList& value)
    {
        setStringList(QString(key), value);
    }

    /// Null data removes the key; empty data is kept.
    void setData(const QString& key, const QByteArray& value);

    void setData(QLatin1StringView key, const QByteArray& value) { setData(QString(key), value); }

    void remove(const QString& key);

    void remove(QLatin1StringView key) { remove(QString(key)); }

    /// Writes pending changes to disk and takes in what others changed in the file since it was
    /// last read; where both changed a key, the change made here wins. Gives false when the file
    /// could not be read or written: then it is as it was, and the changes stay pending.
    bool synchronize();

private:
    using Values = QMap<QString, QVariant>;

    static void apply(const Values& changes, Values& values);
    void change(const QString& key, const QVariant& value);

    QString m_filePath;
    Values m_values;
    // Not written yet; an invalid value stands for a removed key.
    Values m_pending;
    bool m_writeScheduled = false;
    // The scheduled write belongs to it and is cancelled with it.
    QObject m_context;
};

} // namespace tomely
