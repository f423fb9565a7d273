#include "ClientMessages.h"
#include "FuzzTarget.h"
#include "InputError.h"
#include "Invariants.h"
#include "ServerMessages.h"
#include "ServerNames.h"
#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <optional>

// What a client says to a site server, a message a line. The first that is not understood ends it,
// as it ends a connection.

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename AnyMessage> QString textOf(const AnyMessage &message)
{
    return std::visit([](const auto &one) { return toText(one); }, message);
}

std::optional<AnyClientMessage> read(const QString &text)
{
    try {
        return readClientMessage(text);
    } catch (const InputError &error) {
        require(error.message().startsWith("message: "_L1), "a refusal says what it is about");
        return std::nullopt;
    }
}

void requireRewritable(const AnyClientMessage &message)
{
    const QString text = textOf(message);
    const std::optional<AnyClientMessage> again = read(text);
    require(again && again->index() == message.index() && textOf(*again) == text,
            "an accepted message can be written and read again");
}

/// Clients refuse what they do not understand, so one client must not make the server say it.
void requireUnderstood(const QString &text)
{
    try {
        require(textOf(readServerMessage(text)) == text, "the server's words come through");
    } catch (const InputError &error) {
        require(false, qPrintable(u"clients understand the server: "_s + error.message()));
    }
}

QString stateOf(const SiteServer &server)
{
    return toText(ServerMessage::Welcome{server.site(), server.snoozes()});
}

void execute(SiteServer &server, const ClientMessage::Command &command)
{
    static const QStringList codes{ServerNames::Success, ServerNames::InvalidArgument,
                                   ServerNames::UnknownNode, ServerNames::UnknownCommand,
                                   ServerNames::FrameworkInternalError};
    const QString before = stateOf(server);
    const CommandResult result = server.execute(command.name, command.data, command.target);
    require(codes.contains(result.code), "a result has one of the codes");
    require(result.code == ServerNames::Success || stateOf(server) == before,
            "a refused command changes nothing");
    requireUnderstood(toText(ServerMessage::Result{command.id, result.code, result.data}));
    requireUnderstood(stateOf(server));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    VirtualClock clock;
    SiteServer server(testSite(), clock);
    server.setCameraConnected(u"north/c2"_s, false);
    server.setStationConnected(u"south"_s, false);
    QObject::connect(&server, &SiteServer::eventRaised, &server,
                     [](const QString &name, const QVariant &eventData, const QString &source) {
                         requireUnderstood(toText(ServerMessage::Event{name, eventData, source}));
                     });

    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const QByteArray &line : text.split('\n')) {
        const std::optional<AnyClientMessage> message = read(QString::fromUtf8(line));
        if (!message)
            break;
        requireRewritable(*message);
        if (const auto *const command = std::get_if<ClientMessage::Command>(&*message))
            execute(server, *command);
        clock.advance(1000);
    }
    return 0;
}
