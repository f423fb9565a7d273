#include "PluginHost.h"

#include "HostError.h"
#include "PluginBase.h"

#include <QDir>
#include <QJsonObject>
#include <QPluginLoader>

namespace {

QString pluginIdOf(const QJsonObject &metaData)
{
    return metaData.value(QStringLiteral("MetaData"))
        .toObject()
        .value(QStringLiteral("PluginID"))
        .toString();
}

} // namespace

PluginHost::PluginHost(const QString &fileName)
    : m_fileName(QDir::toNativeSeparators(QDir::cleanPath(fileName)))
{
    QPluginLoader loader(fileName);
    const QJsonObject metaData = loader.metaData();
    const QString interfaceId = metaData.value(QStringLiteral("IID")).toString();
    if (interfaceId.isEmpty())
        throw HostError(
            tr("%1: cannot be loaded as a plug-in: %2").arg(m_fileName, loader.errorString()));
    if (interfaceId != QLatin1String(PLUGINBASE_IID))
        throw HostError(tr("%1: expected a plug-in with the interface \"%2\", found \"%3\"")
                            .arg(m_fileName, QLatin1String(PLUGINBASE_IID), interfaceId));
    m_pluginId = pluginIdOf(metaData);
    if (m_pluginId.isEmpty())
        throw HostError(tr("%1: expected a plug-in id in the metadata").arg(m_fileName));
    m_object = loader.instance();
    if (!m_object)
        throw HostError(
            tr("%1: cannot be loaded as a plug-in: %2").arg(m_fileName, loader.errorString()));
    if (!plugin()) {
        delete m_object;
        throw HostError(tr("%1: its object is no plug-in of this host").arg(m_fileName));
    }
}

PluginHost::~PluginHost()
{
    destroy();
}

PluginBase *PluginHost::plugin() const
{
    return m_object && m_front ? m_front : qobject_cast<PluginBase *>(m_object);
}

void PluginHost::initialise(QQmlContext *context, Framework &framework)
{
    m_framework = &framework;
    framework.registerPlugin(m_pluginId, plugin());
    if (!plugin()->InitialPluginBase(context, framework.handle(), &framework))
        throw HostError(tr("%1: the plug-in failed to initialise").arg(m_fileName));
}

void PluginHost::pair() const
{
    plugin()->LoadPairPluginDone();
}

void PluginHost::serverConnected() const
{
    plugin()->PluginServerConnected();
}

void PluginHost::serverDisconnected() const
{
    plugin()->PluginServerDisconnected();
}

void PluginHost::destroy()
{
    if (!m_object)
        return;
    if (m_framework)
        m_framework->answerCommands();
    delete m_object;
}
