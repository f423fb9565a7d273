#include "FakeSamplers.h"
#include "SystemResourceMonitor.h"
#include "SystemResourceMonitor_Log.h"
#include "TestTraceLibrary.h"

#include <QTest>

#include <string>
#include <type_traits>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

bool endsWith(const std::string &text, const std::string &ending)
{
    return text.size() >= ending.size()
           && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

void createFailingMonitor()
{
    FakeSamplers samplers;
    samplers.failing = QStringLiteral("memory");
    try {
        const SystemResourceMonitor monitor(samplers.factory());
    } catch (const SamplerFailure &) {
        // Only the trace matters here.
    }
}

} // namespace

// Runs with the complete variant of the trace library.
class tst_SystemResourceMonitor_Log : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void libraryIsClosedByTheModulesOwnObject();
    void moduleRegistersItsNameAndId();
    void recordOfTheLibraryIsKept();
    void messageCarriesTheCallersFileAndLine();
    void messageCarriesAGivenFileAndLine();
    void idIsReadAtEachMessage();
    void outputFillsInItsArguments();
    void failedCreationIsTracedAsAnError();
    void failedCreationIsSilentWhenSuppressed();
    void successfulCreationAndSamplingAreNotTraced();

private:
    TestTraceLibrary m_library;
};

void tst_SystemResourceMonitor_Log::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QVERIFY(m_library.journal());
    m_library.journal()->clear();
    m_library.journal()->levelTestAnswer = 0;
}

void tst_SystemResourceMonitor_Log::libraryIsClosedByTheModulesOwnObject()
{
    QVERIFY((std::is_same_v<AUTOLOGGER_SystemResourceMonitor, TraceLog::TraceLibrary>));
    QVERIFY(g_SystemResourceMonitor.handle());
}

void tst_SystemResourceMonitor_Log::moduleRegistersItsNameAndId()
{
    QCOMPARE(m_library.journal()->registrations.size(), 1U);
    const TraceJournal::Registration &registration = m_library.journal()->registrations[0];
    QCOMPARE(registration.constant, 19);
    QCOMPARE(registration.moduleName, std::string("SystemResourceMonitor"));
    QCOMPARE(registration.moduleId, &g_nGivenModIdSystemResourceMonitor);
    QCOMPARE(g_nGivenModIdSystemResourceMonitor, m_library.journal()->firstModuleId);
}

void tst_SystemResourceMonitor_Log::recordOfTheLibraryIsKept()
{
    QVERIFY(g_ptTraceInfoSystemResourceMonitor);
    QCOMPARE(g_ptTraceInfoSystemResourceMonitor->context, m_library.journal()->context);
}

void tst_SystemResourceMonitor_Log::messageCarriesTheCallersFileAndLine()
{
    QVERIFY(isTracedSystemResourceMonitor(TraceLog::InfoLevel));
    const int line = __LINE__ - 1;
    const TraceJournal::LevelTest &levelTest = m_library.journal()->levelTests.at(0);
    QVERIFY(endsWith(levelTest.file, "tst_SystemResourceMonitor_Log.cpp"));
    QCOMPARE(levelTest.line, line);
    QCOMPARE(levelTest.level(), int(TraceLog::InfoLevel));
    QCOMPARE(levelTest.moduleId(), g_nGivenModIdSystemResourceMonitor);
}

void tst_SystemResourceMonitor_Log::messageCarriesAGivenFileAndLine()
{
    QVERIFY(isTracedSystemResourceMonitor(TraceLog::EntryLevel, "File.cpp", 0));
    const TraceJournal::LevelTest &levelTest = m_library.journal()->levelTests.at(0);
    QCOMPARE(levelTest.file, std::string("File.cpp"));
    QCOMPARE(levelTest.line, 0);
}

void tst_SystemResourceMonitor_Log::idIsReadAtEachMessage()
{
    const int givenId = g_nGivenModIdSystemResourceMonitor;
    *m_library.journal()->registrations.at(0).moduleId = 77;
    QVERIFY(isTracedSystemResourceMonitor(TraceLog::ErrorLevel));
    g_nGivenModIdSystemResourceMonitor = givenId;
    QCOMPARE(m_library.journal()->levelTests.at(0).moduleAndLevel, (77 << 8) | 2);
}

void tst_SystemResourceMonitor_Log::outputFillsInItsArguments()
{
    LocalTraceOutFuncSystemResourceMonitor("%s, %d", "operation", 5);
    QCOMPARE(m_library.journal()->texts(), Texts{"operation, 5"});
}

void tst_SystemResourceMonitor_Log::failedCreationIsTracedAsAnError()
{
    createFailingMonitor();
    QCOMPARE(m_library.journal()->texts(), Texts{"SystemResourceMonitor"});
    const TraceJournal::LevelTest &levelTest = m_library.journal()->messages[0].levelTest;
    QCOMPARE(levelTest.level(), int(TraceLog::ErrorLevel));
    QCOMPARE(levelTest.moduleId(), g_nGivenModIdSystemResourceMonitor);
    QVERIFY(endsWith(levelTest.file, "SystemResourceMonitor.cpp"));
    QVERIFY(levelTest.line > 0);
}

void tst_SystemResourceMonitor_Log::failedCreationIsSilentWhenSuppressed()
{
    m_library.journal()->levelTestAnswer = 1;
    createFailingMonitor();
    QCOMPARE(m_library.journal()->levelTests.size(), 1U);
    QVERIFY(m_library.journal()->messages.empty());
}

void tst_SystemResourceMonitor_Log::successfulCreationAndSamplingAreNotTraced()
{
    {
        FakeSamplers samplers;
        samplers.cpu = -100.0;
        SystemResourceMonitor monitor(samplers.factory());
        QTimerEvent event(1);
        QCoreApplication::sendEvent(&monitor, &event);
    }
    QVERIFY(m_library.journal()->levelTests.empty());
    QVERIFY(m_library.journal()->messages.empty());
}

QTEST_GUILESS_MAIN(tst_SystemResourceMonitor_Log)
#include "tst_SystemResourceMonitor_Log.moc"
