#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "HostedPlugin.h"
#include "Invariants.h"
#include "PluginSystemMonitorCommon.h"
#include "SystemErrorModel.h"

// Responses to commands: their names, data and result codes. Every question has one answer, which
// frees the question's context.

using namespace Qt::Literals::StringLiterals;
using namespace PluginSystemMonitorCommon;

namespace {

QString resultCode(FuzzInput &input)
{
    static const QStringList codes{u"0"_s, u""_s, u"00"_s, FRAMEWORK_INTERNAL_ERROR};
    return input.below(8) == 7 ? input.text() : input.oneOf(codes);
}

QVariant responseData(FuzzInput &input, const QString &command)
{
    if (input.below(4) == 3)
        return input.value();
    if (command == METHOD_GET_SNOOZE_LIST)
        return QStringList{input.id(), input.id(), input.id()};
    QVariantMap snooze = input.map({ARG_SNOOZE_TIMESTAMP});
    snooze.insert(ARG_SNOOZE_NODE_ID, input.id());
    snooze.insert(ARG_SNOOZE_TYPE, 3 + input.below(2));
    return snooze;
}

/// How many texts share the memory of this one; an empty one has none.
int sharers(QString &text)
{
    const auto *const memory = text.data_ptr().d_ptr();
    return memory ? memory->ref_.loadRelaxed() : 0;
}

void answerQuestion(HostedPlugin &hosted, FuzzInput &input)
{
    hosted.host.acceptsCommands = input.flag();
    // The context shares the memory of what was asked, which therefore counts it.
    QString id = input.id();
    id.detach();
    const int without = sharers(id);
    hosted.plugin.checkSupportSystemMonitor(id);
    void *const context = hosted.host.commands().last().context;
    hosted.host.forgetCommands();
    const int open = id.isEmpty() ? 0 : without + 1;
    require(sharers(id) == open, "a question has one context");
    // Other answers leave the context alone, whatever they carry.
    hosted.respond(METHOD_SET_SNOOZE, {}, u"0"_s, context);
    hosted.respond(METHOD_GET_SNOOZE_LIST, {}, u"0"_s, context);
    require(sharers(id) == open, "a context stays until its answer comes");
    hosted.respond(u"isSupportSystemMonitor"_s, input.value(), resultCode(input), context);
    require(sharers(id) == without, "an answer frees its context once");
}

void respond(HostedPlugin &hosted, FuzzInput &input)
{
    static const QStringList commands{METHOD_SET_SNOOZE, METHOD_GET_SNOOZE_LIST,
                                      METHOD_RECONNECT_CAMERAS};
    QString command = input.below(8) == 7 ? input.text() : input.oneOf(commands);
    const QVariant data = responseData(input, command);
    const int rows = hosted.plugin.errorModel->rowCount();
    hosted.respond(command, data, resultCode(input));
    require(hosted.plugin.errorModel->rowCount() == rows, "a response changes no row");
    if (command == METHOD_GET_SNOOZE_LIST)
        require(hosted.plugin.snoozedDeviceList == data.toStringList(), "the list is taken whole");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    HostedPlugin hosted;
    const LeftKeys leftKeys(hosted.plugin);
    while (!input.isEmpty()) {
        switch (input.below(6)) {
        case 0:
            Q_EMIT hosted.topology.nodeStatusChanged(input.below(2), input.id(), input.flag());
            break;
        case 1:
            answerQuestion(hosted, input);
            break;
        case 2:
            hosted.plugin.setSnooze(input.id(), input.number(), static_cast<int>(input.number()));
            break;
        case 3:
            hosted.plugin.reconnectDisconnectCameras();
            hosted.plugin.reconnectDisconnectSubstations();
            break;
        default:
            respond(hosted, input);
        }
    }
    requireConsistency(hosted.plugin);
    leftKeys.requireForgotten();
    return 0;
}
