#include "PluginSystemMonitorCommon.h"

#include <QTest>

using namespace PluginSystemMonitorCommon;
using namespace Qt::Literals::StringLiterals;

/// The texts that two parties compare byte by byte.
class tst_PluginSystemMonitorCommon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constantHasItsText_data();
    void constantHasItsText();
    void internalErrorIsOneStringOfSixtyCharacters();
    void commandAndTunnelNameDifferInOneLetter();
};

void tst_PluginSystemMonitorCommon::constantHasItsText_data()
{
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QString &constant, const QString &text) {
        QTest::newRow(name) << constant << text;
    };
    row("own id", PSSYSTEMMONITOR_PLUGIN_ID, u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
    row("prefix name", PSSYSTEMMONITOR_PREFIX_NAME, u"SystemMonitorPlugin"_s);
    row("topology plug-in", TOPOLOGY_PLUGIN_ID, u"1AA33B3D0AA047C9A202F1181284D2CD"_s);
    row("recording-management plug-in", RECORDINGMANAGEMENT_PLUGIN_ID,
        u"8F33495A224D49ABB8F9E875984A1443"_s);
    row("reload storage", METHOD_RELOAD_STORAGE_USAGE_INFO, u"reloadStorageUsageInfo"_s);
    row("internal error", FRAMEWORK_INTERNAL_ERROR,
        u"{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError"_s);

    row("event of resources", EVENT_SYSTEM_RES_CHANGED, u"SystemResChanged"_s);
    row("event of capacity", EVENT_SERVER_REACHING_LIMITED, u"ServerReachingLimited"_s);
    row("event of a snooze", EVENT_SNOOZE_ERROR, u"SnoozeError"_s);
    row("event of a removed snooze", EVENT_REMOVE_SNOOZE, u"RemoveSnooze"_s);
    row("event of an expired snooze", EVENT_DEVICE_STILL_ERROR, u"DeviceStillError"_s);

    row("key of CPU", KEY_CPU_PERCENTAGE, u"cpuPercentage"_s);
    row("key of memory", KEY_MEM_PERCENTAGE, u"memPercentage"_s);
    row("key of network usage", KEY_NETWORK_PERCENTAGE, u"networkPercentage"_s);
    row("key of bandwidth", KEY_NETWORK_BANDWIDTH, u"networkBandwidth"_s);
    row("key of interface", KEY_NETWORK_INTERFACE, u"networkInterface"_s);
    row("key of network list", KEY_NETWORK_USAGE_LIST, u"networkUsageList"_s);
    row("key of server name", KEY_SERVER_NAME, u"serverName"_s);
    row("key of capacity", KEY_VIRTUAL_SIZE_PERCENTAGE, u"virtualSizePercentage"_s);

    row("reconnect sub-stations", METHOD_RECONNECT_SUBSTATIONS, u"reconnectSubstations"_s);
    row("reconnect cameras", METHOD_RECONNECT_CAMERAS, u"reconnectCameras"_s);
    row("tunnel, reconnect", TUNNEL_CMD_RECONNECT_SUBSTATIONS, u"ReconnectSubstations"_s);
    row("tunnel, node", TUNNEL_REQ_CMD_GET_NODE_INFO, u"GetNodeInfo"_s);
    row("set snooze", METHOD_SET_SNOOZE, u"setSnooze"_s);
    row("get snooze list", METHOD_GET_SNOOZE_LIST, u"getSnoozeList"_s);
    row("argument node", ARG_SNOOZE_NODE_ID, u"nodeID"_s);
    row("argument time", ARG_SNOOZE_TIMESTAMP, u"timestamp"_s);
    row("argument type", ARG_SNOOZE_TYPE, u"type"_s);
    row("add log", METHOD_ADD_OPERATIONAL_LOG, u"addOperationalLog"_s);
    row("log parameter", LOG_PARAM, u"param"_s);
    row("log name", ADD_DASHBOARD_SNOOZE_LOG_NAME, u"AddDashboardSnooze"_s);
}

void tst_PluginSystemMonitorCommon::constantHasItsText()
{
    QFETCH(const QString, constant);
    QFETCH(const QString, text);
    QCOMPARE(constant, text);
}

void tst_PluginSystemMonitorCommon::internalErrorIsOneStringOfSixtyCharacters()
{
    QCOMPARE(FRAMEWORK_INTERNAL_ERROR.size(), 60);
}

void tst_PluginSystemMonitorCommon::commandAndTunnelNameDifferInOneLetter()
{
    QVERIFY(METHOD_RECONNECT_SUBSTATIONS != TUNNEL_CMD_RECONNECT_SUBSTATIONS);
    QCOMPARE(METHOD_RECONNECT_SUBSTATIONS.toLower(), TUNNEL_CMD_RECONNECT_SUBSTATIONS.toLower());
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitorCommon)
#include "tst_PluginSystemMonitorCommon.moc"
