#ifndef PLUGINSURFACE_H
#define PLUGINSURFACE_H

#include <QObject>

class QAbstractItemModel;

/// What the system monitor offers to a user interface, called by name as QML calls it.
class PluginSurface : public QObject
{
    Q_OBJECT

public:
    /// @param plugin the initialised plug-in; it must outlive the surface. Throws HostError when it
    ///               lacks a signal or the error list.
    explicit PluginSurface(QObject &plugin, QObject *parent = nullptr);

    QObject &plugin() const { return m_plugin; }

    /// The list of errors, owned by the plug-in.
    QAbstractItemModel &errorModel() const { return *m_errorModel; }

    /// @param endSeconds when the snooze ends, in seconds since the epoch
    /// @return whether the request is on its way; snoozeAnswered() follows then
    bool setSnooze(const QString &nodeId, qint64 endSeconds, int errorType);
    /// Returns whether the question is on its way; supportAnswered() follows then.
    bool checkSupport(const QString &stationId);
    void reconnectCameras();
    void reconnectSubstations();
    void focusStation(const QString &stationId);

Q_SIGNALS:
    void clientResourceChanged(int cpu, int memory);
    void snoozeAnswered(bool success);
    void supportAnswered(const QString &stationId, bool isSupported);
    void reachingLimit(const QString &serverName, double percentage);

private:
    void relay(const char *signal, const char *ownSignal);

    QObject &m_plugin;
    QAbstractItemModel *m_errorModel = nullptr;
};

#endif
