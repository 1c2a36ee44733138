// Sees to it that a person has one running program per desktop session: a second start hands its
// files to the first and ends. It needs no session bus, and must not know what is done with the
// files.

#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

class QLocalSocket;

namespace tomely {

class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        First, // this program is the one; filesRequested tells of later starts
        HandedOver, // the running program took the files: this one should end
        Unanswered, // a program is running, but busy or hung; it may still take the files later
        Alone, // no program could be reached and none can reach this one: go on without
    };

    /// How long either side waits for the other, and how large a message may be.
    static constexpr int waitMilliseconds = 2000;
    static constexpr qsizetype maximumMessageSize = qsizetype{1024} * 1024;

    /// For the current user and desktop session.
    explicit SingleInstance(QObject* parent = nullptr);
    /// With a socket at `socketPath`, and beside it a lock file that stays there; for tests. An
    /// empty path makes start() give Outcome::Alone.
    explicit SingleInstance(const QString& socketPath, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// A path for user and session in the desktop's runtime folder, or in the folder for temporary
    /// files where there is none. Empty when neither can be had for this user alone.
    static QString defaultSocketPath();

    /// Becomes the first, or hands `paths` to the program that is; relative paths are made absolute
    /// against the current folder. No paths at all ask the first to come forward. Blocks for at
    /// most about waitMilliseconds. Alone is the outcome when no socket can be made or found, or
    /// when the paths exceed maximumMessageSize.
    [[nodiscard]] Outcome start(const QStringList& paths);

    /// Whether start() gave Outcome::First.
    bool isFirst() const { return m_server.isListening(); }

Q_SIGNALS:
    /// Another start handed over these files (absolute paths); without any, it asks this program to
    /// come forward.
    void filesRequested(const QStringList& paths);

private:
    enum class Delivery {
        NotConnected,
        Unanswered,
        Taken,
    };

    enum class Lock {
        Taken,
        HeldByAnother,
        Impossible,
    };

    Lock takeLock();
    void releaseLock();
    bool listen();
    Delivery deliver(const QByteArray& request, const QDeadlineTimer& deadline) const;
    void acceptConnections();
    void readRequest(QLocalSocket* socket);

    QString m_socketPath;
    // A file locked for as long as this program is the first, -1 when not: whoever holds the lock
    // may replace the socket. The kernel gives it back when its holder dies in whatever way.
    int m_lock = -1;
    QLocalServer m_server;
};

} // namespace tomely
