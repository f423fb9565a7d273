#ifndef REFERENCEMONITOR_H
#define REFERENCEMONITOR_H

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/// A node of the device tree.
struct ReferenceNode
{
    int type = 0;
    QString id;
    QString name;
    bool isConnected = false;
    QList<ReferenceNode> children;
};

/// A row of the error list.
struct ReferenceError
{
    int serial; ///< tells the row from all others that there ever were
    int step;   ///< when it was raised
    QString key;
    QString stationID;
    QString deviceID;
    int type;
    int category;
    QString name;
    QString origin;
};

/// A row of the resource model.
struct ReferenceResource
{
    int type;
    QString title;
    QVariant subtitle;
    int threshold;
    QVariantList history;
    QVariant bandwidth;
};

/// The rules of the health dashboard, written down once more: literal, slow and in plain lists.
///
/// It shares no code with the plug-in. The state lies open for comparison; what the plug-in should
/// do outwards (signals, its own and those of the error list's rows, commands, calls on other
/// plug-ins) is written to the log, in the form in which the fakes of the tests write it.
class ReferenceMonitor
{
public:
    ReferenceMonitor(int cpuThreshold, int memoryThreshold, int networkThreshold);

    int step = 0; ///< set by the test before each operation

    // The world around.
    bool hasTop = true; ///< whether the device tree has its top-level node
    ReferenceNode top;
    bool hasRecordingPlugin = true;
    bool hasLogPlugin = true;

    // What can be compared.
    QStringList log;
    QList<ReferenceError> errors;
    QList<ReferenceResource> resources;
    QVariantList stationErrors;
    QString focus;

    // What others do to the error list.
    void moveRow(int from, int to);
    void removeRows(int first, int count);
    void changeRow(int row, QString ReferenceError::*value, const QString &text);
    void resetRows();

    // What the topology plug-in reports.
    void nodeStatus(int type, const QString &id, bool isConnected);
    void cameraRemoved(const QString &id);
    void stationRemoved(const QString &id);

    // What the host calls by name.
    void nodeStatusAtStartUp(int type, const QString &id, bool isConnected, const QString &origin);
    void walk();
    void volumeLost(const QString &id);
    void volumesCleared(const QString &id);
    void usage(int type, const QString &stationID, int usage, const QString &subID);
    void daysInsufficient(const QString &stationID, const QString &name, const QString &groupID);
    void daysSufficient(const QString &stationID, const QString &groupID);
    void recount();

    // What the user interface asks for.
    void setSnooze(const QString &id, qlonglong timestamp, int type);
    void checkSupport(const QString &stationID);
    void reconnectSubstations();
    void reconnectCameras();
    void setFocus(const QString &stationID);

    // What the host delivers.
    void event(const QString &name, const QVariant &data, const QString &sourceID);
    void snoozeResponse(const QVariant &data, const QString &resultCode);
    void snoozeListResponse(const QStringList &ids);
    void supportResponse(const QString &stationID, const QString &resultCode);
    void paired();
    void serverConnected();
    void serverDisconnected();

    /// Seconds since the epoch whose local time in Berlin is known, with that time.
    static const QMap<qlonglong, QString> &knownTimes();

private:
    QString key(int type, const QString &id, const QString &subID) const;
    QString errorName(int type) const;
    QString nodeName(const QString &id) const;
    QString stationOrigin(const QString &stationID) const;
    QString cameraOrigin(const QString &cameraID) const;
    QString groupOrigin(const QString &stationID, const QString &groupName) const;

    void rowsInserted(int row);
    void rowsRemoved(int first, int last);
    ReferenceError *find(int type, const QString &id, const QString &subID = {});
    void append(const ReferenceError &error);
    void remove(int serial);
    void addStationError(const QString &stationID, int type, const QString &subID,
                         const QString &origin);
    void addCameraError(const QString &cameraID, const QString &origin);
    void walkBelow(const ReferenceNode &parent);

    void resourceReport(const QVariant &data, const QString &stationID);
    void layOutResources();
    void layOutNetworks(QVariantList networks);
    void updateResources(int cpu, int memory, const QVariantList &networks);
    void snoozed(const QVariant &data);
    void snoozeExpired(const QVariant &data);
    void snoozeReleased(const QString &id);

    int m_thresholds[3];
    int m_lastSerial = 0;
    QMap<QString, int> m_serials; ///< key to the row that was filed last under it
    QStringList m_snoozed;
    bool m_networksPending = true;
};

#endif
