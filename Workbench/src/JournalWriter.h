#ifndef JOURNALWRITER_H
#define JOURNALWRITER_H

#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>

class Clock;

/// Writes a journal: a header and then a line for each input, in JSON.
///
/// Each line goes to the system in one piece before write() returns, so that a program that crashes
/// leaves whole lines, the one with the input that it crashed of among them.
class JournalWriter
{
    Q_DECLARE_TR_FUNCTIONS(JournalWriter)

public:
    /// Starts a new file. Throws InputError when there is one already or it cannot be written.
    ///
    /// @param pluginId of the plug-in whose inputs are written
    /// @param clock    gives the times, which count from now; it must outlive the writer
    JournalWriter(const QString &fileName, const QString &pluginId, const Clock &clock);

    /// Writes an entry with the time. Once a line could not be written, nothing more is.
    void write(QJsonObject entry);

    /// Why a line could not be written; empty when all were.
    const QString &failure() const { return m_failure; }

private:
    void writeLine(const QJsonObject &object);

    QFile m_file;
    const Clock &m_clock;
    const qint64 m_startMs;
    QString m_failure;
};

#endif
