#ifndef PLUGINHOST_H
#define PLUGINHOST_H

#include "Framework.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>

class PluginBase;
class QQmlContext;

/// Takes one plug-in through its life: loaded, initialised, paired, told of the server, destroyed.
class PluginHost
{
    Q_DECLARE_TR_FUNCTIONS(PluginHost)

public:
    /// Loads a plug-in file and obtains its object, which the host then owns. Throws HostError when
    /// the file is no plug-in for this host.
    explicit PluginHost(const QString &fileName);

    /// Destroys the plug-in, if it still is there.
    ~PluginHost();

    PluginHost(const PluginHost &) = delete;
    PluginHost &operator=(const PluginHost &) = delete;

    /// The plug-in's object, or what stands before it; null after destroy().
    PluginBase *plugin() const;

    /// Puts an object before the plug-in, to which everything goes that is meant for the plug-in.
    /// To be called before initialise(); the object must outlive the host's use of the plug-in.
    void setFront(PluginBase &front) { m_front = &front; }

    /// The id that the plug-in's metadata give.
    const QString &pluginId() const { return m_pluginId; }

    /// Files the plug-in with the framework and initialises it. Throws HostError when it fails.
    ///
    /// @param context   the QML context of the user interface, or null without one
    /// @param framework must outlive the plug-in
    void initialise(QQmlContext *context, Framework &framework);

    /// Tells the plug-in that those that it pairs with are there.
    void pair() const;

    void serverConnected() const;
    void serverDisconnected() const;

    /// Answers what the plug-in has asked, so that it can let go of it, and deletes the plug-in.
    /// The library stays loaded, because values with its texts may live on.
    void destroy();

private:
    QString m_fileName;
    QString m_pluginId;
    QPointer<QObject> m_object; // the plug-in
    PluginBase *m_front = nullptr;
    QPointer<Framework> m_framework;
};

#endif
