#ifndef CLIENTMESSAGES_H
#define CLIENTMESSAGES_H

#include <QString>
#include <QVariant>

#include <variant>

/// What a client says to a site server. docs/site-protocol.md describes it.
namespace ClientMessage {

/// The version of the protocol that is spoken here.
constexpr int ProtocolVersion = 3;

/// A longer message is refused.
constexpr quint64 MaxBytes = quint64{1024} * 1024;

/// The first message of a client.
struct Hello
{
    QString token; ///< empty without one
};

/// A command, as SiteServer::execute() takes it.
struct Command
{
    int id = 0; ///< comes back with the result
    QString name;
    QVariant data;
    QString target;
};

} // namespace ClientMessage

using AnyClientMessage = std::variant<ClientMessage::Hello, ClientMessage::Command>;

QString toText(const ClientMessage::Hello &hello);
QString toText(const ClientMessage::Command &command);

/// Throws InputError when a text is no such message.
AnyClientMessage readClientMessage(const QString &text);

#endif
