#ifndef FAKEPLUGIN_H
#define FAKEPLUGIN_H

#include <QStandardItemModel>
#include <QVariant>

/// Offers QML the surface of the plug-in without any of its rules: tests put errors and usage in
/// and read back what the dashboard asked for.
class FakePlugin : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString focusStationResource READ focusStationResource WRITE setFocusStationResource
                   NOTIFY focusStationResourceChanged)

    /// The calls that the dashboard made, one text each, in order: "setSnooze st1/cam7 1700000000
    /// 3".
    Q_PROPERTY(QStringList calls READ calls NOTIFY callsChanged)
    /// What the operations that send a command return.
    Q_PROPERTY(bool accepting MEMBER accepting)

public:
    enum ErrorRole {
        StationIDRole = Qt::UserRole + 1,
        DeviceIDRole,
        ErrorTypeRole,
        ErrorCategoryRole,
        TimestampRole,
        ErrorNameRole,
        TriggerDeviceNameRole,
        UniqueIDRole,
    };
    enum UsageRole {
        TypeRole = Qt::UserRole + 1,
        TitleRole,
        SubtitleRole,
        ThresholdRole,
        UsageListRole,
        BandwidthRole,
    };

    explicit FakePlugin(QObject *parent = nullptr);

    // What QML finds in the plug-in.

    Q_INVOKABLE QObject *getSystemErrorModel();
    Q_INVOKABLE QObject *getSystemErrorSortFilterModel(QObject *parent);
    Q_INVOKABLE QObject *getSystemResourceModel();
    Q_INVOKABLE bool checkSupportSystemMonitor(const QString &stationId);
    Q_INVOKABLE void reconnectDisconnectSubstations();
    Q_INVOKABLE void reconnectDisconnectCameras();
    Q_INVOKABLE bool setSnooze(const QString &nodeID, qlonglong timestamp, int type);

    QString focusStationResource() const;
    void setFocusStationResource(const QString &stationId);

    // What tests do to it.

    /// Appends an error of a camera or station, under the key that the plug-in would give it.
    /// @p names holds the station's name and, for a camera, the camera's name.
    Q_INVOKABLE void addError(int type, const QString &stationID, const QString &deviceID,
                              const QStringList &names, qint64 timestamp);
    /// Appends an error that has nothing but a key and a category.
    Q_INVOKABLE void addBareError(const QString &uniqueID);
    /// Appends cameras of the stations st0 to st9, a second apart, the newest first.
    Q_INVOKABLE void addCameraErrors(int count, qint64 newest);
    Q_INVOKABLE void removeError(const QString &uniqueID);
    Q_INVOKABLE void clearErrors();
    Q_INVOKABLE void setTimestamp(const QString &uniqueID, qint64 timestamp);
    /// A report of the station in focus; @p networks as in the server's event.
    Q_INVOKABLE void report(int cpu, int memory, const QVariantList &networks);

    QStringList calls() const;
    Q_INVOKABLE void forgetCalls();

Q_SIGNALS:
    void systemResourceChanged(int cpu, int memory, QVariantList networkList);
    void focusStationResourceChanged(QString focusStationResource);
    void isSupportSystemMonitor(QString stationId, bool isSupport);
    void clientResourceChanged(int cpu, int memory);
    void notifySystemResourceUpdated();
    void notifyServerReachingLimited(QString serverName, double percentage);
    void setSnoozeResponse(bool success);
    void callsChanged();

private:
    void record(const QString &call);
    void resetUsage();
    void appendUsageRow(int type, const QString &title, const QString &subtitle, int threshold);
    void pushUsage(int row, double value);
    void pushNetworkUsage(const QVariantMap &network);
    QStandardItem *findError(const QString &uniqueID) const;

    QStandardItemModel errors;
    QStandardItemModel usage;
    QString focusStation;
    QStringList recordedCalls;
    bool accepting = true;
};

#endif
