#include "RunReport.h"

#include "ErrorWait.h"
#include "Framework.h"
#include "MachineSample.h"
#include "OperationalLogPlugin.h"
#include "PluginSurface.h"
#include "ServerLink.h"
#include "ServerNames.h"
#include "TopologyPlugin.h"
#include "Workbench.h"

namespace {

constexpr qint64 MsPerSecond = 1000;

QStringList nodeIds(const QVariant &ownParts, const QString &parentId)
{
    QStringList ids;
    const QStringList parts = ownParts.toStringList();
    for (const QString &part : parts)
        ids.append(childNodeId(parentId, part));
    return ids;
}

} // namespace

bool SnoozeAnswer::isAccepted() const
{
    return resultCode == ServerNames::Success;
}

bool SnoozeAnswer::isLost() const
{
    return resultCode == ServerNames::FrameworkInternalError;
}

RunReport::RunReport(QObject *parent)
    : QObject(parent)
{ }

void RunReport::follow(Workbench &workbench)
{
    m_watch = &workbench.errorWatch();
    m_link = &workbench.link();
    followErrors(*m_watch);
    connect(&workbench.errorWait(), &ErrorWait::gaveUp, this,
            [this](const QString &key) { writeWaitInVain(key); });
    followServer(workbench);
    followUser(workbench);
}

QList<ListedError> RunReport::listedErrors() const
{
    return m_watch ? m_watch->listed() : QList<ListedError>();
}

bool RunReport::isConnected() const
{
    return m_link && m_link->isOpen();
}

void RunReport::followErrors(const ErrorListWatch &watch)
{
    connect(&watch, &ErrorListWatch::raised, this, [this](const ListedError &error) {
        m_tally.raised(error);
        writeError(ErrorChange::Raised, error);
    });
    connect(&watch, &ErrorListWatch::cleared, this, [this](const ListedError &error) {
        m_tally.cleared(error);
        writeError(ErrorChange::Cleared, error);
    });
    connect(&watch, &ErrorListWatch::changed, this,
            [this](const ListedError &error) { writeError(ErrorChange::Changed, error); });
}

void RunReport::followServer(Workbench &workbench)
{
    const ServerLink &link = workbench.link();
    connect(&link, &ServerLink::opened, this, [this] { writeConnection(true); });
    connect(&link, &ServerLink::closed, this, [this] { writeConnection(false); });
    connect(&link, &ServerLink::attemptFailed, this,
            [this](const QString &reason, qint64 pauseMs) { writeFailedAttempt(reason, pauseMs); });
    connect(&link, &ServerLink::refused, this,
            [this](const QString &reason) { writeRefusal(reason); });
    connect(
        &workbench, &Workbench::nodeLost, this,
        [this](const QString &nodeId, const QString &reason) { writeLostNode(nodeId, reason); });
    connect(&workbench, &Workbench::nodeBack, this,
            [this](const QString &nodeId) { writeFoundNode(nodeId); });
    connect(&workbench, &Workbench::eventArrived, this, &RunReport::noticeEvent);
    connect(&workbench.topology(), &TopologyPlugin::camStatusRetrievedChanged, this,
            [this](bool success) { writeStates(success); });
    connect(&workbench.surface(), &PluginSurface::reachingLimit, this,
            [this](const QString &serverName, double percentage) {
                writeCapacity(serverName, percentage);
            });
    connect(&workbench.surface(), &PluginSurface::clientResourceChanged, this,
            &RunReport::noticeSample);
}

void RunReport::followUser(Workbench &workbench)
{
    connect(&workbench.framework(), &Framework::commandStarted, this, &RunReport::noticeCommand);
    connect(&workbench.framework(), &Framework::commandExecuted, this,
            [this](const QString &command, const QVariant &data, const QString &,
                   const QString &resultCode) { noticeResult(command, data, resultCode); });
    connect(&workbench.surface(), &PluginSurface::supportAnswered, this,
            [this](const QString &stationId, bool isSupported) {
                writeSupport(stationId, isSupported);
            });
    connect(&workbench.logPlugin(), &OperationalLogPlugin::entryAdded, this,
            [this](const QString &name, const QVariantList &parameters) {
                writeLogEntry(name, parameters);
            });
}

void RunReport::noticeEvent(const QString &name, const QVariant &data)
{
    if (name == ServerNames::DeviceStillError)
        writeSnoozeEnd(data.toMap().value(ServerNames::KeyNodeId).toString(), true);
    else if (name == ServerNames::RemoveSnooze)
        writeSnoozeEnd(data.toString(), false);
}

void RunReport::noticeCommand(const QString &command, const QVariant &data, const QString &target)
{
    if (command == ServerNames::ReconnectCameras)
        writeCameraReconnection(nodeIds(data, target));
    else if (command == ServerNames::ReconnectSubstations)
        writeStationReconnection(nodeIds(data, target));
}

void RunReport::noticeResult(const QString &command, const QVariant &data,
                             const QString &resultCode)
{
    if (command != ServerNames::SetSnooze)
        return;
    const QVariantMap request = data.toMap();
    writeSnooze({request.value(ServerNames::KeyNodeId).toString(),
                 request.value(ServerNames::KeyTimestamp).toLongLong() * MsPerSecond, resultCode});
}

void RunReport::noticeSample(int cpu, int memory)
{
    ++m_samples.count;
    m_samples.lastCpu = MachineSample::knownCpu(cpu);
    m_samples.lastMemory = MachineSample::knownMemory(memory);
}
