#include "LocalSite.h"

#include "SnoozeStore.h"
#include "TestSite.h"
#include "VirtualClock.h"

#include <QTemporaryDir>
#include <QTest>

class tst_LocalSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actsOnTheSiteThatTheLinkShows();
    void thisMachineReportsThroughTheLink();
    void resetBringsTheFirstSiteBack();
    void storedSnoozesAreTakenUp();
};

void tst_LocalSite::actsOnTheSiteThatTheLinkShows()
{
    VirtualClock clock;
    LocalSite site(testSite(), clock);
    site.link().open();
    site.actor().perform(ScenarioAction::SetCameraConnected{QStringLiteral("north/c1"), false});
    QVERIFY(!site.link().site().findCamera(QStringLiteral("north/c1"))->connected);
}

void tst_LocalSite::thisMachineReportsThroughTheLink()
{
    VirtualClock clock;
    Site initial = testSite();
    initial.stations.push_back(LocalStation::station());
    LocalSite site(initial, clock);
    site.link().open();
    QStringList sources;
    connect(&site.link(), &ServerLink::eventRaised, this,
            [&sources](const QString &, const QVariant &, const QString &sourceId) {
                sources.append(sourceId);
            });
    site.thisMachine().report(12, 34);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(sources, QStringList{ThisMachineId});
}

void tst_LocalSite::resetBringsTheFirstSiteBack()
{
    VirtualClock clock;
    LocalSite site(testSite(), clock);
    site.actor().perform(ScenarioAction::RemoveStation{QStringLiteral("north")});
    site.reset();
    QCOMPARE(site.link().site().stationCount(), testSite().stationCount());
}

void tst_LocalSite::storedSnoozesAreTakenUp()
{
    const QTemporaryDir directory;
    SnoozeStore store(directory.filePath(QStringLiteral("snoozes.sqlite")));
    store.set({{QStringLiteral("south"), 4, VirtualClock::StartMs / 1000 + 60}});
    VirtualClock clock;
    LocalSite site(testSite(), clock, &store);
    site.link().open();
    QStringList snoozed;
    site.link().execute(
        QStringLiteral("getSnoozeList"), {}, {},
        [&snoozed](const CommandResult &result) { snoozed = result.data.toStringList(); });
    QCoreApplication::sendPostedEvents();
    QCOMPARE(snoozed, QStringList{QStringLiteral("south")});
}

QTEST_GUILESS_MAIN(tst_LocalSite)
#include "tst_LocalSite.moc"
