#ifndef STANDARDOUTPUT_H
#define STANDARDOUTPUT_H

#include <QCoreApplication>
#include <QTextStream>

/// What a program prints for its user or for another program.
class StandardOutput
{
    Q_DECLARE_TR_FUNCTIONS(StandardOutput)

public:
    StandardOutput();
    /// Writes to a file's handle instead, which stays the caller's.
    explicit StandardOutput(FILE *file);

    QTextStream &stream() { return m_stream; }

    /// Throws HostError when some of what was printed could not be written, as on a full disk.
    void expectWritten();

private:
    QTextStream m_stream;
};

#endif
