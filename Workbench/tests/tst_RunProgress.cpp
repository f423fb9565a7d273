#include "RunProgress.h"

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

    void tellsHowFarTheScenarioIs();
    void tellsWhatIsWaitedForAfterTheEnd();
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

void tst_RunProgress::tellsHowFarTheScenarioIs()
{
    const RunProgress progress(line(), m_clock, 52'000);
    m_clock.leap(7'900);
    progress.show();
    QCOMPARE(m_written, StartAnew + "7 of 52 s of the scenario");
}

void tst_RunProgress::tellsWhatIsWaitedForAfterTheEnd()
{
    const RunProgress progress(line(), m_clock, 52'000);
    m_clock.leap(52'000);
    progress.show();
    QCOMPARE(m_written, StartAnew + "waiting for the error list to come to rest");
}

void tst_RunProgress::lineIsTakenAwayInTheEnd()
{
    {
        const RunProgress progress(line(), m_clock, 1'000);
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
