#ifndef SERVERMESSAGES_H
#define SERVERMESSAGES_H

#include "Site.h"
#include "SnoozeList.h"

#include <QString>
#include <QVariant>

#include <variant>
#include <vector>

/// What a site server says to its clients. docs/site-protocol.md describes it.
namespace ServerMessage {

/// A longer message is not for a client to take.
constexpr quint64 MaxBytes = quint64{64} * 1024 * 1024;

/// The answer to a hello: the site as it is. What follows tells of its changes.
struct Welcome
{
    Site site;
    std::vector<Snooze> snoozes; ///< in force
    qint64 timeMs = 0;           ///< of the server's clock, in milliseconds since the epoch
};

/// The last message on a connection that the server will not have.
struct Refused
{
    QString reason;      ///< a sentence for the user
    bool isFinal = true; ///< whether it is of no use to try again
};

struct Result
{
    int id = 0; ///< of the command
    QString code;
    QVariant data;
};

struct NodeStatus
{
    NodeType type = NodeType::Camera; ///< Camera or Station
    QString nodeId;
    bool connected = false;
};

struct CameraRemoved
{
    QString cameraId;
};

struct StationRemoved
{
    QString stationId;
};

struct StorageChanged
{
    Station station; ///< with its id, volumes and recording groups alone
};

/// A node is snoozed, or snoozed anew. It comes before the event that tells of it.
struct Snoozed
{
    Snooze snooze;
};

/// A node is not snoozed any more. It comes before the event that tells of it.
struct SnoozeEnded
{
    QString nodeId;
};

struct Event
{
    QString name;
    QVariant data;
    QString sourceId; ///< empty for the server itself
};

} // namespace ServerMessage

using AnyServerMessage =
    std::variant<ServerMessage::Welcome, ServerMessage::Refused, ServerMessage::Result,
                 ServerMessage::NodeStatus, ServerMessage::CameraRemoved,
                 ServerMessage::StationRemoved, ServerMessage::StorageChanged,
                 ServerMessage::Snoozed, ServerMessage::SnoozeEnded, ServerMessage::Event>;

QString toText(const ServerMessage::Welcome &welcome);
QString toText(const ServerMessage::Refused &refused);
QString toText(const ServerMessage::Result &result);
QString toText(const ServerMessage::NodeStatus &status);
QString toText(const ServerMessage::CameraRemoved &removed);
QString toText(const ServerMessage::StationRemoved &removed);
QString toText(const ServerMessage::StorageChanged &changed);
QString toText(const ServerMessage::Snoozed &snoozed);
QString toText(const ServerMessage::SnoozeEnded &ended);
QString toText(const ServerMessage::Event &event);

/// Throws InputError when a text is no such message.
AnyServerMessage readServerMessage(const QString &text);

#endif
