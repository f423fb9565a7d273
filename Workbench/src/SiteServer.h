#ifndef SITESERVER_H
#define SITESERVER_H

#include "Site.h"
#include "SnoozeList.h"

#include <QObject>
#include <QVariant>

#include <memory>

class Clock;
class SnoozeStore;

/// What a client asks of a server.
struct SiteCommand
{
    QString name;
    QVariant data;
    QString target; ///< the station that it is for; empty for the server itself
};

/// A server's answer to a command.
struct CommandResult
{
    QString code; ///< ServerNames::Success, or what went wrong
    QVariant data;
};

/// A server that knows the state of a site, keeps its snoozes and carries out commands.
///
/// It knows no client: whoever listens to its signals is one. Signals about nodes and storage are
/// emitted at once, events from the event loop, so that a command is answered before the events
/// that it causes arrive. Used on one thread.
class SiteServer : public QObject
{
    Q_OBJECT

public:
    /// @param clock decides when snoozes end
    /// @param store keeps the snoozes, those that it holds already are taken up; without one they
    ///              end with the server. Both must outlive the server
    SiteServer(Site site, Clock &clock, SnoozeStore *store = nullptr, QObject *parent = nullptr);

    const Site &site() const { return m_site; }

    /// The snoozes in force. An event is raised whenever they change.
    std::vector<Snooze> snoozes() const;

    /// The snooze of a node, if one is in force.
    std::optional<Snooze> snoozeOf(const QString &nodeId) const;

    /// Starts anew with a site as given, and with no snoozes but those of the store.
    void reset(Site site);

    // What happens at the site. Each returns false, and nothing happens, when there is no such
    // node.

    bool setCameraConnected(const QString &cameraId, bool connected);
    /// A station that comes back tells again which nodes below it are disconnected.
    bool setStationConnected(const QString &stationId, bool connected);
    bool removeCamera(const QString &cameraId);
    bool removeStation(const QString &stationId);
    bool setVolumeConnected(const QString &stationId, const QString &volumeId, bool connected);
    bool setRecordedDays(const QString &stationId, const QString &groupId, int days);
    bool renameRecordingGroup(const QString &stationId, const QString &groupId,
                              const QString &name);

    /// Takes a station's report and tells the clients. False, too, for a station that is
    /// disconnected or does not support monitoring: such a one reports nothing.
    bool reportResources(const QString &stationId, const ResourceReport &report);

    /// Sets what a station reports from now on, and reports it.
    bool setResources(const QString &stationId, const ResourceReport &level);

    /// Warns the clients that a server is near its capacity, in percent.
    void reportReachingLimit(const QString &serverName, double percentage);

    /// Carries out a command of a client. An unknown command yields ServerNames::UnknownCommand. A
    /// snooze is stored before it is confirmed; one that cannot be yields ServerNames::StoreFailed.
    ///
    /// @param target the station that the command is for; empty for the server itself
    CommandResult execute(const QString &command, const QVariant &data, const QString &target);

    /// Carries out commands one after another; a result for each, in their order. Snoozes in a row
    /// are stored together, all or none.
    std::vector<CommandResult> executeAll(const std::vector<SiteCommand> &commands);

Q_SIGNALS:
    void nodeStatusChanged(NodeType type, const QString &nodeId, bool connected);
    void cameraRemoved(const QString &cameraId);
    /// All below the station is gone, too; nothing more is said of it.
    void stationRemoved(const QString &stationId);
    /// Volumes or recording groups of a connected station may have changed.
    void storageChanged(const QString &stationId);
    /// @param sourceId the station that an event comes from; empty for the server itself
    void eventRaised(const QString &name, const QVariant &data, const QString &sourceId);

private:
    void announceDisconnected(const Station &station);
    void announceStorage(const Station &station);
    bool raiseReport(const Station &station, const ResourceReport &resources);
    void raise(const QString &name, const QVariant &data, const QString &sourceId = {});

    QString verdictOn(const Snooze &snooze) const;
    std::vector<CommandResult> snooze(const QVariantList &requests);
    CommandResult supportsMonitoring(const QString &stationId) const;
    void reconnectCameras(const QStringList &ownParts, const QString &stationId);
    void reconnectStations(const QStringList &ownParts, const QString &parentId);
    bool isReachable(const QString &stationId) const;

    void loadSnoozes();
    bool isDown(const Snooze &snooze) const;
    void dropSnoozes(const QStringList &nodeIds);
    std::vector<Snooze> takeExpiredSnoozes();
    void expireSnoozes();
    void scheduleExpiry();
    void scheduleExpiryAt(qint64 timeMs);
    void reportAll();

    Clock &m_clock;
    SnoozeStore *const m_store; // or null
    Site m_site;
    SnoozeList m_snoozes;
    std::unique_ptr<QObject> m_events = std::make_unique<QObject>(); // the context of those to come
    std::optional<qint64> m_expiryCallMs; // when snoozes are looked through next
    qint64 m_reportCount = 0;
};

#endif
