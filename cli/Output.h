// Text on its way to a file descriptor, usually standard output, through one buffer. A failure is
// remembered and asked for at the end, so that commands just write.

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

namespace tomely {

class Output {
public:
    /// `descriptor` stays the caller's.
    explicit Output(int descriptor) : m_descriptor(descriptor) { }

    Q_DISABLE_COPY_MOVE(Output)

    /// Flushes; who wants to know how that went calls flush().
    ~Output() { flush(); }

    /// Bytes that are UTF-8 already.
    void write(QByteArrayView utf8);

    /// A text as UTF-8, lone surrogates as U+FFFD.
    void write(QStringView text);

    /// Sends what is buffered on its way. Gives the errno of the first write that failed, or 0;
    /// after a failure nothing more is written.
    int flush();

    /// The characters in a line of the terminal that this goes to, or 0 when it goes elsewhere.
    int terminalWidth() const;

private:
    int m_descriptor;
    int m_errorNumber = 0;
    QByteArray m_buffer;
};

} // namespace tomely
