#ifndef PLUGINSYSTEMMONITOR_H
#define PLUGINSYSTEMMONITOR_H

#include "ChangeQueue.h"
#include "ErrorIndex.h"
#include "ErrorKinds.h"
#include "PluginBase.h"
#include "TopologyIndex.h"

#include <QList>
#include <QMap>
#include <QModelIndex>
#include <QPointer>
#include <QSharedPointer>
#include <QStandardItemModel>
#include <QStringList>
#include <QTimer>
#include <QVariant>

class ISystemResourceMonitor;
class SystemErrorModel;
class SystemResourceModelControl;

/// Names of the environment variables with the thresholds, in percent.
extern const char *const ENV_HIGH_CPU_USAGE;
extern const char *const ENV_HIGH_MEM_USAGE;
extern const char *const ENV_HIGH_NET_USAGE;

/// The station part of a camera id: what stands before the last "/", or nothing without one.
QString getParentStationID(const QString &deviceID);

/// The health dashboard: the live list of system errors, snoozing, reconnection, and the resource
/// usage of the client machine and of the station in focus.
///
/// The meta-object of this class is what QML and the host's signal wiring see; its order is part of
/// the contract. Everything runs on the thread that owns the object, the host's user-interface
/// thread; nothing is locked.
///
/// Whoever is told of a change may call back. What would change the error list, the snoozes or the
/// resource model then waits until everybody was told.
///
/// An error's only identity is its unique key (uniqueId()). Rules first test with existError() and
/// then raise or clear, so that no key is listed twice.
class PluginSystemMonitor : public PluginBase
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PLUGINBASE_IID FILE "PluginSystemMonitor.json")
    Q_INTERFACES(PluginBase)

    /// Id of the station whose usage the resource model shows. Empty at first; a new value empties
    /// the model's histories.
    Q_PROPERTY(QString focusStationResource READ focusStationResource WRITE setFocusStationResource
                   NOTIFY focusStationResourceChanged)

    /// One map per station with errors, in the order of the ids: "stationID" (string) and
    /// "errorNumber" (int, at least 1). Follows the error list half a second after its last change.
    Q_PROPERTY(QVariantList stationErrorList READ stationErrorList NOTIFY stationErrorListChanged)

public:
    /// Does no work: models and timers come with Init().
    PluginSystemMonitor();
    ~PluginSystemMonitor() override;

    PluginSystemMonitor(const PluginSystemMonitor &) = delete;
    PluginSystemMonitor &operator=(const PluginSystemMonitor &) = delete;

    bool InitialPluginBase(QQmlContext *context, void *handle,
                           FrameworkWrapperBase *framework) override;
    void EventProcessor(QString eventName, qint64, int, int, QVariant data,
                        const QString &sourceID) override;
    void EventProcessorEx(QString eventName, ConfigBase *config, qint64, int, int, QVariant data,
                          const QString &sourceID) override;
    void CommandProcessor(QString command, QVariant data, void *context, QString resultCode,
                          QString, bool, const QString &) override;
    void CommandProcessorEx(QString command, ConfigBase *config, QVariant data, void *context,
                            QString resultCode, QString, bool, const QString &) override;
    /// Reads the thresholds, creates the models and starts sampling. False only when memory is
    /// short; what was created before stays.
    bool Init(QQmlContext *context) override;
    void LoadPairPluginDone() override;
    void PluginServerConnected() override;
    void PluginServerDisconnected() override;

    /// The error list, owned by the plug-in; null before Init().
    Q_INVOKABLE QObject *getSystemErrorModel();

    /// A new sorted and filtered view of the error list, owned by @p parent. Made by who is told of
    /// a change of the list, it has its rows when everybody was told.
    Q_INVOKABLE QObject *getSystemErrorSortFilterModel(QObject *parent);

    /// The usage of the station in focus, owned by the plug-in; null before Init().
    Q_INVOKABLE QObject *getSystemResourceModel();

    /// Asks whether a station supports system monitoring; isSupportSystemMonitor() brings the
    /// answer. Returns whether the host accepted the question.
    Q_INVOKABLE bool checkSupportSystemMonitor(const QString &stationId);

    /// Asks for the reconnection of every sub-station that is listed as disconnected.
    Q_INVOKABLE void reconnectDisconnectSubstations();

    /// Asks for the reconnection of every camera that is listed as disconnected.
    Q_INVOKABLE void reconnectDisconnectCameras();

    /// Asks the server to snooze a disconnection error; setSnoozeResponse() brings the answer.
    ///
    /// @param nodeID    id of the camera or station
    /// @param timestamp seconds since the epoch, passed on to the server and logged
    /// @param type      the ErrorType, CameraDisconnected or StationDisconnected
    /// @return whether the host accepted the request
    Q_INVOKABLE bool setSnooze(const QString &nodeID, qlonglong timestamp, int type);

    /// Reconciles every node of the topology model with the error list.
    Q_INVOKABLE void initNodeStatusError();

    /// Takes another sampler of the client machine in place of the present one, which is released.
    /// Shared ownership; installing the same monitor twice relays each of its samples twice.
    void setSystemResourceMonitor(const QSharedPointer<ISystemResourceMonitor> &monitor);

    QString focusStationResource() const;
    void setFocusStationResource(const QString &stationId);
    QVariantList stationErrorList() const;

Q_SIGNALS:
    /// The station in focus reported; whole percents, and one map per network interface.
    void systemResourceChanged(int cpu, int memory, QVariantList networkList);
    void focusStationResourceChanged(QString focusStationResource);
    /// Emitted at every recount, also when nothing changed.
    void stationErrorListChanged();
    /// Answers checkSupportSystemMonitor().
    void isSupportSystemMonitor(QString stationId, bool isSupport);
    /// A sample of the client machine in whole percents, once a second; -100 for a failed CPU
    /// sample.
    void clientResourceChanged(int cpu, int memory);
    /// A resource report of any station was handled.
    void notifySystemResourceUpdated();
    /// A server is near its capacity; the percentage as the server sent it.
    void notifyServerReachingLimited(QString serverName, double percentage);
    /// Answers setSnooze().
    void setSnoozeResponse(bool success);

private Q_SLOTS:
    /// Schedules the walk of the topology model in five seconds, counted from the last call.
    /// @p success is of no account: the states are reconciled either way.
    void initNodeStatusErrorTimer(bool success);

private:
    /// Applies a node's status to the error list. Nodes are cameras (0) or stations (1); other
    /// types are ignored.
    Q_INVOKABLE void monitorNodeStatus(int type, const QString &nodeID, bool connected);

    /// The same for the walk, which has worked out the triggering device's name already. A
    /// disconnected station that is listed already keeps its errors here.
    Q_INVOKABLE void monitorNodeStatusForInit(int type, const QString &nodeID, bool connected,
                                              const QString &triggerDeviceName);

    /// Raises the volume error of a station, unless it is listed.
    Q_INVOKABLE void monitorVolumeStatus(const QString &nodeID);

    /// Clears every error of a camera.
    Q_INVOKABLE void removeCameraError(const QString &nodeID);

    /// Clears every error of a station, of its cameras, and of whatever else has an id that begins
    /// with @p nodeID.
    Q_INVOKABLE void removeStationError(const QString &nodeID);

    /// Clears the volume errors of a station.
    Q_INVOKABLE void removeVolumeError(const QString &nodeID);

    // Raise an error while the usage, in whole percents, is at or above its threshold; clear it
    // below.
    Q_INVOKABLE void monitorCPUUsage(const QString &stationID, int usage);
    Q_INVOKABLE void monitorMemoryUsage(const QString &stationID, int usage);
    Q_INVOKABLE void monitorNetworkUsage(const QString &stationID, int usage,
                                         const QString &interfaceName);

    /// Raises the recording-days error of a group, or relabels it when it is listed.
    Q_INVOKABLE void monitorInsufficientRecordingDays(const QString &stationID,
                                                      const QString &groupName,
                                                      const QString &groupID);

    /// Clears the recording-days error of a group.
    Q_INVOKABLE void monitorSufficientRecordingGroup(const QString &stationID,
                                                     const QString &groupID);

    /// Recounts the errors of each station and announces the result.
    Q_INVOKABLE void updateStationErrorNumber();

protected:
    // Identity and names.

    /// "type_id_subId", or "type_id" without a sub-id.
    QString uniqueId(ErrorType type, const QString &id, const QString &subId) const;
    /// The translated name; empty for a type that nothing raises.
    QString getErrorName(ErrorType type) const;
    /// Which device raised an error, in words.
    QString getTriggerDeviceName(ErrorCategory category, const QString &deviceID) const;
    /// The name that the topology model knows a node by; empty when it knows none.
    QString findDeviceName(const QString &deviceID) const;
    /// Whether the topology model's node type is the one of cameras.
    bool isCameraInTopologyModel(int nodeType) const;
    /// Whether the topology model's node type is the one of stations.
    bool isStationInTopologyModel(int nodeType) const;

    // The error list. Without the model, that is before a successful Init(), nothing is listed.

    /// Creates the model, and has its changes recounted after a while. False, and no model, when
    /// memory is short.
    bool createErrorListModel();
    /// Appends a row, whose item the model takes over, and files it under its key.
    void appendSystemErrorModel(const QString &uniqueId, QStandardItem *item);
    /// The only way in which rows leave the list: keeps the index in step.
    void RemoveSystemErrorModelRow(const QModelIndex &index);
    /// The same under a second name.
    void removeErrorFromModel(const QModelIndex &index);
    /// Removes every row whose data at @p role matches @p value.
    void removeErrorFromModel(const QString &value, int role, Qt::MatchFlags flags);
    /// Removes every row, from the last to the first.
    void clearSystemErrorModel();

    // Raising and clearing.

    /// The row of an error, or an invalid index when it is not listed.
    QModelIndex existError(ErrorType type, const QString &id, const QString &subId);
    /// Raises an error of a station. Snoozed disconnections are left out.
    ///
    /// @param deviceID          sub-id of the error (an interface, volume or group), or empty
    /// @param triggerDeviceName shown as the origin; looked up when empty
    void addSystemError(const QString &stationID, ErrorType type, const QString &deviceID,
                        const QString &triggerDeviceName);
    /// Raises an error of a camera. Snoozed disconnections are left out.
    void addCameraError(const QString &deviceID, ErrorType type, const QString &triggerDeviceName);
    /// Raises an error of a recording group of a station.
    void addStorageError(const QString &stationID, ErrorType type, const QString &groupName,
                         const QString &groupID);
    /// Does the work of removeStationError().
    void removeStationFromErrorModel(const QString &stationID);

    /// Reconciles the children of a node of the topology model, and those of stations below it.
    void recursiveAppendStatusError(const QModelIndex &parent);

    // Server events.

    /// A station reported its usage: applies the threshold rules, and shows it when in focus.
    void handleSystemResChgEvent(const QVariant &data, const QString &stationId);
    /// A server is near its capacity.
    void handleServerReachingLimitedEvent(QVariant data);
    /// A node was snoozed: its error leaves the list and is kept out of it.
    void handleSnoozeError(const QVariant &data);
    /// A snooze ended while the node was still failing: its error is listed again.
    void snoozeExpiredAndShowError(const QVariant &data);
    /// A snooze was removed: the node's next disconnection is listed.
    void deleteSnooze(const QString &nodeID);

    // The operational log.

    /// What the log says of a snooze: error name, device, time. Empty when the error is not listed.
    QList<QVariant> composeOperationMessage(QVariant data);
    /// Hands an entry to the operational-log plug-in; returns its answer, false without one.
    bool addOperationLog(const QString &logName, QList<QVariant> &params);

    SystemErrorModel *errorModel = nullptr;     ///< owned, as a child
    QPointer<QStandardItemModel> topologyModel; ///< the topology plug-in's, not owned
    mutable TopologyIndex topologyIndex;        ///< finds nodes of that model by id
    QSharedPointer<SystemResourceModelControl> resourceModelControl;
    ErrorIndex indexMap; ///< finds rows by unique key
    /// Whoever is told of a change of the list may call back: whatever may change the list, or who
    /// is snoozed, waits for its turn.
    ChangeQueue listChanges{this, [this] { return indexMap.isChanging(); }};
    /// The record of the error last raised, kept for its nodes.
    QMap<QString, QVariant> errorRecord{
        {QStringLiteral("deviceID"), {}},  {QStringLiteral("errorCategory"), {}},
        {QStringLiteral("errorName"), {}}, {QStringLiteral("errorType"), {}},
        {QStringLiteral("id"), {}},        {QStringLiteral("stationID"), {}},
        {QStringLiteral("timestamp"), {}}, {QStringLiteral("triggerDeviceName"), {}},
    };
    QString focusStationId;
    QList<QVariant> stationErrors;  ///< value of the property stationErrorList
    QStringList snoozedDeviceList;  ///< ids of nodes whose disconnections are not listed
    QTimer stationErrorNumberTimer; ///< delays the recount until the list is quiet
    QTimer initNodeStatusTimer;     ///< delays the walk until the states are all there
    int cpuThreshold = 0;           ///< percent
    int memoryThreshold = 0;        ///< percent
    int networkThreshold = 0;       ///< percent
    QSharedPointer<ISystemResourceMonitor> resourceMonitor; ///< samples the client machine

private:
    bool createResourceModelControl();
    bool createResourceMonitor();
    void connectTopologySignal(const char *signal, const char *slot);
    /// Another plug-in's object, or null.
    QObject *pluginObject(const QString &pluginID) const;
    /// Sends a command of this plug-in; false without a framework.
    bool sendCommand(const QString &command, const QVariant &data, void *context,
                     const QString &target);
    /// Answers checkSupportSystemMonitor() and frees the station id that the context is.
    void handleSupportResponse(void *context, const QString &resultCode);
    void handleSetSnoozeResponse(const QVariant &data, bool success);
    void replaceSnoozes(const QStringList &nodeIDs);
    /// The text by which the walk names a node that raises an error.
    QString nameInWalk(const QModelIndex &node, int type, const QString &nodeID) const;
    /// The name of a camera's station, as findDeviceName() has it.
    QString parentStationName(const QString &cameraID) const;
    void reloadStorageUsage(const QString &stationID);

    /// Lists an error under a key, with its name and the time.
    void appendError(ErrorCategory category, ErrorType type, const QString &key,
                     const QString &stationID, const QString &deviceID,
                     const QString &triggerDeviceName);
    /// Gives a listed error another origin.
    void relabelError(const QModelIndex &index, const QString &triggerDeviceName);
    QModelIndexList errorsOfType(ErrorType type) const;
    /// Removes rows of the list, in this order.
    void removeRows(const QList<QStandardItem *> &items);
    QString storageLabel(const QString &stationID, const QString &groupName) const;

    void monitorStationStatus(const QString &stationID, bool connected);
    void monitorStationStatusForInit(const QString &stationID, bool connected,
                                     const QString &triggerDeviceName);
    void clearStationDisconnected(const QString &stationID);
    void monitorCameraStatus(const QString &cameraID, bool connected,
                             const QString &triggerDeviceName);
    /// Whether such a value of a station may raise an error or clear one. Most values are calm, and
    /// of stations without a usage error.
    bool mayChangeUsageErrors(const QString &stationID, int usage, int threshold) const;
    void monitorUsage(ErrorType type, const QString &stationID, int usage, int threshold,
                      const QString &subId);
};

#endif
