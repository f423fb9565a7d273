#include "Heartbeat.h"

#include "CallLog.h"
#include "VirtualClock.h"

#include <QTest>

class tst_Heartbeat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void pingsAtOnceAndAgain();
    void answersKeepItGoing();
    void silenceIsTold();
    void delayOfThisProcessIsNoSilence();
    void stoppedHeartbeatIsStill();
    void startsAnew();
    void clockThatIsSetBackDelaysNothing();

private:
    QStringList beats(qint64 ms);

    CallLog m_log;
    std::unique_ptr<VirtualClock> m_clock;
    std::unique_ptr<Heartbeat> m_heartbeat;
};

void tst_Heartbeat::init()
{
    m_log.take();
    m_heartbeat.reset();
    m_clock = std::make_unique<VirtualClock>();
    m_heartbeat = std::make_unique<Heartbeat>(*m_clock, Heartbeat::Pace{100, 3});
    connect(m_heartbeat.get(), &Heartbeat::pingDue, this,
            [this] { m_log.add(QStringLiteral("ping")); });
    connect(m_heartbeat.get(), &Heartbeat::fellSilent, this,
            [this] { m_log.add(QStringLiteral("silent")); });
}

QStringList tst_Heartbeat::beats(qint64 ms)
{
    m_clock->advance(ms);
    return m_log.take();
}

void tst_Heartbeat::pingsAtOnceAndAgain()
{
    QCOMPARE(beats(500), QStringList());
    m_heartbeat->start();
    QCOMPARE(beats(0), QStringList{QStringLiteral("ping")});
    QCOMPARE(beats(99), QStringList());
    QCOMPARE(beats(1), QStringList{QStringLiteral("ping")});
}

void tst_Heartbeat::answersKeepItGoing()
{
    m_heartbeat->start();
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(beats(i == 0 ? 0 : 100), QStringList{QStringLiteral("ping")});
        m_heartbeat->heard();
    }
}

void tst_Heartbeat::silenceIsTold()
{
    m_heartbeat->start();
    QCOMPARE(beats(299), QStringList(3, QStringLiteral("ping")));
    QCOMPARE(beats(1), QStringList{QStringLiteral("silent")});
    QCOMPARE(beats(1000), QStringList());
}

void tst_Heartbeat::delayOfThisProcessIsNoSilence()
{
    m_heartbeat->start();
    m_clock->leap(100'000);
    m_heartbeat->heard();
    QCOMPARE(beats(0), QStringList({QStringLiteral("ping"), QStringLiteral("ping")}));
}

void tst_Heartbeat::stoppedHeartbeatIsStill()
{
    m_heartbeat->start();
    m_heartbeat->stop();
    m_log.take();
    QCOMPARE(beats(1000), QStringList());
}

void tst_Heartbeat::startsAnew()
{
    m_heartbeat->start();
    beats(250);
    m_heartbeat->start();
    QCOMPARE(beats(299), QStringList(3, QStringLiteral("ping")));
}

void tst_Heartbeat::clockThatIsSetBackDelaysNothing()
{
    m_heartbeat->start();
    beats(0);
    m_clock->set(-3'600'000);
    QCOMPARE(beats(100), QStringList{QStringLiteral("ping")});
}

QTEST_GUILESS_MAIN(tst_Heartbeat)
#include "tst_Heartbeat.moc"
