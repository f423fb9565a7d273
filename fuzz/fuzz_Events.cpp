#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "HostedPlugin.h"
#include "Invariants.h"
#include "NodeReport.h"
#include "PluginSystemMonitorCommon.h"

// Server events: their names, their data, where they come from; and node reports between them.

using namespace Qt::Literals::StringLiterals;
using namespace PluginSystemMonitorCommon;

namespace {

QVariant networkList(FuzzInput &input)
{
    QVariantList list;
    for (int count = input.below(5); count > 0; --count) {
        list.append(input.below(8) == 7 ? input.value(1)
                                        : input.map({KEY_NETWORK_INTERFACE, KEY_NETWORK_PERCENTAGE,
                                                     KEY_NETWORK_BANDWIDTH}));
    }
    return list;
}

QVariant eventData(FuzzInput &input, const QString &name)
{
    if (input.below(8) == 7)
        return input.value();
    if (name == EVENT_SYSTEM_RES_CHANGED) {
        QVariantMap report = input.map({KEY_CPU_PERCENTAGE, KEY_MEM_PERCENTAGE});
        report.insert(KEY_NETWORK_USAGE_LIST, networkList(input));
        return report;
    }
    if (name == EVENT_SERVER_REACHING_LIMITED)
        return input.map({KEY_SERVER_NAME, KEY_VIRTUAL_SIZE_PERCENTAGE});
    if (name == EVENT_REMOVE_SNOOZE)
        return input.id();
    QVariantMap snooze = input.map({ARG_SNOOZE_TIMESTAMP});
    snooze.insert(ARG_SNOOZE_NODE_ID, input.id());
    snooze.insert(ARG_SNOOZE_TYPE, input.flag() ? 3 + input.below(2) : input.below(9));
    return snooze;
}

void sendEvent(HostedPlugin &hosted, FuzzInput &input)
{
    static const QStringList names{EVENT_SYSTEM_RES_CHANGED, EVENT_SNOOZE_ERROR,
                                   EVENT_DEVICE_STILL_ERROR, EVENT_REMOVE_SNOOZE,
                                   EVENT_SERVER_REACHING_LIMITED};
    const QString name = input.below(16) == 15 ? input.text() : input.oneOf(names);
    const QVariant data = eventData(input, name);
    hosted.event(name, data, input.id());

    const QVariantMap snooze = data.toMap();
    const auto type = static_cast<ErrorType>(snooze.value(ARG_SNOOZE_TYPE).toInt());
    const QString id = snooze.value(ARG_SNOOZE_NODE_ID).toString();
    if (name == EVENT_SNOOZE_ERROR) {
        require(!hosted.plugin.lists(type, id), "a snoozed error leaves the list");
        require(hosted.plugin.snoozedDeviceList.count(id) == 1, "a snooze is remembered once");
    } else if (name == EVENT_DEVICE_STILL_ERROR) {
        require(!hosted.plugin.snoozedDeviceList.contains(id), "an ended snooze is forgotten");
        require((type != CameraDisconnected && type != StationDisconnected)
                    || hosted.plugin.lists(type, id),
                "an error that outlasts its snooze is listed");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    HostedPlugin hosted;
    const LeftKeys leftKeys(hosted.plugin);
    RegularConsistency consistency(hosted.plugin);
    hosted.plugin.setFocusStationResource(u"st1"_s);
    while (!input.isEmpty()) {
        switch (input.below(8)) {
        case 0:
            reportNode(hosted, input);
            break;
        case 1:
            hosted.plugin.setFocusStationResource(input.id());
            break;
        case 2:
            Q_EMIT hosted.topology.stationRemoved(input.id());
            break;
        default:
            sendEvent(hosted, input);
        }
        consistency.afterStep();
    }
    requireConsistency(hosted.plugin);
    leftKeys.requireForgotten();
    return 0;
}
