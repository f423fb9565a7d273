#include "FuzzTarget.h"
#include "InputError.h"
#include "Invariants.h"
#include "ServerMessages.h"
#include "SiteInvariants.h"

#include <optional>

// What a site server says to a client, one message an input.

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<AnyServerMessage> read(const QString &text)
{
    try {
        return readServerMessage(text);
    } catch (const InputError &error) {
        require(error.message().startsWith("message: "_L1), "a refusal says what it is about");
        return std::nullopt;
    }
}

QString textOf(const AnyServerMessage &message)
{
    return std::visit([](const auto &one) { return toText(one); }, message);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<AnyServerMessage> message = read(QString::fromUtf8(input));
    if (!message)
        return 0;
    const QString text = textOf(*message);
    const std::optional<AnyServerMessage> again = read(text);
    require(again && again->index() == message->index() && textOf(*again) == text,
            "an accepted message can be written and read again");
    if (const auto *const welcome = std::get_if<ServerMessage::Welcome>(&*message)) {
        requireTree(welcome->site);
        require(std::get<ServerMessage::Welcome>(*again).site.cameraCount()
                    == welcome->site.cameraCount(),
                "a site comes through whole");
    }
    return 0;
}
