#include "ClientMessages.h"

#include "JsonObject.h"
#include "Message.h"

#include <limits>

using namespace ClientMessage;

namespace {

const QString HelloType = QStringLiteral("hello");
const QString CommandType = QStringLiteral("command");

const QString ProtocolKey = QStringLiteral("protocol");
const QString TokenKey = QStringLiteral("token");
const QString IdKey = QStringLiteral("id");
const QString NameKey = QStringLiteral("name");
const QString DataKey = QStringLiteral("data");
const QString TargetKey = QStringLiteral("target");

// The version comes first: of another one, nothing else is known.
Hello readHello(JsonObject &object)
{
    const int version = object.wholeNumber(ProtocolKey, 0, std::numeric_limits<int>::max());
    if (version != ProtocolVersion)
        object.fail(ProtocolKey, Message::tr("version %1").arg(ProtocolVersion),
                    Message::tr("version %1").arg(version));
    return {Message::optionalText(object, TokenKey)};
}

Command readCommand(JsonObject &object)
{
    Command command;
    command.id = object.wholeNumber(IdKey, 0, std::numeric_limits<int>::max());
    command.name = object.text(NameKey);
    command.data = object.value(DataKey).toVariant();
    command.target = Message::optionalText(object, TargetKey);
    return command;
}

} // namespace

QString toText(const Hello &hello)
{
    QJsonObject object = Message::object(HelloType);
    object.insert(ProtocolKey, ProtocolVersion);
    Message::insertOptional(object, TokenKey, hello.token);
    return Message::toText(object);
}

QString toText(const Command &command)
{
    QJsonObject object = Message::object(CommandType);
    object.insert(IdKey, command.id);
    object.insert(NameKey, command.name);
    object.insert(DataKey, QJsonValue::fromVariant(command.data));
    Message::insertOptional(object, TargetKey, command.target);
    return Message::toText(object);
}

AnyClientMessage readClientMessage(const QString &text)
{
    static const Message::Readers<AnyClientMessage> readers{
        {HelloType, [](JsonObject &object) -> AnyClientMessage { return readHello(object); }},
        {CommandType, [](JsonObject &object) -> AnyClientMessage { return readCommand(object); }},
    };
    return Message::read(text, readers);
}
