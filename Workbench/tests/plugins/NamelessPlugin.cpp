#include "PluginBase.h"

/// Says that it is for this host, and not what it is.
class NamelessPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PLUGINBASE_IID)
};

#include "NamelessPlugin.moc"
