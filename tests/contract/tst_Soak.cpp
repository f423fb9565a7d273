#include "MemoryUse.h"
#include "TestHost.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>

#include <algorithm>
#include <ctime>

using namespace Qt::Literals::StringLiterals;

/// A million events of all kinds, as a client sees them in weeks: neither what the plug-in holds
/// nor the time that an event takes grows. SOAK_EVENTS asks for fewer, which is what a sanitized
/// build has the time for.
class tst_Soak : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void millionEventsCostTheSameToTheLast();
};

namespace {

constexpr int Tenths = 10;
constexpr int EventsOfABlock = 1'000;
constexpr int EventsOfAWholeRun = 1'000'000;
constexpr int Stations = 20;
constexpr int CamerasOfAStation = 20;
constexpr qint64 MostHeapGrowth = qint64{64} * 1024;
constexpr qint64 MostResidentGrowth = qint64{4} * 1024 * 1024;
// Of the processor time of an event; what grows with the number of events grows tenfold.
constexpr double MostTimeGrowth = 2;

QString stationID(int station)
{
    return u"st%1"_s.arg(station);
}

QString cameraID(int station, int camera)
{
    return u"st%1/cam%2"_s.arg(station).arg(camera);
}

/// A site whose server and devices do one random thing after another.
class BusySite
{
public:
    BusySite()
    {
        for (int station = 0; station < Stations; ++station) {
            QStandardItem *const item =
                m_host.topologyModel.addStation(stationID(station), u"Lobby"_s);
            for (int camera = 0; camera < CamerasOfAStation; ++camera)
                TopologyModel::addCamera(item, cameraID(station, camera), u"Door"_s);
        }
        m_view = qobject_cast<QSortFilterProxyModel *>(
            m_host.ask<QObject *>("getSystemErrorSortFilterModel", &m_views));
    }

    void step()
    {
        switch (below(17)) {
        case 0:
            Q_EMIT m_host.topology.nodeStatusChanged(1, anyStation(), below(4) > 0);
            break;
        case 1:
            snooze(below(2) == 0 ? u"SnoozeError"_s : u"DeviceStillError"_s);
            break;
        case 2:
            m_host.event(u"RemoveSnooze"_s, anyCamera());
            break;
        case 3:
            m_host.respond(u"setSnooze"_s, snoozeData());
            break;
        case 4:
            askForSupport();
            break;
        case 5:
            reportGroup();
            break;
        case 6:
            seldom();
            break;
        case 7:
        case 8:
        case 9:
            reportUsage();
            break;
        case 10:
            m_host.event(u"ServerReachingLimited"_s,
                         QVariantMap{{u"serverName"_s, u"Main"_s},
                                     {u"virtualSizePercentage"_s, below(1000) / 10.0}});
            break;
        default:
            Q_EMIT m_host.topology.nodeStatusChanged(0, anyCamera(), below(2) == 0);
        }
        m_host.log.take();
        m_host.framework.forgetCommands();
    }

    /// Back to what the site was in the beginning.
    void settle()
    {
        m_host.plugin()->PluginServerDisconnected();
        m_host.respond(u"getSnoozeList"_s, QStringList());
        m_host.object()->setProperty("focusStationResource", QString());
        m_view->setFilterRegularExpression(QString());
        m_host.invoke("updateStationErrorNumber");
        QCoreApplication::processEvents();
        m_host.log.take();
    }

    int errors() { return m_host.errors()->rowCount(); }

private:
    int below(int limit) { return m_random.bounded(limit); }
    QString anyStation() { return stationID(below(Stations)); }
    QString anyCamera() { return cameraID(below(Stations), below(CamerasOfAStation)); }

    QVariantMap snoozeData()
    {
        return {{u"nodeID"_s, anyCamera()}, {u"type"_s, 3}, {u"timestamp"_s, 1'700'000'000LL}};
    }

    void snooze(const QString &event) { m_host.event(event, snoozeData()); }

    void askForSupport()
    {
        m_host.ask<bool>("checkSupportSystemMonitor", anyStation());
        m_host.respond(u"isSupportSystemMonitor"_s, {}, u"0"_s,
                       m_host.framework.commands().last().context);
    }

    void reportGroup()
    {
        if (below(2) == 0)
            m_host.invoke("monitorInsufficientRecordingDays", anyStation(), u"Group"_s, u"g1"_s);
        else
            m_host.invoke("monitorSufficientRecordingGroup", anyStation(), u"g1"_s);
    }

    void reportUsage()
    {
        const QVariantMap network{{u"networkInterface"_s, u"en%1"_s.arg(below(3))},
                                  {u"networkPercentage"_s, below(1000) / 10.0},
                                  {u"networkBandwidth"_s, below(1000)}};
        const QVariantMap report{{u"cpuPercentage"_s, below(101)},
                                 {u"memPercentage"_s, below(101)},
                                 {u"networkUsageList"_s, QVariantList{network}}};
        m_host.event(u"SystemResChanged"_s, report, anyStation());
    }

    void seldom()
    {
        switch (below(40)) {
        case 0:
            m_host.invoke("initNodeStatusError");
            break;
        case 1:
            m_host.plugin()->PluginServerDisconnected();
            break;
        case 2:
            m_host.object()->setProperty("focusStationResource", anyStation());
            break;
        case 3:
            m_host.invoke("updateStationErrorNumber");
            break;
        case 4:
            m_host.invoke("reconnectDisconnectCameras");
            break;
        case 5:
            QCoreApplication::processEvents();
            break;
        case 6:
            changeTopology();
            break;
        case 7:
        case 8:
            typeIntoFilter();
            break;
        case 9:
            Q_EMIT m_host.topology.camStatusRetrievedChanged(below(2) == 0);
            break;
        default:
            m_host.invoke("monitorVolumeStatus", anyStation());
            m_host.invoke("removeVolumeError", anyStation());
        }
    }

    void changeTopology()
    {
        QStandardItem *const top = m_host.topologyModel.top();
        const int row = below(top->rowCount());
        const QList<QStandardItem *> station = top->takeRow(row);
        Q_EMIT m_host.topology.stationRemoved(stationID(row));
        top->insertRow(row, station);
    }

    void typeIntoFilter()
    {
        static const QStringList patterns{u""_s, u"d"_s, u"disc"_s, u"Lobby|usage"_s, u"("_s};
        m_view->setFilterRegularExpression(patterns.at(below(static_cast<int>(patterns.size()))));
    }

    TestHost m_host;
    QObject m_views;
    QSortFilterProxyModel *m_view = nullptr;
    QRandomGenerator m_random{1};
};

int eventsOfThisRun()
{
    bool isSet = false;
    const int events = qEnvironmentVariableIntValue("SOAK_EVENTS", &isSet);
    return isSet ? events : EventsOfAWholeRun;
}

/// Processor time of this process in microseconds: others on the machine do not count.
double processorTime()
{
    return static_cast<double>(std::clock()) * 1e6 / CLOCKS_PER_SEC;
}

/// The time of one event, in microseconds: the median of a tenth's blocks.
double timeOfAnEvent(BusySite &site, int blocks)
{
    QList<double> times;
    for (int block = 0; block < blocks; ++block) {
        const double start = processorTime();
        for (int event = 0; event < EventsOfABlock; ++event)
            site.step();
        times.append((processorTime() - start) / EventsOfABlock);
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

} // namespace

void tst_Soak::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Soak::millionEventsCostTheSameToTheLast()
{
    const int events = eventsOfThisRun();
    const int blocks = events / Tenths / EventsOfABlock;
    QVERIFY(blocks > 0);
    BusySite site;
    MemoryUse first{};
    MemoryUse last{};
    double firstTime = 0;
    double lastTime = 0;
    for (int tenth = 1; tenth <= Tenths; ++tenth) {
        lastTime = timeOfAnEvent(site, blocks);
        const int errors = site.errors();
        site.settle();
        QCOMPARE(site.errors(), 0);
        last = MemoryUse::now();
        if (tenth == 1) {
            first = last;
            firstTime = lastTime;
        }
        qInfo("tenth %d: %.1f us an event, %d errors, %lld bytes on the heap, %lld resident", tenth,
              lastTime, errors, last.allocated, last.resident);
    }
    // A short run is over before its times are steady, and what is made once still comes in it.
    if (events < EventsOfAWholeRun)
        return;
    QCOMPARE_LE(lastTime, firstTime * MostTimeGrowth);
    if (!MemoryUse::isMeaningful())
        return;
    QCOMPARE_LT(last.allocated - first.allocated, MostHeapGrowth);
    QCOMPARE_LT(last.resident - first.resident, MostResidentGrowth);
}

QTEST_GUILESS_MAIN(tst_Soak)
#include "tst_Soak.moc"
