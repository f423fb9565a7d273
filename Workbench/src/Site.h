#ifndef SITE_H
#define SITE_H

#include "ResourceReport.h"

#include <QHash>
#include <QMetaType>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>
#include <vector>

/// What a node of a site is, with the numbers that travel in topology models and signals.
enum class NodeType : int {
    Camera = 0,
    Station = 1,
    Site = 2, ///< the one node above the stations
};
Q_DECLARE_METATYPE(NodeType)

/// A camera. Its id is its station's id, a "/" and the camera's own part.
struct Camera
{
    QString id;
    QString name;
    bool connected = true;
    QUrl address = {}; ///< of the real camera: "rtsp://..." or "tcp://host:port"; empty without one
};

/// A storage volume of a station.
struct Volume
{
    QString id; ///< unique within the station
    QString name;
    bool connected = true;
};

/// Recordings of a station that are to be kept for a number of days.
struct RecordingGroup
{
    QString id; ///< unique within the station
    QString name;
    int recordedDays = 0;
    int requiredDays = 0;

    bool isSufficient() const { return recordedDays >= requiredDays; }
};

/// Where a real station tells its load: a Prometheus exporter.
struct Exporter
{
    QUrl url;                          ///< http or https
    QHash<QString, double> bandwidths; ///< Mbit/s, of the interfaces whose speed is known
};

/// A recording station with what hangs on it. The id of a sub-station is the id of the station
/// above it, a "/" and its own part.
struct Station
{
    QString id;
    QString name;
    bool connected = true;
    bool supportsMonitoring = true;
    std::optional<ResourceReport> resources; ///< what it reports again and again, if anything
    std::optional<Exporter> exporter;        ///< the real station that this one stands for, if any
    std::vector<Volume> volumes;
    std::vector<RecordingGroup> recordingGroups;
    std::vector<Camera> cameras;
    std::vector<Station> stations;

    /// Null when the station has no such volume.
    Volume *findVolume(const QString &volumeId);
    /// Null when the station has no such group.
    RecordingGroup *findRecordingGroup(const QString &groupId);
    bool hasLostVolume() const;

    /// Visits this station and every one below it, each before those below it.
    void forEachStation(const std::function<void(const Station &)> &visit) const;
};

/// A video-surveillance site: a tree of stations and cameras, a plain value.
class Site
{
public:
    QString name;
    std::vector<Station> stations;

    /// Null when there is no such station. The pointer is good until stations come or go.
    const Station *findStation(const QString &id) const;
    Station *findStation(const QString &id);

    /// Null when there is no such camera. The pointer is good until cameras or stations come or go.
    const Camera *findCamera(const QString &id) const;
    Camera *findCamera(const QString &id);

    /// Removes a camera; false when there is none.
    bool removeCamera(const QString &id);
    /// Removes a station with all below it; false when there is none.
    bool removeStation(const QString &id);

    /// Visits every station, each before those below it.
    void forEachStation(const std::function<void(const Station &)> &visit) const;

    int stationCount() const;
    int cameraCount() const;
};

/// The id of the station that stands for the machine that a Workbench runs on. It is added to the
/// stations of a site's file, none of which may have it.
inline const QString ThisMachineId = QStringLiteral("this-machine");

/// The id of the station above a node; empty for a station at the top.
QString parentNodeId(const QString &id);

/// The id of a node from its parent's id, empty at the top, and its own part.
QString childNodeId(const QString &parentId, const QString &ownPart);

#endif
