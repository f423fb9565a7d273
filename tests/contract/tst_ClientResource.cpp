#include "TestHost.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The usage of this very machine, sampled by the plug-in itself.
class tst_ClientResource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void samplesArriveAgainAndAgain();
    void nothingIsSampledBeforeInitialisation();
    void samplesLeaveTheFocusStationAlone();
};

void tst_ClientResource::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_ClientResource::samplesArriveAgainAndAgain()
{
    TestHost host(TestHost::Initialised);
    QSignalSpy samples(host.object(), SIGNAL(clientResourceChanged(int, int)));
    QTRY_VERIFY_WITH_TIMEOUT(samples.size() >= 2, 30000);
    for (const QList<QVariant> &sample : std::as_const(samples)) {
        const int cpu = sample[0].toInt();
        const int memory = sample[1].toInt();
        QVERIFY2(0 <= cpu && cpu <= 100, qPrintable(QString::number(cpu)));
        QVERIFY2(0 <= memory && memory <= 100, qPrintable(QString::number(memory)));
    }
}

void tst_ClientResource::nothingIsSampledBeforeInitialisation()
{
    TestHost idle(TestHost::Loaded);
    const QSignalSpy idleSamples(idle.object(), SIGNAL(clientResourceChanged(int, int)));
    QTest::qWait(1500);
    QCOMPARE(idleSamples.size(), 0);
}

void tst_ClientResource::samplesLeaveTheFocusStationAlone()
{
    TestHost host(TestHost::Initialised);
    const QStringList rows = host.resourceRows();
    QSignalSpy samples(host.object(), SIGNAL(clientResourceChanged(int, int)));
    QVERIFY(samples.wait(30000));
    QCOMPARE(host.resourceRows(), rows);
    QCOMPARE(host.errorKeys(), QStringList());
}

QTEST_GUILESS_MAIN(tst_ClientResource)
#include "tst_ClientResource.moc"
