#include "StatusLine.h"

#include <QString>

#include <cstdio>

#include <unistd.h>

namespace {

const QByteArray StartAnew = QByteArrayLiteral("\r\x1b[K"); // to the line's start, and empty it

void writeToStandardError(const QByteArray &bytes)
{
    std::fputs(bytes.constData(), stderr);
    std::fflush(stderr);
}

} // namespace

StatusLine StatusLine::onStandardError()
{
    const bool isSeen = isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    return StatusLine(isSeen ? Write(&writeToStandardError) : Write());
}

void StatusLine::show(const QString &text) const
{
    if (m_write)
        m_write(StartAnew + text.toLocal8Bit());
}

void StatusLine::clear() const
{
    if (m_write)
        m_write(StartAnew);
}
