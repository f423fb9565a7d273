#include "ModelRoles.h"
#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>

#include <functional>

using namespace Qt::Literals::StringLiterals;

/// The resource reports of stations, and the station in focus.
class tst_ResourceEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void reportRaisesAndClearsErrors();
    void percentagesAreWholeNumbersForTheRules_data();
    void percentagesAreWholeNumbersForTheRules();
    void otherDataIsDropped_data();
    void otherDataIsDropped();
    void missingValuesReadAsZero();
    void reportOfAnotherStationOnlyReachesTheRules();
    void reportOfTheFocusStationIsPassedOnAsReceived();
    void focusIsComparedWithCase();
    void emptyStationIsInFocusAtFirst();
    void rulesThenModelThenSignal();
    void focusIsAnnouncedWhenItChanges();
    void sameFocusAgainChangesNothing();
    void focusMayBeTakenAway();
    void focusIsKeptOverADisconnection();
    void reportNamesItsStationInTheErrors();
};

// Looks around while the report is being passed on.
class Observer : public QObject
{
    Q_OBJECT

public:
    std::function<void()> look;

public Q_SLOTS:
    void onReport() { look(); }
};

namespace {

QVariantMap report(const QVariant &cpu, const QVariant &memory, const QVariantList &networks = {})
{
    return {
        {u"cpuPercentage"_s, cpu}, {u"memPercentage"_s, memory}, {u"networkUsageList"_s, networks}};
}

QVariant interface(const QString &name, const QVariant &percentage)
{
    return QVariantMap{{u"networkInterface"_s, name}, {u"networkPercentage"_s, percentage}};
}

void send(TestHost &host, const QVariant &data, const QString &stationID)
{
    host.event(u"SystemResChanged"_s, data, stationID);
}

void focus(TestHost &host, const QString &stationID)
{
    QVERIFY(host.object()->setProperty("focusStationResource", stationID));
}

const QString Notice = u"notifySystemResourceUpdated()"_s;

} // namespace

void tst_ResourceEvents::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_ResourceEvents::reportRaisesAndClearsErrors()
{
    TestHost host;
    send(host, report(90, 90, {interface(u"en0"_s, 50), interface(u"en1"_s, 99)}), u"st1"_s);
    QCOMPARE(host.errorKeys(),
             QStringList({u"0_st1"_s, u"1_st1"_s, u"2_st1_en0"_s, u"2_st1_en1"_s}));
    send(host, report(90, 89, {interface(u"en1"_s, 49)}), u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"2_st1_en0"_s}));
    send(host, report(0, 0), u"st2"_s);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"2_st1_en0"_s}));
}

void tst_ResourceEvents::percentagesAreWholeNumbersForTheRules_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isListed");
    QTest::newRow("whole") << QVariant(50) << true;
    QTest::newRow("below") << QVariant(49) << false;
    QTest::newRow("fraction that rounds up") << QVariant(49.6) << true;
    QTest::newRow("fraction that rounds down") << QVariant(49.4) << false;
    QTest::newRow("text") << QVariant(u"60"_s) << true;
    QTest::newRow("text that is no number") << QVariant(u"60%"_s) << false;
    QTest::newRow("64-bit integer") << QVariant(qlonglong(60)) << true;
    QTest::newRow("negative") << QVariant(-1) << false;
}

void tst_ResourceEvents::percentagesAreWholeNumbersForTheRules()
{
    QFETCH(const QVariant, value);
    QFETCH(const bool, isListed);
    TestHost host(TestHost::Paired, {"50", "50", "50"});
    send(host, report(value, value, {interface(u"en0"_s, value)}), u"st1"_s);
    QCOMPARE(host.errors()->rowCount(), isListed ? 3 : 0);
}

void tst_ResourceEvents::otherDataIsDropped_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("text") << QVariant(u"text"_s);
    QTest::newRow("list") << QVariant(QVariantList{report(100, 100)});
    QTest::newRow("hash") << QVariant(QVariantHash{{u"cpuPercentage"_s, 100}});
    QTest::newRow("number") << QVariant(100);
}

void tst_ResourceEvents::otherDataIsDropped()
{
    QFETCH(const QVariant, data);
    TestHost host;
    focus(host, u"st1"_s);
    send(host, report(100, 100), u"st1"_s);
    host.log.take();
    const QStringList rows = host.resourceRows();
    send(host, data, u"st1"_s);
    QCOMPARE(host.log.take(), QStringList({Notice}));
    QCOMPARE(host.resourceRows(), rows);
    QCOMPARE(host.errorKeys(), QStringList({u"0_st1"_s, u"1_st1"_s}));
}

void tst_ResourceEvents::missingValuesReadAsZero()
{
    TestHost host;
    focus(host, u"st1"_s);
    send(host, report(100, 100), u"st1"_s);
    host.log.take();
    send(host, QVariantMap(), u"st1"_s);
    QCOMPARE(host.errorKeys(), QStringList());
    QCOMPARE(host.log.take(), QStringList({u"systemResourceChanged(0, 0, [])"_s, Notice}));
}

void tst_ResourceEvents::reportOfAnotherStationOnlyReachesTheRules()
{
    TestHost host;
    focus(host, u"st1"_s);
    host.log.take();
    const QStringList rows = host.resourceRows();
    send(host, report(100, 1, {interface(u"en0"_s, 1)}), u"st2"_s);
    send(host, report(1, 1), u"st10"_s);
    send(host, report(1, 1), QString());
    QCOMPARE(host.errorKeys(), QStringList({u"0_st2"_s}));
    QCOMPARE(host.resourceRows(), rows);
    QCOMPARE(host.log.take(), QStringList({Notice, Notice, Notice}));
}

void tst_ResourceEvents::reportOfTheFocusStationIsPassedOnAsReceived()
{
    TestHost host;
    focus(host, u"st1"_s);
    host.log.take();
    const QVariantMap entry{{u"networkInterface"_s, u"en0"_s},
                            {u"networkPercentage"_s, 12.5},
                            {u"networkBandwidth"_s, 1000},
                            {u"more"_s, QVariantList{1, u"two"_s}}};
    send(host, report(10, 20, {entry, u"no map"_s}), u"st1"_s);
    QCOMPARE(host.log.take(),
             QStringList({uR"(systemResourceChanged(10, 20, [{"more": [1, "two"], )"
                          R"("networkBandwidth": 1000, "networkInterface": "en0", )"
                          R"("networkPercentage": 12.5}, "no map"]))"_s,
                          Notice}));
}

void tst_ResourceEvents::focusIsComparedWithCase()
{
    TestHost host;
    focus(host, u"st1"_s);
    host.log.take();
    send(host, report(1, 1), u"ST1"_s);
    QCOMPARE(host.log.take(), QStringList({Notice}));
}

void tst_ResourceEvents::emptyStationIsInFocusAtFirst()
{
    TestHost host;
    send(host, report(1, 2), u"st1"_s);
    QCOMPARE(host.log.take(), QStringList({Notice}));
    send(host, report(1, 2), QString());
    QCOMPARE(host.log.take(), QStringList({u"systemResourceChanged(1, 2, [])"_s, Notice}));
}

void tst_ResourceEvents::rulesThenModelThenSignal()
{
    TestHost host;
    Observer observer;
    QStringList keys;
    QString history;
    observer.look = [&] {
        keys = host.errorKeys();
        history = host.resourceRows().constFirst().section(u"history "_s, 1);
    };
    connect(host.object(), SIGNAL(systemResourceChanged(int, int, QVariantList)), &observer,
            SLOT(onReport()));
    send(host, report(95, 1), QString());
    QCOMPARE(keys, QStringList({u"0_"_s}));
    QCOMPARE(history, u"0 x 59, 95 x 1"_s);
}

void tst_ResourceEvents::focusIsAnnouncedWhenItChanges()
{
    TestHost host;
    focus(host, u"st1"_s);
    QCOMPARE(host.object()->property("focusStationResource"), QVariant(u"st1"_s));
    focus(host, u"駅/1"_s);
    QCOMPARE(host.log.take(), QStringList({u"focusStationResourceChanged(\"st1\")"_s,
                                           u"focusStationResourceChanged(\"駅/1\")"_s}));
}

void tst_ResourceEvents::sameFocusAgainChangesNothing()
{
    TestHost host;
    focus(host, QString());
    QCOMPARE(host.log.take(), QStringList());
    focus(host, u"st1"_s);
    send(host, report(10, 20), u"st1"_s);
    const QStringList rows = host.resourceRows();
    host.log.take();
    focus(host, u"st1"_s);
    QCOMPARE(host.log.take(), QStringList());
    QCOMPARE(host.resourceRows(), rows);
}

void tst_ResourceEvents::focusMayBeTakenAway()
{
    TestHost host;
    focus(host, u"st1"_s);
    focus(host, QString());
    host.log.take();
    send(host, report(1, 2), QString());
    QCOMPARE(host.log.take(), QStringList({u"systemResourceChanged(1, 2, [])"_s, Notice}));
}

void tst_ResourceEvents::focusIsKeptOverADisconnection()
{
    TestHost host;
    focus(host, u"st1"_s);
    send(host, report(10, 20), u"st1"_s);
    const QStringList rows = host.resourceRows();
    host.plugin()->PluginServerDisconnected();
    host.plugin()->PluginServerConnected();
    QCOMPARE(host.object()->property("focusStationResource"), QVariant(u"st1"_s));
    QCOMPARE(host.resourceRows(), rows);
}

void tst_ResourceEvents::reportNamesItsStationInTheErrors()
{
    TestHost host;
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s);
    send(host, report(95, 1), u"st1"_s);
    QCOMPARE(host.error(0, ErrorRole::StationID).toString(), u"st1"_s);
    QCOMPARE(host.error(0, ErrorRole::TriggerDeviceName).toString(), u"Station: Lobby"_s);
}

QTEST_GUILESS_MAIN(tst_ResourceEvents)
#include "tst_ResourceEvents.moc"
