#include "FakeMonitor.h"

namespace {

CallLog g_log;

} // namespace

/// The fake monitor, from a file.
class FakeMonitorPlugin : public FakeMonitor
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PLUGINBASE_IID FILE "fake_monitor.json")
    Q_INTERFACES(PluginBase)

public:
    FakeMonitorPlugin()
        : FakeMonitor(g_log)
    { }

    bool InitialPluginBase(QQmlContext *context, void *handle,
                           FrameworkWrapperBase *framework) override
    {
        return !qEnvironmentVariableIsSet("FAKE_MONITOR_FAILS")
               && FakeMonitor::InitialPluginBase(context, handle, framework);
    }
};

#include "FakeMonitorPlugin.moc"
