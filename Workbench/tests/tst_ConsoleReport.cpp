#include "ConsoleReport.h"

#include "DeliverEvents.h"
#include "ServerNames.h"
#include "WorkbenchFixture.h"

#include <QStandardItemModel>
#include <QTest>
#include <QTextStream>

#include <memory>

namespace {

const QString Prefix = QStringLiteral("2026-06-05 14:00:00 CEST  ");

} // namespace

class tst_ConsoleReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void linesBeginWithLocalTimeAndZone();
    void timeFollowsTheClock();
    void linesAreWrittenAtOnce();
    void writesChangesOfTheErrorList();
    void writesWhatTheServerDoes();
    void writesWhichRealNodesAnswer();
    void writesWhatTheUserDoes();
    void writesRefusedSnoozes();
    void lostAnswerIsNoRefusal();
    void namesDoNotSteerTheTerminal();
    void percentSignsInNamesAreLeftAlone();
    void ordinaryReportsAreNotWritten();
    void summaryCountsKindsOfErrors();
    void summaryOfNothing();
    void failedSampleIsUnknown();

private:
    QStringList takeLines();
    QString takeText();
    QStandardItemModel &errors();
    void addError(const QString &key, int type, const QString &name, const QString &origin);
    bool send(const QString &command, const QVariant &data, const QString &target = {});

    std::unique_ptr<WorkbenchFixture> m_fixture;
    QString m_text;
    std::unique_ptr<QTextStream> m_out;
    std::unique_ptr<ConsoleReport> m_report;
};

void tst_ConsoleReport::init()
{
    m_text.clear();
    m_out = std::make_unique<QTextStream>(&m_text);
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
    m_report = std::make_unique<ConsoleReport>(*m_out, m_fixture->clock);
    m_report->follow(m_fixture->workbench);
}

void tst_ConsoleReport::cleanup()
{
    m_report.reset();
    m_fixture.reset();
}

QString tst_ConsoleReport::takeText()
{
    deliverEvents();
    return std::exchange(m_text, {});
}

// What was written since the last call, without the time, if that is as at the start.
QStringList tst_ConsoleReport::takeLines()
{
    QStringList lines = takeText().split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines) {
        if (line.startsWith(Prefix))
            line.remove(0, Prefix.size());
    }
    return lines;
}

QStandardItemModel &tst_ConsoleReport::errors()
{
    return *qobject_cast<QStandardItemModel *>(&m_fixture->workbench.surface().errorModel());
}

void tst_ConsoleReport::addError(const QString &key, int type, const QString &name,
                                 const QString &origin)
{
    const QHash<int, QByteArray> roles = errors().roleNames();
    auto item = new QStandardItem;
    item->setData(key, roles.key("uniqueIDRole"));
    item->setData(type, roles.key("errorTypeRole"));
    item->setData(name, roles.key("errorNameRole"));
    item->setData(origin, roles.key("triggerDeviceNameRole"));
    errors().appendRow(item);
}

bool tst_ConsoleReport::send(const QString &command, const QVariant &data, const QString &target)
{
    Framework &framework = m_fixture->workbench.framework();
    return framework.SendCommand(framework.handle(), m_fixture->host.pluginId(), command, data,
                                 nullptr, 0, target);
}

void tst_ConsoleReport::linesBeginWithLocalTimeAndZone()
{
    m_report->writeLine(QStringLiteral("word"), QStringLiteral("some text"));
    QCOMPARE(takeText(), QStringLiteral("2026-06-05 14:00:00 CEST  word      some text\n"));
}

void tst_ConsoleReport::timeFollowsTheClock()
{
    m_fixture->clock.leap(200LL * 24 * 3600 * 1000);
    m_report->writeLine(QStringLiteral("reconnect"), QStringLiteral("text"));
    QCOMPARE(takeText(), QStringLiteral("2026-12-22 13:00:00 CET  reconnect text\n"));
}

void tst_ConsoleReport::linesAreWrittenAtOnce()
{
    m_report->writeLine(QStringLiteral("word"), QStringLiteral("text"));
    QVERIFY(m_text.endsWith(u'\n'));
}

void tst_ConsoleReport::writesChangesOfTheErrorList()
{
    addError(QStringLiteral("7_st_g"), 7, QStringLiteral("Days"), QStringLiteral("Station: A"));
    errors().setData(errors().index(0, 0), QStringLiteral("Station: B"),
                     errors().roleNames().key("triggerDeviceNameRole"));
    errors().removeRow(0);
    QCOMPARE(takeLines(), QStringList({QStringLiteral("raised    Days: Station: A  [7_st_g]"),
                                       QStringLiteral("changed   Days: Station: B  [7_st_g]"),
                                       QStringLiteral("cleared   Days: Station: B  [7_st_g]")}));
}

void tst_ConsoleReport::writesWhatTheServerDoes()
{
    Workbench &workbench = m_fixture->workbench;
    workbench.link().open();
    workbench.topology().announceStatesRetrieved(true);
    workbench.topology().announceStatesRetrieved(false);
    Q_EMIT workbench.surface().reachingLimit(QStringLiteral("Main"), 87.5);
    const QVariantMap expired{{ServerNames::KeyNodeId, QStringLiteral("north/c1")},
                              {ServerNames::KeyType, 3}};
    Q_EMIT workbench.link().eventRaised(ServerNames::DeviceStillError, expired, {});
    Q_EMIT workbench.link().eventRaised(ServerNames::RemoveSnooze, QStringLiteral("south"), {});
    workbench.link().close();
    Q_EMIT workbench.link().attemptFailed(QStringLiteral("Connection refused"), 1250);
    Q_EMIT workbench.link().refused(QStringLiteral("the token is wrong"));
    m_report->writeConnectTimeout(30'000);
    QCOMPARE(takeLines(),
             QStringList({QStringLiteral("server    connected"),
                          QStringLiteral("states    the states of all nodes were retrieved"),
                          QStringLiteral("states    retrieving the states of nodes failed"),
                          QStringLiteral("capacity  Main is at 87.5% of its capacity"),
                          QStringLiteral("expired   the snooze of north/c1, which is still "
                                         "disconnected"),
                          QStringLiteral("expired   the snooze of south"),
                          QStringLiteral("server    connection lost"),
                          QStringLiteral("server    Connection refused; next try in 1.3 s"),
                          QStringLiteral("server    refuses this client: the token is wrong"),
                          QStringLiteral("server    no connection within 30 s; the run ends")}));
}

void tst_ConsoleReport::writesWhichRealNodesAnswer()
{
    SiteWatch &watch = m_fixture->localSite.watch();
    Q_EMIT watch.lost(QStringLiteral("north"), QStringLiteral("Connection refused"));
    Q_EMIT watch.back(QStringLiteral("north"));
    QCOMPARE(takeLines(),
             QStringList({QStringLiteral("watch     north does not answer: Connection refused"),
                          QStringLiteral("watch     north answers")}));
}

void tst_ConsoleReport::writesWhatTheUserDoes()
{
    Workbench &workbench = m_fixture->workbench;
    workbench.link().open();
    takeLines();
    send(ServerNames::SetSnooze,
         QVariantMap{{ServerNames::KeyNodeId, QStringLiteral("north/c1")},
                     {ServerNames::KeyType, 3},
                     {ServerNames::KeyTimestamp, VirtualClock::StartMs / 1000 + 60}});
    send(ServerNames::ReconnectCameras, QVariantList{QStringLiteral("c1"), QStringLiteral("c2")},
         QStringLiteral("north"));
    send(ServerNames::ReconnectSubstations, QStringList{QStringLiteral("south")});
    send(ServerNames::GetSnoozeList, {});
    Q_EMIT workbench.surface().supportAnswered(QStringLiteral("north"), true);
    Q_EMIT workbench.surface().supportAnswered(QStringLiteral("south"), false);
    workbench.logPlugin().addOperationalLog(
        QStringLiteral("AddDashboardSnooze"),
        {QVariantMap{{QStringLiteral("param"), QStringLiteral("Camera disconnected")}},
         QVariantMap{{QStringLiteral("param"), QStringLiteral("North")}}});
    QCOMPARE(
        takeLines(),
        QStringList({QStringLiteral("support   north supports system monitoring"),
                     QStringLiteral("support   south does not support system monitoring"),
                     QStringLiteral("logged    AddDashboardSnooze: Camera disconnected, North"),
                     QStringLiteral("reconnect cameras north/c1, north/c2"),
                     QStringLiteral("reconnect stations south"),
                     QStringLiteral("snooze    north/c1 is snoozed until "
                                    "2026-06-05 14:01:00 CEST")}));
}

void tst_ConsoleReport::writesRefusedSnoozes()
{
    m_fixture->workbench.link().open();
    takeLines();
    send(ServerNames::SetSnooze, QVariantMap{{ServerNames::KeyNodeId, QStringLiteral("north/c1")}});
    QCOMPARE(takeLines(),
             QStringList{QStringLiteral("snooze    north/c1 was refused: InvalidArgument")});
}

void tst_ConsoleReport::lostAnswerIsNoRefusal()
{
    send(ServerNames::SetSnooze, QVariantMap{{ServerNames::KeyNodeId, QStringLiteral("north/c1")}});
    QCOMPARE(takeLines(), QStringList{QStringLiteral("snooze    there is no answer for north/c1, "
                                                     "which may be snoozed or not")});
}

void tst_ConsoleReport::namesDoNotSteerTheTerminal()
{
    Q_EMIT m_fixture->workbench.surface().reachingLimit(QStringLiteral("M\x1b[2J\r\n\u009bA"),
                                                        87.5);
    QCOMPARE(takeLines(),
             QStringList{QStringLiteral("capacity  M\uFFFD[2J\uFFFD\uFFFD\uFFFDA is at 87.5% of "
                                        "its capacity")});
}

void tst_ConsoleReport::percentSignsInNamesAreLeftAlone()
{
    addError(QStringLiteral("3_%1"), 3, QStringLiteral("over %2"), QStringLiteral("%3 %1"));
    Q_EMIT m_fixture->workbench.surface().reachingLimit(QStringLiteral("%2"), 1);
    QCOMPARE(takeLines(), QStringList({QStringLiteral("raised    over %2: %3 %1  [3_%1]"),
                                       QStringLiteral("capacity  %2 is at 1% of its capacity")}));
}

void tst_ConsoleReport::ordinaryReportsAreNotWritten()
{
    m_fixture->workbench.link().open();
    takeLines();
    Q_EMIT m_fixture->workbench.link().eventRaised(ServerNames::SystemResChanged, QVariantMap(),
                                                   QStringLiteral("north"));
    QCOMPARE(takeLines(), QStringList());
}

void tst_ConsoleReport::summaryCountsKindsOfErrors()
{
    addError(QStringLiteral("5_a"), 5, QStringLiteral("Volume"), QStringLiteral("A"));
    addError(QStringLiteral("3_a"), 3, QStringLiteral("Camera"), QStringLiteral("A"));
    addError(QStringLiteral("3_b"), 3, QStringLiteral("Camera"), QStringLiteral("B"));
    errors().removeRow(2);
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(1, 2);
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(12, 34);
    takeText();
    m_report->writeSummary();
    QCOMPARE(takeText(), QStringLiteral("\n"
                                        "Summary\n"
                                        "  raised cleared  listed  error\n"
                                        "       2       1       1  Camera\n"
                                        "       1       0       1  Volume\n"
                                        "       3       1       2  all\n"
                                        "Samples of this machine: 2; the last: CPU 12%, "
                                        "memory 34%\n"));
}

void tst_ConsoleReport::summaryOfNothing()
{
    m_report->writeSummary();
    QCOMPARE(takeText(), QStringLiteral("\n"
                                        "Summary\n"
                                        "  raised cleared  listed  error\n"
                                        "       0       0       0  all\n"
                                        "Samples of this machine: 0\n"));
}

void tst_ConsoleReport::failedSampleIsUnknown()
{
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(-100, 34);
    m_report->writeSummary();
    QVERIFY(takeText().endsWith(QStringLiteral("the last: CPU unknown, memory 34%\n")));
}

QTEST_GUILESS_MAIN(tst_ConsoleReport)
#include "tst_ConsoleReport.moc"
