#include "SilentHost.h"

#include "PluginIDs.h"
#include "Verify.h"

namespace {

QObject *fetchObject(QObject *plugin, const char *getter)
{
    QObject *object = nullptr;
    QMetaObject::invokeMethod(plugin, getter, Qt::DirectConnection,
                              Q_RETURN_ARG(QObject *, object));
    verify(object, getter);
    return object;
}

} // namespace

SilentHost::SilentHost(const QString &pluginFile)
    : m_plugin(pluginFile)
{
    qunsetenv("TALO2_HIGH_CPU_USAGE");
    qunsetenv("TALO2_HIGH_MEM_USAGE");
    qunsetenv("TALO2_HIGH_NET_USAGE");

    topology.model = &topologyModel;
    m_framework.registerPlugin(PluginID::SystemMonitor, object());
    m_framework.registerPlugin(PluginID::Topology, &topology);
    m_framework.registerPlugin(PluginID::RecordingManagement, &recording);

    verify(plugin()->InitialPluginBase(nullptr, this, &m_framework), "InitialPluginBase");
    plugin()->LoadPairPluginDone();
}

QStandardItemModel *SilentHost::errors() const
{
    return qobject_cast<QStandardItemModel *>(fetchObject(object(), "getSystemErrorModel"));
}

QStandardItemModel *SilentHost::resources() const
{
    return qobject_cast<QStandardItemModel *>(fetchObject(object(), "getSystemResourceModel"));
}

std::unique_ptr<QSortFilterProxyModel> SilentHost::proxy() const
{
    QObject *made = nullptr;
    QObject *const noParent = nullptr;
    QMetaObject::invokeMethod(object(), "getSystemErrorSortFilterModel", Qt::DirectConnection,
                              Q_RETURN_ARG(QObject *, made), Q_ARG(QObject *, noParent));
    std::unique_ptr<QSortFilterProxyModel> proxy(qobject_cast<QSortFilterProxyModel *>(made));
    verify(proxy && proxy->rowCount() == errors()->rowCount(), "the proxy shows every error");
    return proxy;
}

void SilentHost::invoke(const char *method) const
{
    verify(QMetaObject::invokeMethod(object(), method, Qt::DirectConnection), method);
}

void SilentHost::report(const QVariant &report, const QString &stationID) const
{
    static const QString event = QStringLiteral("SystemResChanged");
    plugin()->EventProcessor(event, 0, 0, 0, report, stationID);
}
