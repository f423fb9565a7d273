#include "LoadedPlugin.h"

#include "PluginBase.h"

LoadedPlugin::LoadedPlugin(const QString &fileName)
    : m_loader(fileName)
    , m_object(m_loader.instance())
    , m_plugin(qobject_cast<PluginBase *>(m_object.data()))
{
    if (!m_plugin)
        qFatal("%s: %s", qUtf8Printable(fileName), qUtf8Printable(m_loader.errorString()));
}

LoadedPlugin::~LoadedPlugin()
{
    delete m_object;
}
