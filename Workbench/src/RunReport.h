#ifndef RUNREPORT_H
#define RUNREPORT_H

#include "ErrorTally.h"

#include <QObject>

#include <QVariantList>
#include <optional>

class ServerLink;
class Workbench;

/// A server's answer to the wish to snooze a node.
struct SnoozeAnswer
{
    QString nodeId;
    qint64 endMs = 0; ///< when the snooze is to end, in milliseconds since the epoch
    QString resultCode;

    bool isAccepted() const;
    /// Whether there was no connection to answer by: the server may have set the snooze or not.
    bool isLost() const;
};

/// How often this machine was sampled, and the last sample in percent, without the figures that
/// could not be sampled.
struct SampleSummary
{
    int count = 0;
    std::optional<int> lastCpu;
    std::optional<int> lastMemory;
};

/// Tells what happens in a Workbench, as it happens. Each subclass does so in a form of its own.
class RunReport : public QObject
{
    Q_OBJECT

public:
    /// Tells what happens in a Workbench, from now on. To be called once; the Workbench must
    /// outlive the report.
    void follow(Workbench &workbench);

    /// Tells of a picture of the dashboard, which was to be saved in a file.
    virtual void writePicture(const QString &file, bool isSaved) = 0;

    /// Tells that the run ends because the server was not connected within some time.
    virtual void writeConnectTimeout(qint64 timeoutMs) = 0;

    /// Tells what has become of all, at the end.
    virtual void writeSummary() = 0;

protected:
    enum class ErrorChange { Raised, Cleared, Changed };

    explicit RunReport(QObject *parent);

    const ErrorTally &tally() const { return m_tally; }
    const SampleSummary &samples() const { return m_samples; }
    QList<ListedError> listedErrors() const;
    /// Whether there is a connection to the server.
    bool isConnected() const;

private:
    virtual void writeError(ErrorChange change, const ListedError &error) = 0;
    /// A step of the scenario waited for an error that did not come.
    virtual void writeWaitInVain(const QString &key) = 0;
    /// A watched station or camera does not answer any more.
    virtual void writeLostNode(const QString &nodeId, const QString &reason) = 0;
    /// It answers again.
    virtual void writeFoundNode(const QString &nodeId) = 0;
    virtual void writeConnection(bool isOpen) = 0;
    /// There is no connection, and the next try is after a pause.
    virtual void writeFailedAttempt(const QString &reason, qint64 pauseMs) = 0;
    /// The server does not want this client.
    virtual void writeRefusal(const QString &reason) = 0;
    /// @param success whether the client has learnt the states of all nodes
    virtual void writeStates(bool success) = 0;
    /// @param percentage how much of a server's capacity is used
    virtual void writeCapacity(const QString &serverName, double percentage) = 0;
    virtual void writeSnooze(const SnoozeAnswer &answer) = 0;
    /// @param isStillDisconnected whether the node's error comes back
    virtual void writeSnoozeEnd(const QString &nodeId, bool isStillDisconnected) = 0;
    virtual void writeCameraReconnection(const QStringList &cameraIds) = 0;
    virtual void writeStationReconnection(const QStringList &stationIds) = 0;
    virtual void writeSupport(const QString &stationId, bool isSupported) = 0;
    virtual void writeLogEntry(const QString &name, const QVariantList &parameters) = 0;

    void followErrors(const ErrorListWatch &watch);
    void followServer(Workbench &workbench);
    void followUser(Workbench &workbench);
    void noticeEvent(const QString &name, const QVariant &data);
    void noticeCommand(const QString &command, const QVariant &data, const QString &target);
    void noticeResult(const QString &command, const QVariant &data, const QString &resultCode);
    void noticeSample(int cpu, int memory);

    const ErrorListWatch *m_watch = nullptr;
    const ServerLink *m_link = nullptr;
    ErrorTally m_tally;
    SampleSummary m_samples;
};

#endif
