#include "TestHost.h"

namespace {

void setVariable(const char *name, const QByteArray &value)
{
    if (value.isNull())
        qunsetenv(name);
    else
        qputenv(name, value);
}

} // namespace

TestHost::TestHost(Stage stage, const ThresholdVariables &thresholds)
    : m_plugin(QStringLiteral(PLUGIN_FILE))
    , m_signals(m_plugin.object(), log)
{
    setVariable("TALO2_HIGH_CPU_USAGE", thresholds.cpu);
    setVariable("TALO2_HIGH_MEM_USAGE", thresholds.memory);
    setVariable("TALO2_HIGH_NET_USAGE", thresholds.network);

    topology.model = &topologyModel;
    framework.registerPlugin(PluginID::SystemMonitor, object());
    framework.registerPlugin(PluginID::Topology, &topology);
    framework.registerPlugin(PluginID::RecordingManagement, &recording);
    framework.registerPlugin(PluginID::OperationalLog, &operationalLog);

    if (stage >= Initialised && !initialise())
        qFatal("The plug-in cannot be initialised");
    if (stage >= Paired)
        plugin()->LoadPairPluginDone();
    log.take();
}

bool TestHost::initialise()
{
    return plugin()->InitialPluginBase(nullptr, framework.handle(), framework.framework());
}

void TestHost::event(const QString &name, const QVariant &data, const QString &sourceID)
{
    plugin()->EventProcessor(name, 0, 0, 0, data, sourceID);
}

void TestHost::respond(const QString &command, const QVariant &data, const QString &resultCode,
                       void *context)
{
    plugin()->CommandProcessor(command, data, context, resultCode, QString(), false, QString());
}

QAbstractItemModel *TestHost::errors()
{
    return qobject_cast<QAbstractItemModel *>(ask<QObject *>("getSystemErrorModel"));
}

QStringList TestHost::errorKeys()
{
    return ::errorKeys(*errors());
}

QStringList TestHost::errorRows()
{
    return printedErrors(*errors());
}

QVariant TestHost::error(int row, int role)
{
    return errors()->index(row, 0).data(role);
}

QAbstractItemModel *TestHost::resources()
{
    return qobject_cast<QAbstractItemModel *>(ask<QObject *>("getSystemResourceModel"));
}

QStringList TestHost::resourceRows()
{
    return printedResources(*resources());
}
