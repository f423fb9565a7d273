#ifndef PLUGINRECORDER_H
#define PLUGINRECORDER_H

#include "PluginBase.h"
#include "TopologyJournal.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <QVariant>

#include <memory>

class JournalWriter;
class QAbstractItemModel;

/// Stands before a plug-in, for everyone who speaks to it: writes each input to a journal and then
/// passes it on.
///
/// It has the plug-in's surface, as the host, its pair plug-ins and a user interface know it, and
/// relays its signals. Nothing of what others do reaches the plug-in past it, but for the topology
/// model, whose changes it writes as well. What the plug-in does on its own when its timer fires,
/// that is the walk through the topology, shows as a change of the error list outside any input,
/// and is written just before that change.
class PluginRecorder : public PluginBase
{
    Q_OBJECT
    Q_INTERFACES(PluginBase)
    Q_PROPERTY(QString focusStationResource READ focusStationResource WRITE setFocusStationResource
                   NOTIFY focusStationResourceChanged)
    Q_PROPERTY(QVariantList stationErrorList READ stationErrorList NOTIFY stationErrorListChanged)

public:
    /// @param plugin  not initialised yet; once it is gone nothing is passed on
    /// @param journal must outlive the recorder
    PluginRecorder(PluginBase &plugin, JournalWriter &journal);

    /// Writes the journal's last line, which has the error list as it is now. Nothing is written
    /// any more after that.
    void finish();

    bool InitialPluginBase(QQmlContext *context, void *handle,
                           FrameworkWrapperBase *framework) override;
    void EventProcessor(QString eventName, qint64, int, int, QVariant data,
                        const QString &sourceID) override;
    void EventProcessorEx(QString, ConfigBase *, qint64, int, int, QVariant,
                          const QString &) override;
    void CommandProcessor(QString command, QVariant data, void *context, QString resultCode,
                          QString, bool, const QString &target) override;
    void CommandProcessorEx(QString, ConfigBase *, QVariant, void *, QString, QString, bool,
                            const QString &) override;
    bool Init(QQmlContext *context) override;
    void LoadPairPluginDone() override;
    void PluginServerConnected() override;
    void PluginServerDisconnected() override;

    // The surface for a user interface.
    QString focusStationResource() const;
    void setFocusStationResource(const QString &stationId);
    QVariantList stationErrorList() const;
    Q_INVOKABLE QObject *getSystemErrorModel();
    Q_INVOKABLE QObject *getSystemErrorSortFilterModel(QObject *parent);
    Q_INVOKABLE QObject *getSystemResourceModel();
    Q_INVOKABLE bool checkSupportSystemMonitor(const QString &stationId);
    Q_INVOKABLE void reconnectDisconnectSubstations();
    Q_INVOKABLE void reconnectDisconnectCameras();
    Q_INVOKABLE bool setSnooze(const QString &nodeID, qlonglong timestamp, int type);
    Q_INVOKABLE void initNodeStatusError();

    // What the pair plug-ins call and are connected to.
    Q_INVOKABLE void initNodeStatusErrorTimer(bool success);
    Q_INVOKABLE void monitorNodeStatus(int type, const QString &nodeID, bool connected);
    Q_INVOKABLE void removeCameraError(const QString &nodeID);
    Q_INVOKABLE void removeStationError(const QString &nodeID);
    Q_INVOKABLE void monitorVolumeStatus(const QString &nodeID);
    Q_INVOKABLE void removeVolumeError(const QString &nodeID);
    Q_INVOKABLE void monitorInsufficientRecordingDays(const QString &stationID,
                                                      const QString &groupName,
                                                      const QString &groupID);
    Q_INVOKABLE void monitorSufficientRecordingGroup(const QString &stationID,
                                                     const QString &groupID);

Q_SIGNALS:
    void systemResourceChanged(int cpu, int memory, QVariantList networkList);
    void focusStationResourceChanged(QString focusStationResource);
    void stationErrorListChanged();
    void isSupportSystemMonitor(QString stationId, bool isSupport);
    void clientResourceChanged(int cpu, int memory);
    void notifySystemResourceUpdated();
    void notifyServerReachingLimited(QString serverName, double percentage);
    void setSnoozeResponse(bool success);

private:
    void relaySignals();
    void followErrorList();
    void followTopology(FrameworkWrapperBase &framework, void *handle);
    void write(const QJsonObject &entry);
    void noticeWalk();
    QVariant call(const char *method, const QVariantList &arguments = {});
    QObject *fetch(const char *method, const QVariantList &arguments = {});

    QPointer<QObject> m_object; // the plug-in
    PluginBase &m_plugin;       // the same
    JournalWriter &m_journal;
    std::unique_ptr<TopologyRecorder> m_topology;
    QPointer<QAbstractItemModel> m_errors;
    QDeadlineTimer m_beforeWalk; // no walk comes earlier
    bool m_isWalkAhead = false;
    bool m_isFinished = false;
    int m_inputDepth = 0; // inputs under way, one within another
};

#endif
