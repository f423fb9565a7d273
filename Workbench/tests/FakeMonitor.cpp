#include "FakeMonitor.h"

#include "PrintedValue.h"

FakeMonitor::FakeMonitor(CallLog &log)
    : m_log(log)
{ }

bool FakeMonitor::InitialPluginBase(QQmlContext *, void *handle, FrameworkWrapperBase *framework)
{
    m_hostHandle = handle;
    m_framework = framework;
    m_log.add(QStringLiteral("initialised"));
    return true;
}

void FakeMonitor::EventProcessor(QString eventName, qint64, int, int, QVariant data,
                                 const QString &sourceID)
{
    m_log.add(QStringLiteral("event %1 %2 from '%3'").arg(eventName, printedValue(data), sourceID));
}

void FakeMonitor::EventProcessorEx(QString, ConfigBase *, qint64, int, int, QVariant,
                                   const QString &)
{ }

void FakeMonitor::CommandProcessor(QString command, QVariant data, void *context,
                                   QString resultCode, QString, bool, const QString &)
{
    lastContext = context;
    m_log.add(QStringLiteral("response %1 %2 %3").arg(command, printedValue(data), resultCode));
}

void FakeMonitor::CommandProcessorEx(QString, ConfigBase *, QVariant, void *, QString, QString,
                                     bool, const QString &)
{ }

bool FakeMonitor::Init(QQmlContext *)
{
    return true;
}

void FakeMonitor::LoadPairPluginDone()
{
    m_log.add(QStringLiteral("paired"));
}

void FakeMonitor::PluginServerConnected()
{
    m_log.add(QStringLiteral("server connected"));
}

void FakeMonitor::PluginServerDisconnected()
{
    m_log.add(QStringLiteral("server disconnected"));
}

bool FakeMonitor::checkSupportSystemMonitor(const QString &stationId)
{
    m_log.add(QStringLiteral("checkSupportSystemMonitor %1").arg(stationId));
    return true;
}

void FakeMonitor::reconnectDisconnectSubstations()
{
    m_log.add(QStringLiteral("reconnectDisconnectSubstations"));
}

void FakeMonitor::reconnectDisconnectCameras()
{
    m_log.add(QStringLiteral("reconnectDisconnectCameras"));
}

bool FakeMonitor::setSnooze(const QString &nodeID, qlonglong timestamp, int type)
{
    m_log.add(QStringLiteral("setSnooze %1 %2 %3").arg(nodeID).arg(timestamp).arg(type));
    return true;
}

void FakeMonitor::monitorNodeStatus(int type, const QString &nodeID, bool connected)
{
    m_log.add(QStringLiteral("monitorNodeStatus %1 %2 %3").arg(type).arg(nodeID).arg(connected));
}

void FakeMonitor::monitorVolumeStatus(const QString &nodeID)
{
    m_log.add(QStringLiteral("monitorVolumeStatus %1").arg(nodeID));
}

void FakeMonitor::removeVolumeError(const QString &nodeID)
{
    m_log.add(QStringLiteral("removeVolumeError %1").arg(nodeID));
}

void FakeMonitor::monitorInsufficientRecordingDays(const QString &stationID,
                                                   const QString &groupName, const QString &groupID)
{
    m_log.add(QStringLiteral("monitorInsufficientRecordingDays %1 '%2' %3")
                  .arg(stationID, groupName, groupID));
}

void FakeMonitor::monitorSufficientRecordingGroup(const QString &stationID, const QString &groupID)
{
    m_log.add(QStringLiteral("monitorSufficientRecordingGroup %1 %2").arg(stationID, groupID));
}
