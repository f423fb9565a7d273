#include "JsonReport.h"

#include "DeliverEvents.h"
#include "ErrorModel.h"
#include "ServerNames.h"
#include "WorkbenchFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

#include <memory>

namespace {

const QString Time = QStringLiteral(R"("time":"2026-06-05T14:00:00.000+02:00")");

} // namespace

class tst_JsonReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyLineIsAnObjectWithATimeAndAnEvent();
    void timeFollowsTheClockAndItsOffset();
    void errorsHaveAllTheirFields();
    void writesWhatTheServerDoes();
    void writesWhatTheUserDoes();
    void lostAnswerIsNeitherAcceptedNorRefused();
    void missingServerTellsWhy();
    void textIsEscaped();
    void pictureTellsWhetherItWasSaved();
    void summaryListsErrorsThatRemainAndCounts();
    void summaryOfNothing();
    void failedSampleIsNull();

private:
    QStringList takeLines();
    QJsonObject takeObject();
    ErrorModel &errors();

    std::unique_ptr<WorkbenchFixture> m_fixture;
    QString m_text;
    std::unique_ptr<QTextStream> m_out;
    std::unique_ptr<JsonReport> m_report;
};

void tst_JsonReport::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_text.clear();
    m_out = std::make_unique<QTextStream>(&m_text);
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
    m_report = std::make_unique<JsonReport>(*m_out, m_fixture->clock);
    m_report->follow(m_fixture->workbench);
}

void tst_JsonReport::cleanup()
{
    m_report.reset();
    m_fixture.reset();
}

// What was written since the last call, without the time, if that is as at the start.
QStringList tst_JsonReport::takeLines()
{
    deliverEvents();
    QStringList lines = std::exchange(m_text, {}).split(u'\n', Qt::SkipEmptyParts);
    lines.replaceInStrings(u',' + Time, QString());
    return lines;
}

QJsonObject tst_JsonReport::takeObject()
{
    return QJsonDocument::fromJson(takeLines().value(0).toUtf8()).object();
}

ErrorModel &tst_JsonReport::errors()
{
    return static_cast<ErrorModel &>(m_fixture->workbench.surface().errorModel());
}

void tst_JsonReport::everyLineIsAnObjectWithATimeAndAnEvent()
{
    m_fixture->workbench.link().open();
    QCOMPARE(m_text, QStringLiteral(R"({"connected":true,"event":"connection",%1})"
                                    "\n")
                         .arg(Time));
}

void tst_JsonReport::timeFollowsTheClockAndItsOffset()
{
    m_fixture->clock.leap(200LL * 24 * 3600 * 1000 + 7);
    m_fixture->workbench.link().open();
    QCOMPARE(takeObject().value(QStringLiteral("time")).toString(),
             QStringLiteral("2026-12-22T13:00:00.007+01:00"));
}

void tst_JsonReport::errorsHaveAllTheirFields()
{
    errors().add(QStringLiteral("3_n/c"), 3, QStringLiteral("Camera"), QStringLiteral("Gate"));
    takeLines();
    const QModelIndex row = errors().index(0, 0);
    errors().setData(row, QStringLiteral("n"), ErrorModel::Station);
    errors().setData(row, QStringLiteral("n/c"), ErrorModel::Device);
    errors().setData(row, 2, ErrorModel::Category);
    takeLines();
    errors().setData(row, VirtualClock::StartMs, ErrorModel::Time);
    const QString error = QStringLiteral(
        R"({"error":{"category":2,"device":"n/c","key":"3_n/c","kind":"camera","name":"Camera",)"
        R"("origin":"Gate","raisedAt":"2026-06-05T14:00:00.000+02:00","station":"n","type":3},)"
        R"("event":"%1"})");
    QCOMPARE(takeLines(), QStringList{error.arg(QStringLiteral("changed"))});
    errors().removeRow(0);
    QCOMPARE(takeLines(), QStringList{error.arg(QStringLiteral("cleared"))});
}

void tst_JsonReport::writesWhatTheServerDoes()
{
    Workbench &workbench = m_fixture->workbench;
    workbench.link().open();
    workbench.topology().announceStatesRetrieved(true);
    Q_EMIT workbench.surface().reachingLimit(QStringLiteral("Main"), 87.5);
    const QVariantMap expired{{ServerNames::KeyNodeId, QStringLiteral("north/c1")},
                              {ServerNames::KeyType, 3}};
    Q_EMIT workbench.link().eventRaised(ServerNames::DeviceStillError, expired, {});
    Q_EMIT workbench.link().eventRaised(ServerNames::RemoveSnooze, QStringLiteral("south"), {});
    workbench.link().close();
    QCOMPARE(takeLines(),
             QStringList(
                 {QStringLiteral(R"({"connected":true,"event":"connection"})"),
                  QStringLiteral(R"({"event":"states","success":true})"),
                  QStringLiteral(R"({"event":"capacity","percentage":87.5,"server":"Main"})"),
                  QStringLiteral(R"({"disconnected":true,"event":"snoozeEnd","node":"north/c1"})"),
                  QStringLiteral(R"({"disconnected":false,"event":"snoozeEnd","node":"south"})"),
                  QStringLiteral(R"({"connected":false,"event":"connection"})")}));
}

void tst_JsonReport::writesWhatTheUserDoes()
{
    Workbench &workbench = m_fixture->workbench;
    workbench.link().open();
    takeLines();
    Framework &framework = workbench.framework();
    const auto send = [&](const QString &command, const QVariant &data, const QString &target) {
        framework.SendCommand(framework.handle(), m_fixture->host.pluginId(), command, data,
                              nullptr, 0, target);
    };
    send(ServerNames::SetSnooze,
         QVariantMap{{ServerNames::KeyNodeId, QStringLiteral("north/c1")},
                     {ServerNames::KeyType, 3},
                     {ServerNames::KeyTimestamp, VirtualClock::StartMs / 1000 + 60}},
         {});
    send(ServerNames::ReconnectCameras, QVariantList{QStringLiteral("c1"), QStringLiteral("c2")},
         QStringLiteral("north"));
    send(ServerNames::ReconnectSubstations, QStringList{QStringLiteral("south")}, {});
    Q_EMIT workbench.surface().supportAnswered(QStringLiteral("north"), true);
    workbench.logPlugin().addOperationalLog(
        QStringLiteral("AddDashboardSnooze"),
        {QVariantMap{{QStringLiteral("param"), QStringLiteral("Camera")}},
         QVariantMap{{QStringLiteral("param"), 5}}});
    QCOMPARE(takeLines(),
             QStringList(
                 {QStringLiteral(R"({"event":"support","station":"north","supported":true})"),
                  QStringLiteral(R"({"event":"log","name":"AddDashboardSnooze",)"
                                 R"("parameters":["Camera",5]})"),
                  QStringLiteral(R"({"cameras":["north/c1","north/c2"],"event":"reconnect"})"),
                  QStringLiteral(R"({"event":"reconnect","stations":["south"]})"),
                  QStringLiteral(R"({"accepted":true,"event":"snooze","node":"north/c1",)"
                                 R"("resultCode":"0","until":"2026-06-05T14:01:00.000+02:00"})")}));
}

void tst_JsonReport::lostAnswerIsNeitherAcceptedNorRefused()
{
    Framework &framework = m_fixture->workbench.framework();
    framework.SendCommand(framework.handle(), m_fixture->host.pluginId(), ServerNames::SetSnooze,
                          QVariantMap{{ServerNames::KeyNodeId, QStringLiteral("north/c1")}},
                          nullptr, 0, {});
    const QJsonObject object = takeObject();
    QVERIFY(object.value(QStringLiteral("accepted")).isNull());
    QCOMPARE(object.value(QStringLiteral("resultCode")).toString(),
             ServerNames::FrameworkInternalError);
}

void tst_JsonReport::missingServerTellsWhy()
{
    ServerLink &link = m_fixture->workbench.link();
    Q_EMIT link.attemptFailed(QStringLiteral("no answer"), 1500);
    Q_EMIT link.refused(QStringLiteral("wrong token"));
    m_report->writeConnectTimeout(2500);
    QCOMPARE(takeLines(),
             QStringList({QStringLiteral(
                              R"({"event":"attemptFailed","pauseMs":1500,"reason":"no answer"})"),
                          QStringLiteral(R"({"event":"refused","reason":"wrong token"})"),
                          QStringLiteral(R"({"event":"connectTimeout","timeoutMs":2500})")}));
}

void tst_JsonReport::textIsEscaped()
{
    const QString text = QStringLiteral("a \"b\"\n\\c\t\u00e4 \U0001F4F7 %1");
    m_report->writePicture(text, true);
    QCOMPARE(m_text.count(u'\n'), 1);
    QCOMPARE(takeObject().value(QStringLiteral("file")).toString(), text);
}

void tst_JsonReport::pictureTellsWhetherItWasSaved()
{
    m_report->writePicture(QStringLiteral("x.png"), false);
    QCOMPARE(takeLines(),
             QStringList{QStringLiteral(R"({"event":"picture","file":"x.png","saved":false})")});
}

void tst_JsonReport::summaryListsErrorsThatRemainAndCounts()
{
    errors().add(QStringLiteral("5_a"), 5, QStringLiteral("Volume"), QStringLiteral("A"));
    errors().add(QStringLiteral("3_b"), 3, QStringLiteral("Camera"), QStringLiteral("B"));
    errors().removeRow(1);
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(12, 34);
    takeLines();
    m_report->writeSummary();
    const QJsonObject summary = takeObject();
    QCOMPARE(summary.value(QStringLiteral("event")).toString(), QStringLiteral("summary"));
    const QJsonArray listed = summary.value(QStringLiteral("errors")).toArray();
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.at(0).toObject().value(QStringLiteral("key")).toString(),
             QStringLiteral("5_a"));
    const auto printed = [&summary](const char *key) {
        return QJsonDocument(summary.value(QLatin1String(key)).toObject())
            .toJson(QJsonDocument::Compact);
    };
    QCOMPARE(printed("total"), QByteArray(R"({"cleared":1,"listed":1,"raised":2})"));
    QCOMPARE(printed("kinds"), QByteArray(R"({"camera":{"cleared":1,"listed":0,"raised":1},)"
                                          R"("volume":{"cleared":0,"listed":1,"raised":1}})"));
    QCOMPARE(printed("samples"), QByteArray(R"({"count":1,"lastCpu":12,"lastMemory":34})"));
}

void tst_JsonReport::summaryOfNothing()
{
    m_report->writeSummary();
    QCOMPARE(
        takeLines(),
        QStringList{QStringLiteral(
            R"({"connected":false,"errors":[],"event":"summary","kinds":{},"samples":{"count":0},)"
            R"("total":{"cleared":0,"listed":0,"raised":0}})")});
}

void tst_JsonReport::failedSampleIsNull()
{
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(-100, 0);
    m_report->writeSummary();
    const QJsonObject samples = takeObject().value(QStringLiteral("samples")).toObject();
    QVERIFY(samples.value(QStringLiteral("lastCpu")).isNull());
    QVERIFY(samples.value(QStringLiteral("lastMemory")).isNull());
}

QTEST_GUILESS_MAIN(tst_JsonReport)
#include "tst_JsonReport.moc"
