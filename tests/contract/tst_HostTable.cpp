#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

#include <cstring>

using namespace Qt::Literals::StringLiterals;

/// The ten operations of a plug-in, called through its table as a host that was built on its own
/// calls them, and the host's services through a table made by hand.
class tst_HostTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void slot1IsInitialPluginBase();
    void slot2IsEventProcessor();
    void slot3IsEventProcessorEx();
    void slot4IsCommandProcessor();
    void slot5IsCommandProcessorEx();
    void slot6IsInit();
    void slot7IsLoadClientOnlyPluginDone();
    void slot8IsLoadPairPluginDone();
    void slot9IsPluginServerConnected();
    void slot10IsPluginServerDisconnected();
    void commandsCarryHandleSenderAndFlag();
    void connectionsCarryHandleIdsAndFlag();
};

namespace {

// The meta-object trio, two entries of the destructor, and seven event and connection hooks.
constexpr int QObjectOperations = 12;

// Looks an operation up in the object's table and gives it the type that it is called with.
template <typename Result, typename... Arguments> auto operation(const PluginBase *plugin, int slot)
{
    const auto *const *const table = *reinterpret_cast<const void *const *const *>(plugin);
    const void *const entry = table[QObjectOperations + slot - 1];
    Result (*function)(const PluginBase *, Arguments...) = nullptr;
    static_assert(sizeof function == sizeof entry);
    std::memcpy(&function, &entry, sizeof entry);
    return function;
}

QVariant volumeFull()
{
    return QVariantMap{{u"serverName"_s, u"Main"_s}, {u"virtualSizePercentage"_s, 93.5}};
}

} // namespace

void tst_HostTable::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_HostTable::slot1IsInitialPluginBase()
{
    TestHost host(TestHost::Loaded);
    const auto initialPluginBase =
        operation<bool, QQmlContext *, void *, FrameworkWrapperBase *>(host.plugin(), 1);
    QVERIFY(initialPluginBase(host.plugin(), nullptr, host.framework.handle(),
                              host.framework.framework()));
    QCOMPARE(host.plugin()->prefixName(), u"SystemMonitorPlugin"_s);
    QCOMPARE(host.plugin()->pluginID(), u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
    QVERIFY(host.errors());
}

void tst_HostTable::slot2IsEventProcessor()
{
    TestHost host;
    const auto eventProcessor =
        operation<void, QString, qint64, int, int, QVariant, const QString &>(host.plugin(), 2);
    eventProcessor(host.plugin(), u"ServerReachingLimited"_s, 1, 2, 3, volumeFull(), u"st1"_s);
    QCOMPARE(host.log.take(), QStringList{u"notifyServerReachingLimited(\"Main\", 93.5)"_s});
}

void tst_HostTable::slot3IsEventProcessorEx()
{
    TestHost host;
    const auto eventProcessorEx =
        operation<void, QString, ConfigBase *, qint64, int, int, QVariant, const QString &>(
            host.plugin(), 3);
    eventProcessorEx(host.plugin(), u"ServerReachingLimited"_s, nullptr, 1, 2, 3, volumeFull(),
                     u"st1"_s);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_HostTable::slot4IsCommandProcessor()
{
    TestHost host;
    const auto commandProcessor =
        operation<void, QString, QVariant, void *, QString, QString, bool, const QString &>(
            host.plugin(), 4);
    commandProcessor(host.plugin(), u"setSnooze"_s, {}, nullptr, u"0"_s, u"x"_s, true, u"y"_s);
    QCOMPARE(host.log.take(), QStringList{u"setSnoozeResponse(true)"_s});
}

void tst_HostTable::slot5IsCommandProcessorEx()
{
    TestHost host;
    const auto commandProcessorEx =
        operation<void, QString, ConfigBase *, QVariant, void *, QString, QString, bool,
                  const QString &>(host.plugin(), 5);
    commandProcessorEx(host.plugin(), u"setSnooze"_s, nullptr, {}, nullptr, u"0"_s, u"x"_s, true,
                       u"y"_s);
    QCOMPARE(host.log.take(), QStringList());
}

void tst_HostTable::slot6IsInit()
{
    TestHost host(TestHost::Loaded);
    QVERIFY(!host.errors());
    QVERIFY((operation<bool, QQmlContext *>(host.plugin(), 6)(host.plugin(), nullptr)));
    QVERIFY(host.errors());
    QVERIFY(host.resources());
}

void tst_HostTable::slot7IsLoadClientOnlyPluginDone()
{
    TestHost host(TestHost::Initialised);
    operation<void>(host.plugin(), 7)(host.plugin());
    QCOMPARE(host.log.take(), QStringList());
}

void tst_HostTable::slot8IsLoadPairPluginDone()
{
    TestHost host(TestHost::Initialised);
    operation<void>(host.plugin(), 8)(host.plugin());
    QCOMPARE(host.log.take().constFirst(), u"ask whether to skip pair wiring"_s);
    QCOMPARE(host.framework.connections().size(), 4);
}

void tst_HostTable::slot9IsPluginServerConnected()
{
    TestHost host;
    operation<void>(host.plugin(), 9)(host.plugin());
    QCOMPARE(host.log.take(), QStringList{u"send getSnoozeList invalid to \"\""_s});
}

void tst_HostTable::slot10IsPluginServerDisconnected()
{
    TestHost host;
    host.invoke("monitorVolumeStatus", u"st1"_s);
    QCOMPARE(host.errors()->rowCount(), 1);
    operation<void>(host.plugin(), 10)(host.plugin());
    QCOMPARE(host.errors()->rowCount(), 0);
}

void tst_HostTable::commandsCarryHandleSenderAndFlag()
{
    TestHost host;
    host.invoke("monitorNodeStatus", 1, u"a/b"_s, false);
    host.invoke("monitorNodeStatus", 0, u"c/d"_s, false);

    host.plugin()->PluginServerConnected();
    QVERIFY(host.ask<bool>("setSnooze", u"c/d"_s, qlonglong(5), 3));
    host.invoke("reconnectDisconnectSubstations");
    host.invoke("reconnectDisconnectCameras");

    QCOMPARE(host.framework.commands().size(), 4);
    for (const SentCommand &command : host.framework.commands()) {
        QCOMPARE(command.handle, host.framework.handle());
        QCOMPARE(command.senderID, u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
        QCOMPARE(command.context, nullptr);
        QCOMPARE(command.flag, 0);
    }
}

void tst_HostTable::connectionsCarryHandleIdsAndFlag()
{
    const TestHost host;
    QCOMPARE(host.framework.connections().size(), 4);
    for (const RequestedConnection &connection : host.framework.connections()) {
        QCOMPARE(connection.sourceID, u"1AA33B3D0AA047C9A202F1181284D2CD"_s);
        QCOMPARE(connection.receiverID, u"{CA5B02D6-F3E0-4FD7-A55C-17F425D5B415}"_s);
        QCOMPARE(connection.flag, 0);
    }
    QVERIFY(host.framework.allCallsHadTheHandle());
}

QTEST_GUILESS_MAIN(tst_HostTable)
#include "tst_HostTable.moc"
