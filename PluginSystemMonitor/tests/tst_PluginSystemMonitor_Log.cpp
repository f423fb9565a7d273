#include "PluginSystemMonitor_Log.h"

#include "CollectedTrace.h"
#include "HostedPlugin.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

class tst_PluginSystemMonitor_Log : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void missingLibraryLeavesTheGlobalsEmpty();
    void everythingWorksSilentlyWithoutTheLibrary();

    void levelTestGetsTheModuleIdAboveTheLevel_data();
    void levelTestGetsTheModuleIdAboveTheLevel();
    void moduleIdIsReadAtEveryMessage();
    void levelTestGetsTheCallersFileAndLine();
    void onlySuppressedLevelsAreUnwanted();
    void suppressedMessageDoesNotReachTheOutput();
    void messageIsFormattedWithItsArguments();
    void incompleteRecordWritesNothing_data();
    void incompleteRecordWritesNothing();

    void entryAndExitAreWritten();
    void exitIsWrittenOnEveryWayOut();
    void exitIsWrittenWhenAnExceptionLeaves();
    void exitIsAskedForWithLineZero();
    void exitIsWrittenWithoutAnEntry();
    void nestedOperationsLeaveInReverseOrder();
};

namespace {

void operation()
{
    const EntryLog entryLog = traceEntry("operation");
}

void operationThatThrows()
{
    [[maybe_unused]] const EntryLog entryLog = traceEntry("operationThatThrows");
    throw std::runtime_error("failed");
}

bool operationWithTwoWaysOut(bool early)
{
    const EntryLog entryLog = traceEntry("operationWithTwoWaysOut");
    if (early)
        return true;
    LocalTraceOutFuncPluginSystemMonitor("behind the first");
    return false;
}

} // namespace

void tst_PluginSystemMonitor_Log::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_PluginSystemMonitor_Log::missingLibraryLeavesTheGlobalsEmpty()
{
    QCOMPARE(g_PluginSystemMonitor.handle(), nullptr);
    QCOMPARE(g_ptTraceInfoPluginSystemMonitor, nullptr);
    QCOMPARE(g_nGivenModIdPluginSystemMonitor, 0);
}

void tst_PluginSystemMonitor_Log::everythingWorksSilentlyWithoutTheLibrary()
{
    QVERIFY(!isTraced(TraceLog::ErrorLevel));
    LocalTraceOutFuncPluginSystemMonitor("%s, lost", "test");
    operation();

    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", 1, u"st1"_s, true);
    hosted.plugin.invoke("initNodeStatusErrorTimer", true);
    hosted.plugin.invoke("initNodeStatusError");
    hosted.event(u"SystemResChanged"_s, u"no map"_s);
    hosted.respond(u"setSnooze"_s);
    QCOMPARE(hosted.errorKeys(), QStringList());
}

// Messages

void tst_PluginSystemMonitor_Log::levelTestGetsTheModuleIdAboveTheLevel_data()
{
    QTest::addColumn<int>("moduleId");
    QTest::addColumn<TraceLog::Level>("level");
    QTest::addColumn<int>("expected");
    QTest::newRow("no id yet") << 0 << TraceLog::ErrorLevel << 2;
    QTest::newRow("error") << 7 << TraceLog::ErrorLevel << 0x702;
    QTest::newRow("information") << 7 << TraceLog::InfoLevel << 0x703;
    QTest::newRow("entry") << 0x123 << TraceLog::EntryLevel << 0x12305;
}

void tst_PluginSystemMonitor_Log::levelTestGetsTheModuleIdAboveTheLevel()
{
    QFETCH(const int, moduleId);
    QFETCH(const TraceLog::Level, level);
    QFETCH(const int, expected);
    const auto restore = qScopeGuard([] { g_nGivenModIdPluginSystemMonitor = 0; });
    const CollectedTrace trace;
    g_nGivenModIdPluginSystemMonitor = moduleId;
    isTraced(level);
    QCOMPARE(trace.questions().size(), 1);
    QCOMPARE(trace.questions().first().moduleAndLevel, expected);
    QCOMPARE(trace.questions().first().zero, 0);
}

void tst_PluginSystemMonitor_Log::moduleIdIsReadAtEveryMessage()
{
    const auto restore = qScopeGuard([] { g_nGivenModIdPluginSystemMonitor = 0; });
    const CollectedTrace trace;
    isTraced(TraceLog::InfoLevel);
    g_nGivenModIdPluginSystemMonitor = 9;
    isTraced(TraceLog::InfoLevel);
    QCOMPARE(trace.questions().at(0).moduleAndLevel, 0x003);
    QCOMPARE(trace.questions().at(1).moduleAndLevel, 0x903);
}

void tst_PluginSystemMonitor_Log::levelTestGetsTheCallersFileAndLine()
{
    const CollectedTrace trace;
    const int before = __LINE__;
    isTraced(TraceLog::ErrorLevel);
    operation();
    QCOMPARE(trace.questions().at(0).file, u"tst_PluginSystemMonitor_Log.cpp"_s);
    QCOMPARE(trace.questions().at(0).line, before + 1);
    QCOMPARE(trace.questions().at(1).file, u"tst_PluginSystemMonitor_Log.cpp"_s);
    QVERIFY(trace.questions().at(1).line > 0);
}

void tst_PluginSystemMonitor_Log::onlySuppressedLevelsAreUnwanted()
{
    const CollectedTrace trace(TraceLog::InfoLevel);
    QVERIFY(isTraced(TraceLog::ErrorLevel));
    QVERIFY(isTraced(TraceLog::InfoLevel));
    QVERIFY(!isTraced(TraceLog::EntryLevel));
}

void tst_PluginSystemMonitor_Log::suppressedMessageDoesNotReachTheOutput()
{
    const CollectedTrace trace(0);
    HostedPlugin hosted;
    hosted.plugin.invoke("monitorNodeStatus", 1, u"st1"_s, false);
    hosted.plugin.invoke("initNodeStatusErrorTimer", true);
    hosted.plugin.invoke("initNodeStatusError");
    hosted.event(u"SystemResChanged"_s, u"no map"_s);
    QVERIFY(!trace.questions().isEmpty());
    QCOMPARE(trace.lines(), QStringList());
}

void tst_PluginSystemMonitor_Log::messageIsFormattedWithItsArguments()
{
    const CollectedTrace trace;
    isTraced(TraceLog::InfoLevel);
    LocalTraceOutFuncPluginSystemMonitor("%s, %d of %d", "test", 3, 4);
    LocalTraceOutFuncPluginSystemMonitor("=== plain ===");
    QCOMPARE(trace.lines(), QStringList({u"3 test, 3 of 4"_s, u"3 === plain ==="_s}));
}

void tst_PluginSystemMonitor_Log::incompleteRecordWritesNothing_data()
{
    using Take = void (*)(TraceLog::TraceRecord &);
    QTest::addColumn<Take>("take");
    QTest::newRow("context") << Take([](auto &record) { record.context = nullptr; });
    QTest::newRow("level test") << Take([](auto &record) { record.isSuppressed = nullptr; });
    QTest::newRow("output") << Take([](auto &record) { record.output = nullptr; });
}

void tst_PluginSystemMonitor_Log::incompleteRecordWritesNothing()
{
    using Take = void (*)(TraceLog::TraceRecord &);
    QFETCH(const Take, take);
    CollectedTrace trace;
    take(trace.record());
    operation();
    if (isTraced(TraceLog::ErrorLevel))
        LocalTraceOutFuncPluginSystemMonitor("lost");
    QCOMPARE(trace.lines(), QStringList());
}

// Enter and Leave

void tst_PluginSystemMonitor_Log::entryAndExitAreWritten()
{
    const CollectedTrace trace;
    operation();
    QCOMPARE(trace.lines(), QStringList({u"5 operation, Enter"_s, u"5 operation, Leave"_s}));
}

void tst_PluginSystemMonitor_Log::exitIsWrittenOnEveryWayOut()
{
    CollectedTrace trace;
    operationWithTwoWaysOut(true);
    QCOMPARE(trace.take(), QStringList({u"5 operationWithTwoWaysOut, Enter"_s,
                                        u"5 operationWithTwoWaysOut, Leave"_s}));
    operationWithTwoWaysOut(false);
    QCOMPARE(trace.take(),
             QStringList({u"5 operationWithTwoWaysOut, Enter"_s, u"5 behind the first"_s,
                          u"5 operationWithTwoWaysOut, Leave"_s}));
}

void tst_PluginSystemMonitor_Log::exitIsWrittenWhenAnExceptionLeaves()
{
    const CollectedTrace trace;
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, operationThatThrows());
    QCOMPARE(trace.lines(),
             QStringList({u"5 operationThatThrows, Enter"_s, u"5 operationThatThrows, Leave"_s}));
}

void tst_PluginSystemMonitor_Log::exitIsAskedForWithLineZero()
{
    const CollectedTrace trace;
    operation();
    QCOMPARE(trace.questions().size(), 2);
    QVERIFY(trace.questions().at(0).line > 0);
    QCOMPARE(trace.questions().at(1).line, 0);
    QCOMPARE(trace.questions().at(1).file, trace.questions().at(0).file);
    QCOMPARE(trace.questions().at(1).moduleAndLevel, trace.questions().at(0).moduleAndLevel);
}

void tst_PluginSystemMonitor_Log::exitIsWrittenWithoutAnEntry()
{
    CollectedTrace trace;
    {
        const EntryLog entryLog = traceEntry("early");
        trace.take();
        // As if the trace had been switched on in between.
    }
    QCOMPARE(trace.lines(), QStringList{u"5 early, Leave"_s});
}

void tst_PluginSystemMonitor_Log::nestedOperationsLeaveInReverseOrder()
{
    const CollectedTrace trace;
    {
        const EntryLog outer = traceEntry("outer");
        operation();
    }
    QCOMPARE(trace.lines(), QStringList({u"5 outer, Enter"_s, u"5 operation, Enter"_s,
                                         u"5 operation, Leave"_s, u"5 outer, Leave"_s}));
}

QTEST_GUILESS_MAIN(tst_PluginSystemMonitor_Log)
#include "tst_PluginSystemMonitor_Log.moc"
