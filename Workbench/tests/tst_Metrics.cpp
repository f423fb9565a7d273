#include "Metrics.h"

#include "DeliverEvents.h"
#include "ErrorModel.h"
#include "ReadMetrics.h"
#include "ServerNames.h"
#include "WorkbenchFixture.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

class tst_Metrics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyFamilyIsThereAtOnce();
    void errorsAreCountedByKindAndStation();
    void errorsOfBeforeAreCounted();
    void clientSamplesAreRatios();
    void failedSampleIsAbsent_data();
    void failedSampleIsAbsent();
    void onlyTheFocusedStationIsShown();
    void reportOfAnUnknownStationIsNotKept();
    void stationOutOfReachIsAbsent();
    void malformedReportIsAbsent();
    void eventsAreCountedByName();
    void eventsOfUnknownNamesAreOne();
    void connectionIsOneOrZero();
    void snoozesEndAtTheirTimes();
    void parserAcceptsEverything();

private:
    ErrorModel &errors();
    void addError(int type, const QString &key, const QString &station);
    void report(const QString &station, const QVariant &data);
    void focus(const QString &station);
    bool has(const QByteArray &line) const;
    bool hasSampleOf(const QByteArray &name) const;

    std::unique_ptr<WorkbenchFixture> m_fixture;
    std::unique_ptr<Metrics> m_metrics;
};

void tst_Metrics::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_fixture = std::make_unique<WorkbenchFixture>(
        QStringLiteral(TEST_PLUGIN_FOLDER "/FakeMonitorPlugin.so"));
    m_metrics = std::make_unique<Metrics>(m_fixture->workbench);
    m_fixture->workbench.link().open();
}

void tst_Metrics::cleanup()
{
    m_metrics.reset();
    m_fixture.reset();
}

ErrorModel &tst_Metrics::errors()
{
    return static_cast<ErrorModel &>(m_fixture->workbench.surface().errorModel());
}

void tst_Metrics::addError(int type, const QString &key, const QString &station)
{
    errors().add(key, type, QStringLiteral("Name"), QStringLiteral("Origin"));
    errors().setData(errors().index(errors().rowCount() - 1, 0), station, ErrorModel::Station);
}

void tst_Metrics::report(const QString &station, const QVariant &data)
{
    Q_EMIT m_fixture->workbench.link().eventRaised(ServerNames::SystemResChanged, data, station);
}

void tst_Metrics::focus(const QString &station)
{
    m_fixture->workbench.surface().focusStation(station);
}

bool tst_Metrics::has(const QByteArray &line) const
{
    return m_metrics->text().contains('\n' + line + '\n');
}

bool tst_Metrics::hasSampleOf(const QByteArray &name) const
{
    const QByteArray text = m_metrics->text();
    return text.contains('\n' + name + ' ') || text.contains('\n' + name + '{');
}

void tst_Metrics::everyFamilyIsThereAtOnce()
{
    for (const char *const family :
         {"system_monitor_errors gauge", "system_monitor_errors_raised counter",
          "system_monitor_errors_cleared counter", "system_monitor_client_cpu_usage_ratio gauge",
          "system_monitor_client_memory_usage_ratio gauge",
          "system_monitor_station_cpu_usage_ratio gauge",
          "system_monitor_station_memory_usage_ratio gauge",
          "system_monitor_station_network_usage_ratio gauge",
          "system_monitor_server_connected gauge", "system_monitor_events counter",
          "system_monitor_snooze_end_timestamp_seconds gauge"})
        QVERIFY2(m_metrics->text().contains(QByteArray("# TYPE ") + family + '\n'), family);
    QVERIFY(m_metrics->text().endsWith("\n# EOF\n"));
}

void tst_Metrics::errorsAreCountedByKindAndStation()
{
    addError(3, QStringLiteral("3_n/a"), QStringLiteral("n"));
    addError(3, QStringLiteral("3_n/b"), QStringLiteral("n"));
    addError(3, QStringLiteral("3_s/a"), QStringLiteral("s"));
    addError(5, QStringLiteral("5_n"), QStringLiteral("n"));
    QVERIFY(has("system_monitor_errors{kind=\"camera\",station=\"n\"} 2"));
    QVERIFY(has("system_monitor_errors{kind=\"camera\",station=\"s\"} 1"));
    QVERIFY(has("system_monitor_errors{kind=\"volume\",station=\"n\"} 1"));
    errors().removeRow(3);
    QVERIFY(!m_metrics->text().contains("system_monitor_errors{kind=\"volume\""));
    QVERIFY(has("system_monitor_errors_raised_total{kind=\"camera\"} 3"));
    QVERIFY(has("system_monitor_errors_raised_total{kind=\"recording_days\"} 0"));
    QVERIFY(has("system_monitor_errors_cleared_total{kind=\"volume\"} 1"));
}

void tst_Metrics::errorsOfBeforeAreCounted()
{
    addError(4, QStringLiteral("4_s"), QStringLiteral("s"));
    const Metrics late(m_fixture->workbench);
    QVERIFY(late.text().contains("system_monitor_errors_raised_total{kind=\"station\"} 1\n"));
}

void tst_Metrics::clientSamplesAreRatios()
{
    QVERIFY(!hasSampleOf("system_monitor_client_cpu_usage_ratio"));
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(0, 57);
    QVERIFY(has("system_monitor_client_cpu_usage_ratio 0"));
    QVERIFY(has("system_monitor_client_memory_usage_ratio 0.57"));
}

void tst_Metrics::failedSampleIsAbsent_data()
{
    QTest::addColumn<int>("cpu");
    QTest::addColumn<int>("memory");
    QTest::addColumn<bool>("hasCpu");
    QTest::addColumn<bool>("hasMemory");
    QTest::newRow("CPU") << -100 << 50 << false << true;
    QTest::newRow("memory, negative") << 50 << -1 << true << false;
    QTest::newRow("memory, nothing in use") << 50 << 0 << true << false;
}

void tst_Metrics::failedSampleIsAbsent()
{
    QFETCH(int, cpu);
    QFETCH(int, memory);
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(40, 40);
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(cpu, memory);
    QTEST(hasSampleOf("system_monitor_client_cpu_usage_ratio"), "hasCpu");
    QTEST(hasSampleOf("system_monitor_client_memory_usage_ratio"), "hasMemory");
}

void tst_Metrics::onlyTheFocusedStationIsShown()
{
    report(QStringLiteral("north"), toEventData({40, 60, {{QStringLiteral("eth0"), 12.5, 1000}}}));
    report(QStringLiteral("south"), toEventData({1, 2, {}}));
    QVERIFY(!hasSampleOf("system_monitor_station_cpu_usage_ratio"));
    focus(QStringLiteral("north"));
    QVERIFY(has("system_monitor_station_cpu_usage_ratio{station=\"north\"} 0.4"));
    QVERIFY(has("system_monitor_station_memory_usage_ratio{station=\"north\"} 0.6"));
    QVERIFY(has("system_monitor_station_network_usage_ratio{station=\"north\",interface=\"eth0\"} "
                "0.125"));
    QVERIFY(!m_metrics->text().contains("south"));
}

// A server may name sources without end.
void tst_Metrics::reportOfAnUnknownStationIsNotKept()
{
    report(QStringLiteral("nowhere"), toEventData({40, 60, {}}));
    focus(QStringLiteral("nowhere"));
    QVERIFY(!hasSampleOf("system_monitor_station_cpu_usage_ratio"));
}

void tst_Metrics::stationOutOfReachIsAbsent()
{
    ServerLink &link = m_fixture->workbench.link();
    focus(QStringLiteral("north"));
    const auto isShownAfter = [&](const std::function<void()> &loss) {
        report(QStringLiteral("north"), toEventData({40, 60, {}}));
        loss();
        return hasSampleOf("system_monitor_station_cpu_usage_ratio");
    };
    QVERIFY(isShownAfter([] {}));
    QVERIFY(!isShownAfter(
        [&] { Q_EMIT link.nodeStatusChanged(NodeType::Station, QStringLiteral("north"), false); }));
    QVERIFY(!isShownAfter([&] { Q_EMIT link.stationRemoved(QStringLiteral("north")); }));
    QVERIFY(!isShownAfter([&] { link.close(); }));
}

void tst_Metrics::malformedReportIsAbsent()
{
    focus(QStringLiteral("north"));
    report(QStringLiteral("north"), QStringLiteral("busy"));
    QVERIFY(!hasSampleOf("system_monitor_station_cpu_usage_ratio"));
    report(QStringLiteral("north"),
           QVariantMap{{ServerNames::KeyCpuPercentage, QStringLiteral("high")},
                       {ServerNames::KeyMemPercentage, -5}});
    QVERIFY(!hasSampleOf("system_monitor_station_cpu_usage_ratio"));
    QVERIFY(!hasSampleOf("system_monitor_station_memory_usage_ratio"));
}

void tst_Metrics::eventsAreCountedByName()
{
    QVERIFY(has("system_monitor_events_total{event=\"SnoozeError\"} 0"));
    report(QStringLiteral("north"), {});
    report(QStringLiteral("south"), {});
    QVERIFY(has("system_monitor_events_total{event=\"SystemResChanged\"} 2"));
}

void tst_Metrics::eventsOfUnknownNamesAreOne()
{
    for (int i = 0; i < 100; ++i)
        Q_EMIT m_fixture->workbench.link().eventRaised(QString::number(i), {}, {});
    QVERIFY(has("system_monitor_events_total{event=\"other\"} 100"));
    QCOMPARE(m_metrics->text().count("\nsystem_monitor_events_total{"), 6);
}

void tst_Metrics::connectionIsOneOrZero()
{
    QVERIFY(has("system_monitor_server_connected 1"));
    m_fixture->workbench.link().close();
    QVERIFY(has("system_monitor_server_connected 0"));
}

void tst_Metrics::snoozesEndAtTheirTimes()
{
    Framework &framework = m_fixture->workbench.framework();
    framework.SendCommand(framework.handle(), m_fixture->host.pluginId(), ServerNames::SetSnooze,
                          QVariantMap{{ServerNames::KeyNodeId, QStringLiteral("north/c1")},
                                      {ServerNames::KeyType, 3},
                                      {ServerNames::KeyTimestamp, 1'780'660'860}},
                          nullptr, 0, {});
    deliverEvents();
    QVERIFY(readMetrics(m_metrics->text())
                .contains(QStringLiteral("gauge system_monitor_snooze_end_timestamp_seconds"
                                         "{kind='camera',node='north/c1'} 1.78066e+09 seconds")));
    m_fixture->workbench.link().close();
    QVERIFY(!hasSampleOf("system_monitor_snooze_end_timestamp_seconds"));
}

void tst_Metrics::parserAcceptsEverything()
{
    addError(3, QStringLiteral("3_n/a"), QStringLiteral("n \"1\"\n\\"));
    addError(99, QStringLiteral("99"), QString());
    addError(98, QStringLiteral("98"), QString());
    focus(QStringLiteral("north"));
    const NetworkUsage eth{QStringLiteral("eth\n0"), 12.5, 1000};
    report(QStringLiteral("north"), toEventData({40, 60, {eth, eth}}));
    Q_EMIT m_fixture->workbench.surface().clientResourceChanged(3, 57);
    const QStringList samples = readMetrics(m_metrics->text());
    const QStringList expected{
        QStringLiteral("gauge system_monitor_errors{kind='camera',station='n \"1\"\\n\\\\'} 1"),
        QStringLiteral("gauge system_monitor_errors{kind='other',station=''} 2"),
        QStringLiteral("counter system_monitor_errors_raised_total{kind='camera'} 1"),
        QStringLiteral("gauge system_monitor_client_cpu_usage_ratio{} 0.03 ratio"),
        QStringLiteral("gauge system_monitor_station_network_usage_ratio{interface='eth\\n0',"
                       "station='north'} 0.125 ratio"),
        QStringLiteral("counter system_monitor_events_total{event='SystemResChanged'} 1")};
    for (const QString &sample : expected)
        QVERIFY2(samples.contains(sample), qPrintable(samples.join(u'\n')));
}

QTEST_GUILESS_MAIN(tst_Metrics)
#include "tst_Metrics.moc"
