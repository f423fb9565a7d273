#ifndef CONSOLEREPORT_H
#define CONSOLEREPORT_H

#include "RunReport.h"

class Clock;
class QTextStream;

/// Writes what happens as lines of text: the local time with its zone, one word that says what kind
/// of happening it is, and the rest.
///
///     2026-06-05 14:03:07 CEST  raised    Camera disconnected: Gate / Camera 2  [3_gate/cam2]
class ConsoleReport : public RunReport
{
    Q_OBJECT

public:
    /// @param out   is flushed after each line
    /// @param clock gives the time of a line; both must outlive the report
    ConsoleReport(QTextStream &out, const Clock &clock, QObject *parent = nullptr);

    void writeLine(const QString &word, const QString &text);

    void writePicture(const QString &file, bool isSaved) override;
    void writeConnectTimeout(qint64 timeoutMs) override;

    /// Writes how many errors of each kind were raised, cleared and are listed still, and how many
    /// samples of this machine there were.
    void writeSummary() override;

private:
    void writeError(ErrorChange change, const ListedError &error) override;
    void writeWaitInVain(const QString &key) override;
    void writeLostNode(const QString &nodeId, const QString &reason) override;
    void writeFoundNode(const QString &nodeId) override;
    void writeConnection(bool isOpen) override;
    void writeFailedAttempt(const QString &reason, qint64 pauseMs) override;
    void writeRefusal(const QString &reason) override;
    void writeStates(bool success) override;
    void writeCapacity(const QString &serverName, double percentage) override;
    void writeSnooze(const SnoozeAnswer &answer) override;
    void writeSnoozeEnd(const QString &nodeId, bool isStillDisconnected) override;
    void writeCameraReconnection(const QStringList &cameraIds) override;
    void writeStationReconnection(const QStringList &stationIds) override;
    void writeSupport(const QString &stationId, bool isSupported) override;
    void writeLogEntry(const QString &name, const QVariantList &parameters) override;
    QString timeText(qint64 ms) const;

    QTextStream &m_out;
    const Clock &m_clock;
};

#endif
