#ifndef SNOOZELIST_H
#define SNOOZELIST_H

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A node's disconnection is not to be shown for a while.
struct Snooze
{
    QString nodeId;
    int errorType = 0;     ///< ServerNames::CameraDisconnected or StationDisconnected
    qint64 endSeconds = 0; ///< when it ends, in seconds since the epoch
};

enum class SnoozeState {
    Active,
    Expired, ///< from the very second of its end
};

/// A snooze's state depends on nothing but the time.
SnoozeState snoozeState(const Snooze &snooze, qint64 nowMs);

/// The snoozes of a site, at most one a node.
class SnoozeList
{
public:
    /// Adds a snooze, in place of an earlier one of the same node.
    void set(const Snooze &snooze);

    /// Takes a node's snooze off the list; false when it has none.
    bool remove(const QString &nodeId);

    void clear();

    /// Ids of the nodes that are snoozed at a time, in ascending order.
    QStringList activeNodeIds(qint64 nowMs) const;

    /// The snoozes that are active at a time, by the ids of their nodes.
    std::vector<Snooze> active(qint64 nowMs) const;

    /// The snooze of a node, if it is active at a time.
    std::optional<Snooze> active(const QString &nodeId, qint64 nowMs) const;

    /// All snoozes, by the ids of their nodes.
    std::vector<Snooze> all() const { return {m_snoozes.cbegin(), m_snoozes.cend()}; }

    /// Takes the snoozes off the list that have expired at a time, the earliest end first.
    std::vector<Snooze> takeExpired(qint64 nowMs);

    /// When the next snooze ends, in milliseconds since the epoch; nothing without snoozes.
    std::optional<qint64> nextEndMs() const;

private:
    QMap<QString, Snooze> m_snoozes; // by node id
};

#endif
