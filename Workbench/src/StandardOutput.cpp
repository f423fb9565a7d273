#include "StandardOutput.h"

#include "HostError.h"

#include <QIODevice>

StandardOutput::StandardOutput()
    : StandardOutput(stdout)
{ }

StandardOutput::StandardOutput(FILE *file)
    : m_stream(file, QIODevice::WriteOnly)
{ }

void StandardOutput::expectWritten()
{
    m_stream.flush();
    if (m_stream.status() != QTextStream::Ok)
        throw HostError(tr("The output cannot be written."));
}
