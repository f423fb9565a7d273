#ifndef CONSOLEREPORT_H
#define CONSOLEREPORT_H

#include "ErrorTally.h"

#include <QObject>

class Clock;
class QTextStream;
class Workbench;

/// Writes what happens as lines of text: the local time with its zone, one word that says what kind
/// of happening it is, and the rest.
///
///     2026-06-05 14:03:07 CEST  raised    Camera disconnected: Gate / Camera 2  [3_gate/cam2]
class ConsoleReport : public QObject
{
    Q_OBJECT

public:
    /// @param out   is flushed after each line
    /// @param clock gives the time of a line; both must outlive the report
    ConsoleReport(QTextStream &out, const Clock &clock, QObject *parent = nullptr);

    /// Writes what happens in a Workbench, from now on.
    void follow(Workbench &workbench);

    void writeLine(const QString &word, const QString &text);

    /// Writes how many errors of each kind were raised, cleared and are listed still, and how many
    /// samples of this machine there were.
    void writeSummary();

private:
    void followErrors(const Workbench &workbench);
    void followServer(Workbench &workbench);
    void followUser(Workbench &workbench);
    void writeReconnection(const QString &command, const QVariant &data, const QString &target);
    void writeSnooze(const QVariantMap &request, const QString &resultCode);
    void writeEvent(const QString &name, const QVariant &data);
    QString timeText(qint64 ms) const;

    QTextStream &m_out;
    const Clock &m_clock;
    ErrorTally m_tally;
    int m_sampleCount = 0;
    int m_lastCpu = 0;
    int m_lastMemory = 0;
};

#endif
