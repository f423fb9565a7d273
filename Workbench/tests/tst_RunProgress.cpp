#include "RunProgress.h"

#include "FakeMonitor.h"
#include "JournalPlayer.h"
#include "ScenarioDriver.h"
#include "VirtualClock.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QByteArray StartAnew = QByteArrayLiteral("\r\x1b[K");

} // namespace

class tst_RunProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsThatItWaitsForTheServer();
    void tellsHowFarTheScenarioIs();
    void heldScenarioStandsStill();
    void tellsWhatIsWaitedForAfterTheEnd();
    void tellsHowFarTheJournalIs();
    void lineIsTakenAwayInTheEnd();
    void nothingIsShownWithoutATerminal();

private:
    StatusLine line()
    {
        return StatusLine([this](const QByteArray &bytes) { m_written += bytes; });
    }

    VirtualClock m_clock;
    QByteArray m_written;
};

void tst_RunProgress::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_written.clear();
}

void tst_RunProgress::tellsThatItWaitsForTheServer()
{
    const ScenarioDriver driver({{}, {}, 52'000}, m_clock);
    const RunProgress progress(line(), driver);
    m_clock.leap(60'000);
    progress.show();
    QCOMPARE(m_written, StartAnew + "waiting for the server");
}

void tst_RunProgress::heldScenarioStandsStill()
{
    ScenarioDriver driver({{{3'000, ScenarioAction::ReconnectCameras{}}}, {}, 52'000}, m_clock);
    connect(&driver, &ScenarioDriver::due, this, [&driver] { driver.hold(); });
    const RunProgress progress(line(), driver);
    driver.start();
    m_clock.advance(60'000);
    progress.show();
    QCOMPARE(m_written, StartAnew + "3 of 52 s of the scenario");
}

void tst_RunProgress::tellsHowFarTheScenarioIs()
{
    ScenarioDriver driver({{}, {}, 52'000}, m_clock);
    const RunProgress progress(line(), driver);
    driver.start();
    m_clock.leap(7'900);
    progress.show();
    QCOMPARE(m_written, StartAnew + "7 of 52 s of the scenario");
}

void tst_RunProgress::tellsWhatIsWaitedForAfterTheEnd()
{
    ScenarioDriver driver({{}, {}, 52'000}, m_clock);
    const RunProgress progress(line(), driver);
    driver.start();
    m_clock.leap(52'000);
    progress.show();
    QCOMPARE(m_written, StartAnew + "waiting for the error list to come to rest");
}

void tst_RunProgress::tellsHowFarTheJournalIs()
{
    Journal journal;
    journal.entries = {{0, {{QStringLiteral("server"), true}}, 2},
                       {500, {{QStringLiteral("server"), false}}, 3}};
    CallLog log;
    FakeMonitor monitor(log);
    JournalPlayer player(monitor, nullptr, journal, &m_clock);
    const RunProgress progress(line(), player);
    player.start();
    m_clock.advance(499);
    progress.show();
    QCOMPARE(m_written, StartAnew + "1 of 2 entries of the journal");
}

void tst_RunProgress::lineIsTakenAwayInTheEnd()
{
    {
        const ScenarioDriver driver({{}, {}, 1'000}, m_clock);
        const RunProgress progress(line(), driver);
        progress.show();
    }
    QVERIFY(m_written.endsWith(StartAnew));
}

void tst_RunProgress::nothingIsShownWithoutATerminal()
{
    const StatusLine none{StatusLine::Write()};
    none.show(QStringLiteral("text"));
    none.clear();
}

QTEST_GUILESS_MAIN(tst_RunProgress)
#include "tst_RunProgress.moc"
