#ifndef LOADEDPLUGIN_H
#define LOADEDPLUGIN_H

#include <QPluginLoader>
#include <QPointer>

class PluginBase;

/// A plug-in file, loaded as the host loads it, with the one object that it gives.
///
/// The object is deleted with this one, so that each test gets a fresh object from the file. The
/// file stays loaded until the process ends, as in the host: the meta-types that it registered
/// would otherwise point into nowhere.
class LoadedPlugin
{
public:
    /// Loads the file and fetches its object. Ends the process with a message when it cannot be
    /// loaded or gives no PluginBase.
    explicit LoadedPlugin(const QString &fileName);
    ~LoadedPlugin();

    LoadedPlugin(const LoadedPlugin &) = delete;
    LoadedPlugin &operator=(const LoadedPlugin &) = delete;

    PluginBase *plugin() const { return m_plugin; }
    QObject *object() const { return m_object; }
    QPluginLoader &loader() { return m_loader; }

private:
    QPluginLoader m_loader;
    QPointer<QObject> m_object;
    PluginBase *m_plugin;
};

#endif
