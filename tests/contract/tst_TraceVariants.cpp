#include "TestHost.h"
#include "TraceLines.h"

#include <QRegularExpression>
#include <QTest>

#include <map>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace {

// What a plug-in can do with a trace library of one kind.
struct Expectation
{
    std::size_t entries; ///< calls of the entry point
    std::size_t registrations;
    bool isAsked;   ///< whether levels are tested
    bool isWritten; ///< whether messages come out
};

// "missing" is no library at all.
const std::map<std::string, Expectation> expectations{
    {"missing", {0, 0, false, false}},           {"complete", {2, 2, true, true}},
    {"no_entry_point", {0, 0, false, false}},    {"null_record", {2, 0, false, false}},
    {"null_context", {2, 2, false, false}},      {"no_register_function", {2, 0, true, true}},
    {"no_level_test", {2, 2, false, false}},     {"no_output_function", {2, 2, true, false}},
    {"suppressing", {2, 2, true, false}},        {"late_module_id", {2, 2, true, true}},
    {"unresolved_function", {2, 2, true, true}},
};

// Reaches every place that writes a message, and returns what is listed then.
QStringList live(TestHost &host)
{
    host.topologyModel.addStation(u"st1"_s, u"Lobby"_s, false);
    Q_EMIT host.topology.camStatusRetrievedChanged(true);
    host.invoke("initNodeStatusError");
    Q_EMIT host.topology.nodeStatusChanged(1, u"st2"_s, false);
    Q_EMIT host.topology.nodeStatusChanged(1, u"st3"_s, true);
    host.event(u"SystemResChanged"_s, QVariantMap{{u"cpuPercentage"_s, 100}}, u"st3"_s);
    host.event(u"SystemResChanged"_s, u"text"_s);
    host.event(u"ServerReachingLimited"_s);
    host.event(u"SnoozeError"_s, QVariantMap{{u"nodeID"_s, u"st2"_s}, {u"type"_s, 4}});
    host.event(u"RemoveSnooze"_s, u"st2"_s);
    host.respond(u"setSnooze"_s);
    host.plugin()->EventProcessorEx(QString(), nullptr, 0, 0, 0, {}, QString());
    host.plugin()->CommandProcessorEx(QString(), nullptr, {}, nullptr, QString(), QString(), false,
                                      QString());
    return host.errorKeys();
}

} // namespace

/// The plug-in with a trace library that lacks something. The variant is chosen by the environment,
/// because a process can load only one library of the name.
class tst_TraceVariants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pluginWorksAndWritesWhatItCan();
    void idAssignedAfterRegistrationIsHonoured();

private:
    const std::string m_variant = qgetenv("TRACE_LIBRARY_VARIANT").toStdString();
    TraceLines m_trace;
};

void tst_TraceVariants::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QVERIFY2(expectations.count(m_variant), m_variant.c_str());
    QCOMPARE(m_trace.journal() != nullptr, m_variant != "missing");
    m_trace.take();
}

void tst_TraceVariants::pluginWorksAndWritesWhatItCan()
{
    {
        TestHost host;
        QCOMPARE(live(host), QStringList({u"4_st1"_s, u"0_st3"_s}));
    }
    if (!m_trace.journal())
        return;

    const Expectation &expected = expectations.at(m_variant);
    const TraceJournal &journal = *m_trace.journal();
    QCOMPARE(journal.entryPointArguments.size(), expected.entries);
    QCOMPARE(journal.registrations.size(), expected.registrations);
    QCOMPARE(!journal.levelTests.empty(), expected.isAsked);
    QCOMPARE(!journal.messages.empty(), expected.isWritten);
    for (const TraceJournal::Registration &registration : journal.registrations)
        QCOMPARE(registration.context, journal.context);
}

void tst_TraceVariants::idAssignedAfterRegistrationIsHonoured()
{
    const bool isUnassigned = m_variant == "late_module_id" || m_variant == "no_register_function";
    if (!isUnassigned)
        return;
    TestHost host;
    m_trace.take();
    host.event(u"unknown"_s);
    QCOMPARE(m_trace.journal()->levelTests.front().moduleAndLevel, 5);

    for (const TraceJournal::Registration &registration : m_trace.journal()->registrations)
        *registration.moduleId = registration.moduleName == "PluginSystemMonitor" ? 77 : 78;
    if (m_trace.journal()->registrations.empty())
        return;
    m_trace.take();
    host.event(u"unknown"_s);
    QCOMPARE(m_trace.journal()->levelTests.front().moduleAndLevel, (77 << 8) | 5);
}

QTEST_GUILESS_MAIN(tst_TraceVariants)
#include "tst_TraceVariants.moc"
