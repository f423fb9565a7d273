#ifndef PLUGINBASE_H
#define PLUGINBASE_H

#include <QObject>
#include <QString>
#include <QVariant>

class ConfigBase;
class FrameworkWrapperBase;
class QQmlContext;

/// What the host knows of a plug-in.
///
/// The host obtains the object through the Qt plug-in loader, calls InitialPluginBase(), delivers
/// events and command responses from then on, calls LoadPairPluginDone() once the plug-ins that it
/// pairs with are loaded and the two server hooks whenever the connection changes, and deletes the
/// object in the end. All calls come on the thread that owns the object (the user-interface
/// thread).
///
/// The order of the virtual operations is part of the contract: the host calls through the table,
/// where they follow those of QObject. The class has no meta-object of its own, so that the headers
/// alone are enough for host and plug-in.
class PluginBase : public QObject
{
public:
    explicit PluginBase(QObject *parent = nullptr)
        : QObject(parent)
    { }

    /// Stores what the host hands over and initialises the plug-in.
    ///
    /// @param context   the QML context of the user interface; may be null
    /// @param handle    opaque; the plug-in passes it back with every call of @p framework
    /// @param framework the host's services, not owned; may be null, then the plug-in works on its
    ///                  own and sends nothing
    /// @return the result of Init()
    virtual bool InitialPluginBase(QQmlContext *context, void *handle,
                                   FrameworkWrapperBase *framework) = 0;

    /// Delivers a server event: its name, three figures of the host's, its data, and the id of the
    /// station that it comes from.
    virtual void EventProcessor(QString eventName, qint64, int, int, QVariant data,
                                const QString &sourceID) = 0;

    /// As EventProcessor(), with a configuration object of the host's.
    virtual void EventProcessorEx(QString eventName, ConfigBase *config, qint64, int, int,
                                  QVariant data, const QString &sourceID) = 0;

    /// Delivers the response to a command that the plug-in sent.
    ///
    /// @param command    the command's name
    /// @param data       the response's data
    /// @param context    the pointer that the plug-in passed with the command
    /// @param resultCode "0" for success, or what went wrong
    virtual void CommandProcessor(QString command, QVariant data, void *context, QString resultCode,
                                  QString, bool, const QString &) = 0;

    /// As CommandProcessor(), with a configuration object of the host's.
    virtual void CommandProcessorEx(QString command, ConfigBase *config, QVariant data,
                                    void *context, QString resultCode, QString, bool,
                                    const QString &) = 0;

    /// Creates what the plug-in needs to run. Returns false only when memory is short.
    virtual bool Init(QQmlContext *context) = 0;

    /// Called when all plug-ins that need no server are loaded.
    virtual void LoadClientOnlyPluginDone() { }

    /// Called when the plug-ins that this one pairs with are loaded.
    virtual void LoadPairPluginDone() { }

    /// Called when the connection to the server is up.
    virtual void PluginServerConnected() { }

    /// Called when the connection to the server is lost.
    virtual void PluginServerDisconnected() { }

    /// A short name of the plug-in; empty before InitialPluginBase().
    const QString &prefixName() const { return m_prefixName; }

    /// The id under which the host files the plug-in; empty before InitialPluginBase().
    const QString &pluginID() const { return m_pluginID; }

protected:
    QString m_prefixName;
    QString m_pluginID;
    void *m_hostHandle = nullptr; ///< opaque, the first argument of every framework call
    FrameworkWrapperBase *m_framework = nullptr; ///< the host's services, not owned
};

#define PLUGINBASE_IID "com.ZENTARO.UIFramework.PluginInterface"
Q_DECLARE_INTERFACE(PluginBase, PLUGINBASE_IID)

#endif
