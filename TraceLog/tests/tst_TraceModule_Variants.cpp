#include "TestTraceLibrary.h"
#include "TraceModule.h"

#include <QTest>

#include <map>
#include <string>

namespace {

// What is left of tracing with a given library.
struct Expectation
{
    bool opensLibrary;
    bool recordIsKept;
    int registrations;
    int moduleId; ///< -1 when the module gets none
    bool messageIsTraced;
    int levelTests;
    int messages; ///< when the output function is asked without a level test before
};

constexpr int NoId = -1;
constexpr int FirstId = 0x151;

const std::map<std::string, Expectation> Expectations = {
    {"missing", {false, false, 0, NoId, false, 0, 0}},
    {"no_entry_point", {true, false, 0, NoId, false, 0, 0}},
    {"null_record", {true, false, 0, NoId, false, 0, 0}},
    {"null_context", {true, true, 1, FirstId, false, 0, 0}},
    {"no_register_function", {true, true, 0, NoId, true, 1, 1}},
    {"no_level_test", {true, true, 1, FirstId, false, 0, 1}},
    {"no_output_function", {true, true, 1, FirstId, true, 1, 0}},
    {"suppressing", {true, true, 1, FirstId, false, 1, 1}},
    {"late_module_id", {true, true, 1, NoId, true, 1, 1}},
    {"complete", {true, true, 1, FirstId, true, 1, 1}},
    {"unresolved_function", {true, true, 1, FirstId, true, 1, 1}},
};

__attribute__((format(printf, 2, 3))) void writeMessage(const TraceLog::TraceRecord *record,
                                                        const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    TraceLog::write(record, format, arguments);
    va_end(arguments);
}

} // namespace

// Run once for each variant of the trace library, named by TRACE_LIBRARY_VARIANT.
class tst_TraceModule_Variants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void opensLibraryWhenThereIsOne();
    void recordIsKeptWhenTheLibraryHandsOneOut();
    void moduleIsRegisteredWhenTheRecordCanRegister();
    void registrationPassesTheContextOfTheRecord();
    void messageIsTracedWhenNothingRefusesIt();
    void messageIsWrittenWhenThereIsAnOutput();

private:
    std::size_t count(std::size_t (*ofJournal)(const TraceJournal &)) const
    {
        return m_observer.journal() ? ofJournal(*m_observer.journal()) : 0;
    }

    // Opened before the observer, which would otherwise settle how the library is bound.
    TraceLog::TraceLibrary m_library;
    TestTraceLibrary m_observer;
    TraceLog::TraceRecord *m_record = nullptr;
    int m_moduleId = NoId;
    Expectation m_expected = {};
};

void tst_TraceModule_Variants::initTestCase()
{
    const auto found = Expectations.find(qgetenv("TRACE_LIBRARY_VARIANT").toStdString());
    QVERIFY2(found != Expectations.end(), "TRACE_LIBRARY_VARIANT names no variant.");
    m_expected = found->second;
    m_record = TraceLog::registerModule(m_library, "Module", &m_moduleId);
}

void tst_TraceModule_Variants::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    if (m_observer.journal())
        m_observer.journal()->clear();
}

void tst_TraceModule_Variants::opensLibraryWhenThereIsOne()
{
    QCOMPARE(m_library.handle() != nullptr, m_expected.opensLibrary);
    QCOMPARE(m_observer.journal() != nullptr, m_expected.opensLibrary);
}

void tst_TraceModule_Variants::recordIsKeptWhenTheLibraryHandsOneOut()
{
    QCOMPARE(m_record != nullptr, m_expected.recordIsKept);
}

void tst_TraceModule_Variants::moduleIsRegisteredWhenTheRecordCanRegister()
{
    QCOMPARE(count([](const TraceJournal &journal) { return journal.registrations.size(); }),
             std::size_t(m_expected.registrations));
    QCOMPARE(m_moduleId, m_expected.moduleId);
}

void tst_TraceModule_Variants::registrationPassesTheContextOfTheRecord()
{
    if (m_expected.registrations > 0)
        QCOMPARE(m_observer.journal()->registrations[0].context, m_observer.journal()->context);
}

void tst_TraceModule_Variants::messageIsTracedWhenNothingRefusesIt()
{
    QCOMPARE(TraceLog::isTraced(m_record, m_moduleId, TraceLog::InfoLevel, __FILE__, __LINE__),
             m_expected.messageIsTraced);
    QCOMPARE(count([](const TraceJournal &journal) { return journal.levelTests.size(); }),
             std::size_t(m_expected.levelTests));
    QCOMPARE(count([](const TraceJournal &journal) { return journal.messages.size(); }), 0U);
}

void tst_TraceModule_Variants::messageIsWrittenWhenThereIsAnOutput()
{
    writeMessage(m_record, "%s, Enter", "operation");
    QCOMPARE(count([](const TraceJournal &journal) { return journal.messages.size(); }),
             std::size_t(m_expected.messages));
    QCOMPARE(count([](const TraceJournal &journal) { return journal.levelTests.size(); }), 0U);
}

QTEST_GUILESS_MAIN(tst_TraceModule_Variants)
#include "tst_TraceModule_Variants.moc"
