#include "HostedPlugin.h"

#include "ISystemResourceMonitor.h"
#include "PluginSystemMonitorCommon.h"
#include "PrintedValue.h"
#include "SystemErrorModel.h"

#include <QCoreApplication>

HostedPlugin::HostedPlugin(Stage stage)
{
    for (const char *name : {ENV_HIGH_CPU_USAGE, ENV_HIGH_MEM_USAGE, ENV_HIGH_NET_USAGE})
        qunsetenv(name);

    topology.model = &topologyModel;
    host.registerPlugin(PSSYSTEMMONITOR_PLUGIN_ID, &plugin);
    host.registerPlugin(TOPOLOGY_PLUGIN_ID, &topology);
    host.registerPlugin(RECORDINGMANAGEMENT_PLUGIN_ID, &recording);
    host.registerPlugin(QStringLiteral("D8C607070A81469B8CA4FF2E107DB6AB"), &operationalLog);

    if (stage >= Initialised) {
        if (!initialise())
            qFatal("The plug-in cannot be initialised");
        plugin.setSystemResourceMonitor(QSharedPointer<ISystemResourceMonitor>::create());
    }
    if (stage >= Paired)
        plugin.LoadPairPluginDone();
    log.take();
}

bool HostedPlugin::initialise()
{
    return plugin.InitialPluginBase(nullptr, host.handle(), &host);
}

void HostedPlugin::event(const QString &name, const QVariant &data, const QString &sourceID)
{
    plugin.EventProcessor(name, 0, 0, 0, data, sourceID);
}

void HostedPlugin::respond(const QString &command, const QVariant &data, const QString &resultCode,
                           void *context)
{
    plugin.CommandProcessor(command, data, context, resultCode, QString(), false, QString());
}

QStringList HostedPlugin::errorKeys() const
{
    return ::errorKeys(*plugin.errorModel);
}

QStringList HostedPlugin::errorRows() const
{
    return printedErrors(*plugin.errorModel);
}

void expire(QTimer &timer)
{
    if (!timer.isActive())
        return;
    bool expired = false;
    const QMetaObject::Connection connection =
        QObject::connect(&timer, &QTimer::timeout, &timer, [&expired] { expired = true; });
    timer.setInterval(0);
    while (!expired)
        QCoreApplication::processEvents();
    QObject::disconnect(connection);
}
