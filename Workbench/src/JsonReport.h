#ifndef JSONREPORT_H
#define JSONREPORT_H

#include "RunReport.h"

class Clock;
class QJsonObject;
class QTextStream;

/// Writes what happens as JSON, one object a line. Each has the time, in ISO 8601 with the offset
/// from UTC, and an "event" that says what kind of happening it is; docs/headless.md lists them.
///
///     {"connected":true,"event":"connection","time":"2026-06-05T14:03:07.000+02:00"}
class JsonReport : public RunReport
{
    Q_OBJECT

public:
    /// @param out   is flushed after each line
    /// @param clock gives the time of a line; both must outlive the report
    JsonReport(QTextStream &out, const Clock &clock, QObject *parent = nullptr);

    void writePicture(const QString &file, bool isSaved) override;
    void writeConnectTimeout(qint64 timeoutMs) override;

    /// Writes the errors that are listed still and how many of each kind came and went.
    void writeSummary() override;

private:
    void write(const QString &event, QJsonObject object);
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

    QTextStream &m_out;
    const Clock &m_clock;
};

#endif
