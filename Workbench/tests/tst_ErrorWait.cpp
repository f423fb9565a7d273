#include "ErrorWait.h"

#include "CallLog.h"
#include "ErrorListWatch.h"
#include "ErrorModel.h"
#include "ScenarioDriver.h"
#include "VirtualClock.h"

#include <QSignalSpy>
#include <QTest>

using namespace ScenarioAction;

namespace {

const QString Key = QStringLiteral("3_north/c1");

Scenario scenarioWithAWait()
{
    return {{{1000, AwaitError{Key}},
             {1000, FocusStation{QStringLiteral("a")}},
             {3000, FocusStation{QStringLiteral("b")}}},
            {},
            3000};
}

} // namespace

class tst_ErrorWait : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void scenarioGoesOnWhenTheErrorIsListed();
    void otherErrorsAreOfNoAccount();
    void listedErrorIsNotWaitedFor();
    void patienceHasAnEnd();

private:
    void add(const QString &key) { m_model.add(key, 3, {}, {}); }
    void play(ErrorWait &wait, ScenarioDriver &driver);

    CallLog m_log;
    ErrorModel m_model;
};

void tst_ErrorWait::init()
{
    m_log.take();
    m_model.clear();
}

void tst_ErrorWait::play(ErrorWait &wait, ScenarioDriver &driver)
{
    connect(&driver, &ScenarioDriver::due, &wait, [this, &wait](const AnyScenarioAction &action) {
        if (const auto awaited = std::get_if<AwaitError>(&action))
            wait.start(awaited->key);
        else
            m_log.add(std::get<FocusStation>(action).stationId);
    });
    connect(&driver, &ScenarioDriver::finished, &wait,
            [this] { m_log.add(QStringLiteral("finished")); });
    driver.start();
}

void tst_ErrorWait::scenarioGoesOnWhenTheErrorIsListed()
{
    VirtualClock clock;
    const ErrorListWatch watch(m_model);
    ScenarioDriver driver(scenarioWithAWait(), clock);
    ErrorWait wait(watch, driver);
    play(wait, driver);
    clock.advance(60'000);
    QCOMPARE(m_log.take(), QStringList());
    add(Key);
    clock.advance(0);
    QCOMPARE(m_log.take(), QStringList{QStringLiteral("a")});
    clock.advance(1999);
    QCOMPARE(m_log.take(), QStringList());
    clock.advance(1);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("b"), QStringLiteral("finished")}));
}

void tst_ErrorWait::otherErrorsAreOfNoAccount()
{
    VirtualClock clock;
    const ErrorListWatch watch(m_model);
    ScenarioDriver driver(scenarioWithAWait(), clock);
    ErrorWait wait(watch, driver);
    play(wait, driver);
    clock.advance(1000);
    add(QStringLiteral("3_north/c2"));
    clock.advance(60'000);
    QCOMPARE(m_log.take(), QStringList());
}

void tst_ErrorWait::listedErrorIsNotWaitedFor()
{
    VirtualClock clock;
    const ErrorListWatch watch(m_model);
    ScenarioDriver driver(scenarioWithAWait(), clock);
    ErrorWait wait(watch, driver);
    add(Key);
    play(wait, driver);
    clock.advance(3000);
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("finished")}));
}

void tst_ErrorWait::patienceHasAnEnd()
{
    VirtualClock clock;
    const ErrorListWatch watch(m_model);
    ScenarioDriver driver(scenarioWithAWait(), clock);
    ErrorWait wait(watch, driver, 1);
    QSignalSpy gaveUp(&wait, &ErrorWait::gaveUp);
    play(wait, driver);
    clock.advance(1000);
    QVERIFY(gaveUp.wait());
    QCOMPARE(gaveUp.at(0).at(0).toString(), Key);
    clock.advance(2000);
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("finished")}));
}

QTEST_GUILESS_MAIN(tst_ErrorWait)
#include "tst_ErrorWait.moc"
