#include "WindowRun.h"

#include "DashboardWindow.h"
#include "ExitCode.h"
#include "Screenshot.h"
#include "WorkbenchFixture.h"

#include <QImage>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

class tst_WindowRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void playsTheScenarioUntilTheWindowIsClosed();
    void screenshotIsTakenWhenItIsDue();
    void screenshotIsTakenAtTheEndOtherwise();
    void screenshotThatCannotBeWrittenShowsInTheExitCode();
    void loopStartsTheScenarioAgain();
    void refusalIsShown();
    void silenceOfRealNodesIsTold();

private:
    void prepare(const Scenario &scenario);
    int runFor(qint64 ms, bool isLooped = false);
    QString file(const char *name) { return m_directory.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_directory;
    QQmlEngine m_engine;
    std::unique_ptr<WorkbenchFixture> m_fixture;
    std::unique_ptr<DashboardWindow> m_window;
    std::unique_ptr<Screenshot> m_screenshot;
};

void tst_WindowRun::init()
{
    m_screenshot.reset();
}

void tst_WindowRun::cleanup()
{
    m_window.reset();
    m_fixture.reset();
}

void tst_WindowRun::prepare(const Scenario &scenario)
{
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"), scenario);
    m_window = std::make_unique<DashboardWindow>(
        m_engine, m_fixture->workbench.surface().plugin(), QString(),
        QUrl::fromLocalFile(QFINDTESTDATA("data/Dashboard.qml")));
}

// Lets the clock go on once the window is there, then closes it as a user would.
int tst_WindowRun::runFor(qint64 ms, bool isLooped)
{
    QTimer::singleShot(0, m_window.get(), [this, ms] {
        m_fixture->clock.advance(ms);
        m_window->close();
    });
    return WindowRun(m_fixture->workbench, *m_window, m_screenshot.get(), isLooped).exec();
}

void tst_WindowRun::playsTheScenarioUntilTheWindowIsClosed()
{
    prepare({{}, {}, 1000});
    const QSignalSpy finished(&m_fixture->workbench.driver(), &ScenarioDriver::finished);
    QCOMPARE(runFor(60'000), 0);
    QCOMPARE(finished.size(), 1);
    QVERIFY(m_fixture->workbench.link().isOpen());
}

void tst_WindowRun::screenshotIsTakenWhenItIsDue()
{
    prepare({{{1000, ScenarioAction::SetServerConnected{false}}}, 500, 1000});
    m_screenshot = std::make_unique<Screenshot>(*m_window, file("due.png"));
    QCOMPARE(runFor(700), 0);
    QVERIFY(m_screenshot->isTaken());
    QVERIFY(!QImage(file("due.png")).isNull());
}

void tst_WindowRun::screenshotIsTakenAtTheEndOtherwise()
{
    prepare({{}, {}, 1000});
    m_screenshot = std::make_unique<Screenshot>(*m_window, file("end.png"));
    QCOMPARE(runFor(999), 0);
    QVERIFY(!m_screenshot->isTaken());
    QCOMPARE(runFor(1000), 0);
    QVERIFY(m_screenshot->isTaken());
    QVERIFY(!QImage(file("end.png")).isNull());
}

void tst_WindowRun::screenshotThatCannotBeWrittenShowsInTheExitCode()
{
    prepare({{}, {}, 0});
    m_screenshot = std::make_unique<Screenshot>(*m_window, file("picture.unknown"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be written")));
    QCOMPARE(runFor(10), ExitCode::Failure);
}

void tst_WindowRun::loopStartsTheScenarioAgain()
{
    prepare({{{0, ScenarioAction::RemoveStation{QStringLiteral("north")}}}, {}, 1000});
    const QSignalSpy finished(&m_fixture->workbench.driver(), &ScenarioDriver::finished);
    QCOMPARE(runFor(3500, true), 0);
    QCOMPARE(finished.size(), 3);
}

void tst_WindowRun::refusalIsShown()
{
    prepare({{}, {}, 1000});
    const QString text = QStringLiteral("The server refuses this client: the token is wrong");
    QTest::ignoreMessage(QtWarningMsg, qPrintable(text));
    QTimer::singleShot(0, this, [this] {
        Q_EMIT m_fixture->workbench.link().refused(QStringLiteral("the token is wrong"));
    });
    QCOMPARE(runFor(100), 0);
    QCOMPARE(m_window->title(), text);
}

void tst_WindowRun::silenceOfRealNodesIsTold()
{
    prepare({});
    const WindowRun run(m_fixture->workbench, *m_window, nullptr, false);
    SiteWatch &watch = m_fixture->localSite.watch();
    QTest::ignoreMessage(QtWarningMsg, "north does not answer: why");
    Q_EMIT watch.lost(QStringLiteral("north"), QStringLiteral("why"));
    QTest::ignoreMessage(QtInfoMsg, "north answers");
    Q_EMIT watch.back(QStringLiteral("north"));
}

QTEST_MAIN(tst_WindowRun)
#include "tst_WindowRun.moc"
