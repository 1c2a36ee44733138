// The one exception of the archive classes: what is wrong with a stream, and where. A file's reader
// catches it once, where the file is opened. It knows nothing of what the stream is for.

#pragma once

#include <algorithm>
#include <exception>
#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tomely {

class ArchiveError : public std::exception {
public:
    /// problem: what was met or expected, as the start of a sentence without its end ("a nil class
    /// name"). offset: where it stands, in bytes from the start of the stream.
    ArchiveError(qint64 offset, const QString& problem)
        : m_offset(offset)
        , m_problem(problem)
        , m_what(message().toUtf8())
    {
    }

    /// Bytes of a damaged stream, short and printable, for the text of a problem.
    static QString quoted(QByteArrayView bytes)
    {
        constexpr qsizetype longest = 40;
        QString text = QString::fromLatin1(bytes.first(std::min(bytes.size(), longest)));
        const auto isControl = [](QChar character) {
            return !character.isPrint();
        };
        std::replace_if(text.begin(), text.end(), isControl, u'?');
        return u'"' + text + u'"';
    }

    qint64 offset() const noexcept { return m_offset; }

    const QString& problem() const noexcept { return m_problem; }

    /// "a nil class name at offset 123"
    QString message() const
    {
        return m_problem + QStringLiteral(" at offset ") + QString::number(m_offset);
    }

    /// The message in UTF-8.
    const char* what() const noexcept override { return m_what.constData(); }

private:
    qint64 m_offset;
    QString m_problem;
    QByteArray m_what;
};

} // namespace tomely
