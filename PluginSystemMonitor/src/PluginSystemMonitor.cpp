#include "PluginSystemMonitor.h"

#include "FrameworkWrapperBase.h"
#include "PluginSystemMonitorCommon.h"
#include "PluginSystemMonitor_Log.h"
#include "SystemResourceModelControl.h"
#include "SystemResourceMonitor.h"

#include <cstdlib>
#include <new>

const char *const ENV_HIGH_CPU_USAGE = "TALO2_HIGH_CPU_USAGE";
const char *const ENV_HIGH_MEM_USAGE = "TALO2_HIGH_MEM_USAGE";
const char *const ENV_HIGH_NET_USAGE = "TALO2_HIGH_NET_USAGE";

namespace {

constexpr int DefaultCpuThreshold = 90;
constexpr int DefaultMemoryThreshold = 90;
// A network link suffers long before it is full.
constexpr int DefaultNetworkThreshold = 50;

int thresholdFromEnvironment(const char *name, int defaultThreshold)
{
    const int threshold = QString::fromUtf8(std::getenv(name)).toInt();
    return threshold > 0 ? threshold : defaultThreshold;
}

QStandardItemModel *fetchTopologyModel(QObject *topologyPlugin)
{
    QObject *model = nullptr;
    QMetaObject::invokeMethod(topologyPlugin, "getStandardTopologyModel", Qt::DirectConnection,
                              Q_RETURN_ARG(QObject *, model));
    return qobject_cast<QStandardItemModel *>(model);
}

} // namespace

PluginSystemMonitor::PluginSystemMonitor() = default;

PluginSystemMonitor::~PluginSystemMonitor()
{
    const EntryLog entryLog = traceEntry("~PluginSystemMonitor");
}

bool PluginSystemMonitor::InitialPluginBase(QQmlContext *context, void *handle,
                                            FrameworkWrapperBase *framework)
{
    m_prefixName = PSSYSTEMMONITOR_PREFIX_NAME;
    m_pluginID = PSSYSTEMMONITOR_PLUGIN_ID;
    m_hostHandle = handle;
    m_framework = framework;
    return Init(context);
}

bool PluginSystemMonitor::Init(QQmlContext *)
{
    const EntryLog entryLog = traceEntry("Init");

    cpuThreshold = thresholdFromEnvironment(ENV_HIGH_CPU_USAGE, DefaultCpuThreshold);
    memoryThreshold = thresholdFromEnvironment(ENV_HIGH_MEM_USAGE, DefaultMemoryThreshold);
    networkThreshold = thresholdFromEnvironment(ENV_HIGH_NET_USAGE, DefaultNetworkThreshold);

    if (!createResourceModelControl() || !createResourceMonitor())
        return false;

    stationErrorNumberTimer.setSingleShot(true);
    connect(&stationErrorNumberTimer, &QTimer::timeout, this,
            &PluginSystemMonitor::updateStationErrorNumber, Qt::UniqueConnection);
    initNodeStatusTimer.setSingleShot(true);
    connect(&initNodeStatusTimer, &QTimer::timeout, this, &PluginSystemMonitor::initNodeStatusError,
            Qt::UniqueConnection);

    return createErrorListModel();
}

bool PluginSystemMonitor::createResourceModelControl()
{
    try {
        resourceModelControl.reset(
            new SystemResourceModelControl(cpuThreshold, memoryThreshold, networkThreshold, this));
    } catch (const std::bad_alloc &) {
        if (isTraced(TraceLog::ErrorLevel))
            LocalTraceOutFuncPluginSystemMonitor("%s, create SystemResourceModelControl failed",
                                                 "Init");
        return false;
    }
    return true;
}

bool PluginSystemMonitor::createResourceMonitor()
{
    try {
        setSystemResourceMonitor(QSharedPointer<SystemResourceMonitor>::create());
    } catch (const std::bad_alloc &) {
        if (isTraced(TraceLog::ErrorLevel))
            LocalTraceOutFuncPluginSystemMonitor("%s, Create SystemResourceMonitor failed", "Init");
        return false;
    }
    return true;
}

void PluginSystemMonitor::LoadPairPluginDone()
{
    if (m_framework && m_framework->ShouldSkipPairWiring(m_hostHandle))
        return;

    connectTopologySignal("2nodeStatusChanged(int, const QString &, bool)",
                          "1monitorNodeStatus(int, const QString &, bool)");
    connectTopologySignal("2deviceRemoved(const QString &)", "1removeCameraError(const QString &)");
    connectTopologySignal("2stationRemoved(const QString &)",
                          "1removeStationError(const QString &)");
    connectTopologySignal("2camStatusRetrievedChanged(bool)", "1initNodeStatusErrorTimer(bool)");

    topologyModel = fetchTopologyModel(pluginObject(TOPOLOGY_PLUGIN_ID));
    // From now on, lest the first question comes in the middle of a change.
    topologyIndex.setModel(topologyModel);
}

void PluginSystemMonitor::connectTopologySignal(const char *signal, const char *slot)
{
    const bool connected =
        m_framework
        && m_framework->ConnectPluginSignal(m_hostHandle, TOPOLOGY_PLUGIN_ID, signal,
                                            PSSYSTEMMONITOR_PLUGIN_ID, slot, 0);
    if (!connected && isTraced(TraceLog::ErrorLevel))
        LocalTraceOutFuncPluginSystemMonitor("%s, ConnectPluginSignal fail", "LoadPairPluginDone");
}

QObject *PluginSystemMonitor::pluginObject(const QString &pluginID) const
{
    return m_framework ? m_framework->GetPluginObject(m_hostHandle, pluginID) : nullptr;
}

void PluginSystemMonitor::PluginServerConnected()
{
    sendCommand(PluginSystemMonitorCommon::METHOD_GET_SNOOZE_LIST, QVariant(), nullptr, QString());
}

void PluginSystemMonitor::PluginServerDisconnected()
{
    clearSystemErrorModel();
}
