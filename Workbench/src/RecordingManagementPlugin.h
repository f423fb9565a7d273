#ifndef RECORDINGMANAGEMENTPLUGIN_H
#define RECORDINGMANAGEMENTPLUGIN_H

#include <QObject>

class Framework;
class ServerLink;

/// The plug-in that knows volumes and recording groups and reports them to the system monitor,
/// whose operations it calls by name.
class RecordingManagementPlugin : public QObject
{
    Q_OBJECT

public:
    /// @param framework finds the system monitor
    /// @param link      tells of the site; both must outlive the plug-in
    RecordingManagementPlugin(Framework &framework, const ServerLink &link,
                              QObject *parent = nullptr);

    /// Reports all volumes and recording groups of a station from the event loop, so that the
    /// caller is done with what it is doing. A station that is unknown or disconnected has none to
    /// report. Called by name.
    Q_INVOKABLE void reloadStorageUsageInfo(const QString &stationId);

private:
    void report(const QString &stationId);

    Framework &m_framework;
    const ServerLink &m_link;
};

#endif
