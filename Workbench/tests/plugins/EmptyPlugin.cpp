#include "PluginBase.h"

/// Has the metadata of a plug-in of this host, and an object that is none.
class EmptyPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PLUGINBASE_IID FILE "fake_monitor.json")
};

#include "EmptyPlugin.moc"
