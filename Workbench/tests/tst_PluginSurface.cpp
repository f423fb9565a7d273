#include "PluginSurface.h"

#include "FakeMonitor.h"
#include "HostFailure.h"
#include "SignalLog.h"

#include <QRegularExpression>
#include <QTest>

class tst_PluginSurface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void relaysSignals();
    void callsOperationsByName();
    void findsTheErrorList();
    void refusesObjectsWithoutTheSurface();
};

void tst_PluginSurface::relaysSignals()
{
    CallLog log;
    FakeMonitor monitor(log);
    PluginSurface surface(monitor);
    const SignalLog emitted(&surface, log);
    Q_EMIT monitor.clientResourceChanged(1, 2);
    Q_EMIT monitor.setSnoozeResponse(true);
    Q_EMIT monitor.isSupportSystemMonitor(QStringLiteral("st"), false);
    Q_EMIT monitor.notifyServerReachingLimited(QStringLiteral("Main"), 87.5);
    QCOMPARE(log.take(), QStringList({QStringLiteral("clientResourceChanged(1, 2)"),
                                      QStringLiteral("snoozeAnswered(true)"),
                                      QStringLiteral(R"(supportAnswered("st", false))"),
                                      QStringLiteral(R"(reachingLimit("Main", 87.5))")}));
}

void tst_PluginSurface::callsOperationsByName()
{
    CallLog log;
    FakeMonitor monitor(log);
    PluginSurface surface(monitor);
    QVERIFY(surface.setSnooze(QStringLiteral("st/c"), 1'780'660'800, 3));
    QVERIFY(surface.checkSupport(QStringLiteral("st")));
    surface.reconnectCameras();
    surface.reconnectSubstations();
    surface.focusStation(QStringLiteral("st"));
    QCOMPARE(log.take(), QStringList({QStringLiteral("setSnooze st/c 1780660800 3"),
                                      QStringLiteral("checkSupportSystemMonitor st"),
                                      QStringLiteral("reconnectDisconnectCameras"),
                                      QStringLiteral("reconnectDisconnectSubstations")}));
    QCOMPARE(monitor.property("focusStationResource").toString(), QStringLiteral("st"));
}

void tst_PluginSurface::findsTheErrorList()
{
    CallLog log;
    FakeMonitor monitor(log);
    const PluginSurface surface(monitor);
    QCOMPARE(&surface.errorModel(), monitor.getSystemErrorModel());
    QCOMPARE(&surface.plugin(), &monitor);
}

void tst_PluginSurface::refusesObjectsWithoutTheSurface()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("No such signal")));
    QObject plain;
    QCOMPARE(hostFailure([&plain] { const PluginSurface surface(plain); }),
             QStringLiteral("The plug-in has no signal clientResourceChanged(int, int)."));
}

QTEST_GUILESS_MAIN(tst_PluginSurface)
#include "tst_PluginSurface.moc"
