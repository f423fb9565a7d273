#include "TestHost.h"

#include <QRegularExpression>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

/// The number of errors of each station, recounted half a second after the list changed.
class tst_StationCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void stationsAreCountedInTheOrderOfTheirIds();
    void orderIsCaseSensitive();
    void countsHaveTheirTypes();
    void camerasCountForTheirStation();
    void errorsWithoutStationCountUnderNothing();
    void stationWithoutErrorsHasNoEntry();
    void everyRecountIsAnnounced();
    void listWaitsForTheRecount();
    void burstLeadsToOneRecountHalfASecondAfterItsLastChange();
    void removalLeadsToARecount();
    void changeWithinARowLeadsToNone();
};

namespace {

QString counts(TestHost &host)
{
    return printedValue(host.object()->property("stationErrorList"));
}

QString recounted(TestHost &host)
{
    host.invoke("updateStationErrorNumber");
    return counts(host);
}

void loseVolume(TestHost &host, const QString &stationID)
{
    host.invoke("monitorVolumeStatus", stationID);
}

const QString Recount = u"stationErrorListChanged()"_s;

} // namespace

void tst_StationCounts::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_StationCounts::stationsAreCountedInTheOrderOfTheirIds()
{
    TestHost host;
    loseVolume(host, u"B"_s);
    loseVolume(host, u"A"_s);
    host.invoke("monitorCPUUsage", u"A"_s, 100);
    host.invoke("monitorMemoryUsage", u"A"_s, 100);
    QCOMPARE(recounted(host),
             uR"([{"errorNumber": 3, "stationID": "A"}, {"errorNumber": 1, "stationID": "B"}])"_s);
}

void tst_StationCounts::orderIsCaseSensitive()
{
    TestHost host;
    for (const QString &id : {u"a"_s, u"B"_s, u"é"_s, u"駅"_s, u"st1"_s, u"st10"_s, u"st1/x"_s})
        loseVolume(host, id);
    host.invoke("updateStationErrorNumber");
    QStringList ids;
    for (const QVariant &entry : host.object()->property("stationErrorList").toList())
        ids.append(entry.toMap().value(u"stationID"_s).toString());
    QCOMPARE(ids, QStringList({u"B"_s, u"a"_s, u"st1"_s, u"st1/x"_s, u"st10"_s, u"é"_s, u"駅"_s}));
}

void tst_StationCounts::countsHaveTheirTypes()
{
    TestHost host;
    loseVolume(host, u"A"_s);
    host.invoke("updateStationErrorNumber");
    const QVariant list = host.object()->property("stationErrorList");
    QCOMPARE(list.metaType(), QMetaType::fromType<QVariantList>());
    const QVariant entry = list.toList().first();
    QCOMPARE(entry.metaType(), QMetaType::fromType<QVariantMap>());
    QCOMPARE(entry.toMap().keys(), QStringList({u"errorNumber"_s, u"stationID"_s}));
    QCOMPARE(entry.toMap().value(u"errorNumber"_s).metaType(), QMetaType::fromType<int>());
    QCOMPARE(entry.toMap().value(u"stationID"_s).metaType(), QMetaType::fromType<QString>());
}

void tst_StationCounts::camerasCountForTheirStation()
{
    TestHost host;
    Q_EMIT host.topology.nodeStatusChanged(0, u"A/1"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(0, u"A/2"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(0, u"A/B/1"_s, false);
    loseVolume(host, u"A"_s);
    QCOMPARE(
        recounted(host),
        uR"([{"errorNumber": 3, "stationID": "A"}, {"errorNumber": 1, "stationID": "A/B"}])"_s);
}

void tst_StationCounts::errorsWithoutStationCountUnderNothing()
{
    TestHost host;
    Q_EMIT host.topology.nodeStatusChanged(0, u"stray"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(0, u"/lost"_s, false);
    QCOMPARE(recounted(host), uR"([{"errorNumber": 2, "stationID": ""}])"_s);
}

void tst_StationCounts::stationWithoutErrorsHasNoEntry()
{
    TestHost host;
    loseVolume(host, u"A"_s);
    loseVolume(host, u"B"_s);
    host.invoke("updateStationErrorNumber");
    host.invoke("removeVolumeError", u"A"_s);
    QCOMPARE(recounted(host), uR"([{"errorNumber": 1, "stationID": "B"}])"_s);
    host.invoke("removeVolumeError", u"B"_s);
    QCOMPARE(recounted(host), u"[]"_s);
}

void tst_StationCounts::everyRecountIsAnnounced()
{
    TestHost host;
    host.invoke("updateStationErrorNumber");
    host.invoke("updateStationErrorNumber");
    loseVolume(host, u"A"_s);
    host.invoke("updateStationErrorNumber");
    host.invoke("updateStationErrorNumber");
    QCOMPARE(host.log.take(), QStringList({Recount, Recount, Recount, Recount}));
}

void tst_StationCounts::listWaitsForTheRecount()
{
    TestHost host;
    loseVolume(host, u"A"_s);
    QCOMPARE(counts(host), u"[]"_s);
    QCOMPARE(host.log.lines().count(Recount), 0);
    QTRY_COMPARE(host.log.lines().count(Recount), 1);
    QCOMPARE(counts(host), uR"([{"errorNumber": 1, "stationID": "A"}])"_s);
}

// A recount that were due half a second after the first change would be seen by the look at 600
// milliseconds. The timers run in the order in which they are due, however late the machine is.
void tst_StationCounts::burstLeadsToOneRecountHalfASecondAfterItsLastChange()
{
    TestHost host;
    for (int i = 0; i < 10; ++i)
        loseVolume(host, QString::number(i));
    QTimer::singleShot(300, Qt::PreciseTimer, this, [&host] { loseVolume(host, u"last"_s); });

    qsizetype recountsAtFirst = -1;
    qsizetype recountsAtTheEnd = -1;
    const auto recounts = [&host] { return host.log.lines().count(Recount); };
    QTimer::singleShot(600, Qt::PreciseTimer, this, [&] { recountsAtFirst = recounts(); });
    QTimer::singleShot(1500, Qt::PreciseTimer, this, [&] { recountsAtTheEnd = recounts(); });
    QTRY_COMPARE_WITH_TIMEOUT(recountsAtTheEnd, 1, 30000);
    QCOMPARE(recountsAtFirst, 0);
    QCOMPARE(host.object()->property("stationErrorList").toList().size(), 11);
}

void tst_StationCounts::removalLeadsToARecount()
{
    TestHost host;
    loseVolume(host, u"A"_s);
    loseVolume(host, u"B"_s);
    QTRY_COMPARE(host.log.lines().count(Recount), 1);
    host.plugin()->PluginServerDisconnected();
    QTRY_COMPARE(host.log.lines().count(Recount), 2);
    QCOMPARE(counts(host), u"[]"_s);
}

void tst_StationCounts::changeWithinARowLeadsToNone()
{
    TestHost host;
    host.invoke("monitorInsufficientRecordingDays", u"A"_s, u"Vault"_s, u"g1"_s);
    QTRY_COMPARE(host.log.lines().count(Recount), 1);
    host.invoke("monitorInsufficientRecordingDays", u"A"_s, u"Renamed"_s, u"g1"_s);
    bool isLater = false;
    QTimer::singleShot(800, Qt::PreciseTimer, this, [&isLater] { isLater = true; });
    QTRY_VERIFY(isLater);
    QCOMPARE(host.log.lines().count(Recount), 1);
}

QTEST_GUILESS_MAIN(tst_StationCounts)
#include "tst_StationCounts.moc"
