#include "cli/Output.h"

#include "cli/PlainText.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>

namespace tomely {

namespace {

constexpr qsizetype bufferSize = 64 << 10; // what a pipe holds

} // namespace

void Output::write(QByteArrayView utf8)
{
    m_buffer.append(utf8);
    if (m_buffer.size() >= bufferSize)
        flush();
}

void Output::write(QStringView text)
{
    write(wellFormedUtf8(text));
}

int Output::flush()
{
    qsizetype done = 0;
    while (m_errorNumber == 0 && done < m_buffer.size()) {
        const auto left = static_cast<std::size_t>(m_buffer.size() - done);
        const ssize_t count = ::write(m_descriptor, m_buffer.constData() + done, left);
        if (count >= 0)
            done += count;
        else if (errno != EINTR)
            m_errorNumber = errno;
    }
    m_buffer.resize(0);
    return m_errorNumber;
}

int Output::terminalWidth() const
{
    winsize size{};
    if (::ioctl(m_descriptor, TIOCGWINSZ, &size) != 0)
        return 0;
    return size.ws_col;
}

} // namespace tomely
