#include "HeadlessRun.h"

#include "ConsoleReport.h"
#include "DashboardWindow.h"
#include "ErrorModel.h"
#include "ExitCode.h"
#include "Screenshot.h"
#include "WorkbenchFixture.h"

#include <QImage>
#include <QQmlEngine>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace {

void addError(ErrorModel &errors)
{
    errors.add(QStringLiteral("5_a"), 5, QStringLiteral("Volume"), QStringLiteral("A"));
}

// Leads to a server that cannot be reached.
class ClosedLink : public LocalServerLink
{
public:
    using LocalServerLink::LocalServerLink;
    void open() override { }
};

} // namespace

class tst_HeadlessRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void endsWithASummary();
    void screenshotIsTakenWhenItIsDue();
    void screenshotIsTakenAtTheEndOtherwise();
    void screenshotThatCannotBeWrittenShowsInTheExitCode();
    void errorsThatRemainShowInTheExitCode();
    void errorsThatWereClearedDoNotShowInTheExitCode();
    void connectionThatIsMissingInTheEndShowsInTheExitCode();
    void failureOutweighsErrorsThatRemain();
    void refusalEndsTheRun();
    void serverThatIsNotConnectedInTimeEndsTheRun();
    void connectionInTimeIsEnough();

private:
    int run(const Scenario &scenario, const QString &picture = {});

    QTemporaryDir m_directory;
    QQmlEngine m_engine;
    std::unique_ptr<WorkbenchFixture> m_fixture;
    std::unique_ptr<DashboardWindow> m_window;
    QString m_output;
    std::optional<std::chrono::milliseconds> m_connectTimeout;
    std::function<void(ErrorModel &)> m_atEnd; // is done to the error list
};

void tst_HeadlessRun::cleanup()
{
    m_window.reset();
    m_fixture.reset();
    m_atEnd = nullptr;
    m_connectTimeout.reset();
}

int tst_HeadlessRun::run(const Scenario &scenario, const QString &picture)
{
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"), scenario);
    m_window = std::make_unique<DashboardWindow>(
        m_engine, m_fixture->workbench.surface().plugin(), QString(),
        QUrl::fromLocalFile(QFINDTESTDATA("data/Dashboard.qml")));
    m_window->show();
    Screenshot screenshot(*m_window, picture);
    m_output.clear();
    QTextStream out(&m_output);
    ConsoleReport report(out, m_fixture->clock);
    report.follow(m_fixture->workbench);
    HeadlessRun run(m_fixture->workbench, report, picture.isEmpty() ? nullptr : &screenshot);
    if (m_connectTimeout)
        run.limitConnecting(*m_connectTimeout);
    QTimer::singleShot(0, this, [this] {
        m_fixture->clock.advance(60'000);
        if (m_atEnd)
            m_atEnd(static_cast<ErrorModel &>(m_fixture->workbench.surface().errorModel()));
    });
    return run.exec();
}

void tst_HeadlessRun::endsWithASummary()
{
    QCOMPARE(run({{{1000, ScenarioAction::SetServerConnected{false}},
                   {1500, ScenarioAction::SetServerConnected{true}}},
                  {},
                  2000}),
             ExitCode::Success);
    const QStringList lines = m_output.split(u'\n');
    QCOMPARE(lines.value(0), QStringLiteral("2026-06-05 14:00:00 CEST  server    connected"));
    QCOMPARE(lines.value(1), QStringLiteral("2026-06-05 14:00:01 CEST  server    connection lost"));
    QVERIFY(lines.contains(QStringLiteral("Summary")));
}

// The list of errors is empty then, whatever happens at the site.
void tst_HeadlessRun::connectionThatIsMissingInTheEndShowsInTheExitCode()
{
    QCOMPARE(run({{{1000, ScenarioAction::SetServerConnected{false}}}, {}, 2000}),
             ExitCode::Failure);
}

void tst_HeadlessRun::screenshotIsTakenWhenItIsDue()
{
    const QString file = m_directory.filePath(QStringLiteral("due.png"));
    QCOMPARE(run({{}, 500, 1000}, file), 0);
    QVERIFY(!QImage(file).isNull());
    const QStringList lines = m_output.split(u'\n');
    QCOMPARE(lines.value(1),
             QStringLiteral("2026-06-05 14:00:00 CEST  picture   saved as ") + file);
    QCOMPARE(m_output.count(QStringLiteral("picture")), 1);
}

void tst_HeadlessRun::screenshotIsTakenAtTheEndOtherwise()
{
    const QString file = m_directory.filePath(QStringLiteral("end.png"));
    QCOMPARE(run({{}, {}, 1000}, file), 0);
    QVERIFY(!QImage(file).isNull());
    QVERIFY(m_output.contains(QStringLiteral("saved as ") + file));
}

void tst_HeadlessRun::screenshotThatCannotBeWrittenShowsInTheExitCode()
{
    const QString file = m_directory.filePath(QStringLiteral("picture.unknown"));
    QCOMPARE(run({{}, {}, 0}, file), ExitCode::Failure);
    QVERIFY(m_output.contains(file + QStringLiteral(" cannot be written")));
    QVERIFY(m_output.contains(QStringLiteral("Summary")));
}

void tst_HeadlessRun::errorsThatRemainShowInTheExitCode()
{
    m_atEnd = [](ErrorModel &errors) { addError(errors); };
    QCOMPARE(run({{}, {}, 1000}), ExitCode::ErrorsRemain);
}

void tst_HeadlessRun::errorsThatWereClearedDoNotShowInTheExitCode()
{
    m_atEnd = [](ErrorModel &errors) {
        addError(errors);
        errors.removeRow(0);
    };
    QCOMPARE(run({{}, {}, 1000}), ExitCode::Success);
}

void tst_HeadlessRun::failureOutweighsErrorsThatRemain()
{
    m_atEnd = [](ErrorModel &errors) { addError(errors); };
    QCOMPARE(run({{}, {}, 0}, m_directory.filePath(QStringLiteral("picture.unknown"))),
             ExitCode::Failure);
}

void tst_HeadlessRun::refusalEndsTheRun()
{
    QTimer::singleShot(0, this, [this] {
        Q_EMIT m_fixture->workbench.link().refused(QStringLiteral("the token is wrong"));
    });
    QCOMPARE(run({{}, {}, 600'000}), ExitCode::Failure);
    QVERIFY(m_output.contains(QStringLiteral("refuses this client: the token is wrong")));
    QVERIFY(m_output.contains(QStringLiteral("Summary")));
}

void tst_HeadlessRun::serverThatIsNotConnectedInTimeEndsTheRun()
{
    VirtualClock clock;
    PluginHost host(QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
    OperationalLogStore log{QString()};
    SiteServer server(testSite(), clock);
    ClosedLink link(server);
    Workbench workbench(host, nullptr, link, nullptr, {}, log, clock);
    m_output.clear();
    QTextStream out(&m_output);
    ConsoleReport report(out, clock);
    report.follow(workbench);
    HeadlessRun run(workbench, report, nullptr);
    run.limitConnecting(std::chrono::milliseconds(1));
    QCOMPARE(run.exec(), ExitCode::Failure);
    QVERIFY(
        m_output.contains(QStringLiteral("server    no connection within 0.001 s; the run ends")));
    QVERIFY(m_output.contains(QStringLiteral("Summary")));
}

void tst_HeadlessRun::connectionInTimeIsEnough()
{
    m_connectTimeout = std::chrono::milliseconds(0);
    QCOMPARE(run({{}, {}, 1000}), ExitCode::Success);
    QVERIFY(!m_output.contains(QStringLiteral("no connection")));
}

QTEST_MAIN(tst_HeadlessRun)
#include "tst_HeadlessRun.moc"
