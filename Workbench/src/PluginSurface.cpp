#include "PluginSurface.h"

#include "HostError.h"

#include <QAbstractItemModel>
#include <QMetaObject>

PluginSurface::PluginSurface(QObject &plugin, QObject *parent)
    : QObject(parent)
    , m_plugin(plugin)
{
    relay(SIGNAL(clientResourceChanged(int, int)), SIGNAL(clientResourceChanged(int, int)));
    relay(SIGNAL(setSnoozeResponse(bool)), SIGNAL(snoozeAnswered(bool)));
    relay(SIGNAL(isSupportSystemMonitor(QString, bool)), SIGNAL(supportAnswered(QString, bool)));
    relay(SIGNAL(notifyServerReachingLimited(QString, double)),
          SIGNAL(reachingLimit(QString, double)));

    QObject *model = nullptr;
    QMetaObject::invokeMethod(&plugin, "getSystemErrorModel", Q_RETURN_ARG(QObject *, model));
    m_errorModel = qobject_cast<QAbstractItemModel *>(model);
    if (!m_errorModel)
        throw HostError(tr("The plug-in has no error list."));
}

bool PluginSurface::setSnooze(const QString &nodeId, qint64 endSeconds, int errorType)
{
    bool isSent = false;
    QMetaObject::invokeMethod(&m_plugin, "setSnooze", Q_RETURN_ARG(bool, isSent),
                              Q_ARG(QString, nodeId), Q_ARG(qlonglong, endSeconds),
                              Q_ARG(int, errorType));
    return isSent;
}

bool PluginSurface::checkSupport(const QString &stationId)
{
    bool isSent = false;
    QMetaObject::invokeMethod(&m_plugin, "checkSupportSystemMonitor", Q_RETURN_ARG(bool, isSent),
                              Q_ARG(QString, stationId));
    return isSent;
}

void PluginSurface::reconnectCameras()
{
    QMetaObject::invokeMethod(&m_plugin, "reconnectDisconnectCameras");
}

void PluginSurface::reconnectSubstations()
{
    QMetaObject::invokeMethod(&m_plugin, "reconnectDisconnectSubstations");
}

void PluginSurface::focusStation(const QString &stationId)
{
    m_plugin.setProperty("focusStationResource", stationId);
}

void PluginSurface::relay(const char *signal, const char *ownSignal)
{
    if (!connect(&m_plugin, signal, this, ownSignal))
        throw HostError(tr("The plug-in has no signal %1.").arg(QLatin1String(signal + 1)));
}
