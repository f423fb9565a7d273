#include "RecordingManagementPlugin.h"

#include "Framework.h"
#include "PluginIds.h"
#include "ServerLink.h"

#include <QMetaObject>

RecordingManagementPlugin::RecordingManagementPlugin(Framework &framework, const ServerLink &link,
                                                     QObject *parent)
    : QObject(parent)
    , m_framework(framework)
    , m_link(link)
{ }

void RecordingManagementPlugin::reloadStorageUsageInfo(const QString &stationId)
{
    QMetaObject::invokeMethod(
        this, [this, stationId] { report(stationId); }, Qt::QueuedConnection);
}

void RecordingManagementPlugin::report(const QString &stationId)
{
    QObject *const monitor =
        m_framework.GetPluginObject(m_framework.handle(), PluginIds::SystemMonitor);
    const Station *const station = m_link.isOpen() ? m_link.site().findStation(stationId) : nullptr;
    if (!monitor || !station || !station->connected)
        return;

    QMetaObject::invokeMethod(
        monitor, station->hasLostVolume() ? "monitorVolumeStatus" : "removeVolumeError",
        Q_ARG(QString, stationId));
    for (const RecordingGroup &group : station->recordingGroups) {
        if (group.isSufficient())
            QMetaObject::invokeMethod(monitor, "monitorSufficientRecordingGroup",
                                      Q_ARG(QString, stationId), Q_ARG(QString, group.id));
        else
            QMetaObject::invokeMethod(monitor, "monitorInsufficientRecordingDays",
                                      Q_ARG(QString, stationId), Q_ARG(QString, group.name),
                                      Q_ARG(QString, group.id));
    }
}
