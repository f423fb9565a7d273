#include "TestTraceLibrary.h"
#include "TraceModule.h"

#include <QTest>

#include <array>
#include <bit>
#include <string>

namespace {

constexpr int Id = 7;

// A module registered with the library, and the journal of what the library was asked.
struct RegisteredModule
{
    explicit RegisteredModule(const char *name = "Module")
        : record(TraceLog::registerModule(library, name, &id))
        , journal(*observer.journal())
    { }

    TestTraceLibrary observer;
    TraceLog::TraceLibrary library;
    int id = 0;
    TraceLog::TraceRecord *record;
    TraceJournal &journal;
};

__attribute__((format(printf, 2, 3))) void writeMessage(const TraceLog::TraceRecord *record,
                                                        const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    TraceLog::write(record, format, arguments);
    va_end(arguments);
}

// A record of bare words, each of which tells the function at its position from all others.
using Words = std::array<void *, 16>;

int answerZero(void *, int, int, const char *, int)
{
    return 0;
}

void appendFormat(void *context, const char *format, va_list)
{
    static_cast<std::string *>(context)->append(format);
}

} // namespace

// Runs with the complete variant of the trace library.
class tst_TraceModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void libraryIsClosedWhenItsObjectIsDestroyed();
    void libraryStaysOpenWhileAnotherModuleUsesIt();
    void entryPointIsCalledOnceWithZero();
    void recordIsTheOneThatTheLibraryHandsOut();
    void registrationPassesContextConstantNameAndAddress_data();
    void registrationPassesContextConstantNameAndAddress();
    void eachModuleGetsItsOwnId();
    void levelTestGetsTheIdAboveTheLevel_data();
    void levelTestGetsTheIdAboveTheLevel();
    void levelTestGetsContextZeroFileAndLine();
    void idAssignedAfterRegistrationIsHonoured();
    void messageIsSuppressedByAnyAnswerButZero_data();
    void messageIsSuppressedByAnyAnswerButZero();
    void levelTestWritesNothing();
    void outputGetsContextFormatAndArguments();
    void outputAsksNoLevelTest();
    void contextIsTheFourthWord();
    void levelTestIsTheFifteenthWord();
    void outputIsTheSixteenthWord();
    void nullRecordIsSilent();
};

void tst_TraceModule::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QVERIFY2(!TestTraceLibrary::isLoaded(), "A test left the library open.");
}

void tst_TraceModule::libraryIsClosedWhenItsObjectIsDestroyed()
{
    {
        const TraceLog::TraceLibrary library;
        QVERIFY(library.handle());
        QVERIFY(TestTraceLibrary::isLoaded());
    }
    QVERIFY(!TestTraceLibrary::isLoaded());
}

void tst_TraceModule::libraryStaysOpenWhileAnotherModuleUsesIt()
{
    const TraceLog::TraceLibrary first;
    {
        const TraceLog::TraceLibrary second;
        QCOMPARE(second.handle(), first.handle());
    }
    QVERIFY(TestTraceLibrary::isLoaded());
}

void tst_TraceModule::entryPointIsCalledOnceWithZero()
{
    const RegisteredModule module;
    QCOMPARE(module.journal.entryPointArguments, std::vector<int>{0});
}

void tst_TraceModule::recordIsTheOneThatTheLibraryHandsOut()
{
    const RegisteredModule module;
    QVERIFY(module.record);
    QCOMPARE(module.record->context, module.journal.context);
}

void tst_TraceModule::registrationPassesContextConstantNameAndAddress_data()
{
    QTest::addColumn<QByteArray>("moduleName");
    QTest::newRow("name of nineteen letters") << QByteArray("PluginSystemMonitor");
    QTest::newRow("longer name") << QByteArray("SystemResourceMonitor");
    QTest::newRow("empty name") << QByteArray("");
}

void tst_TraceModule::registrationPassesContextConstantNameAndAddress()
{
    QFETCH(const QByteArray, moduleName);
    const RegisteredModule module(moduleName.constData());

    QCOMPARE(module.journal.registrations.size(), 1U);
    const TraceJournal::Registration &registration = module.journal.registrations[0];
    QCOMPARE(registration.context, module.journal.context);
    QCOMPARE(registration.constant, 19);
    QCOMPARE(registration.moduleName, moduleName.toStdString());
    QCOMPARE(registration.moduleId, &module.id);
    QCOMPARE(module.id, module.journal.firstModuleId);
}

void tst_TraceModule::eachModuleGetsItsOwnId()
{
    const RegisteredModule first("First");
    const RegisteredModule second("Second");
    QCOMPARE(first.id, first.journal.firstModuleId);
    QCOMPARE(second.id, first.journal.firstModuleId + 1);
}

void tst_TraceModule::levelTestGetsTheIdAboveTheLevel_data()
{
    QTest::addColumn<int>("moduleId");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("moduleAndLevel");
    QTest::newRow("no id yet") << 0 << int(TraceLog::EntryLevel) << 0x5;
    QTest::newRow("error") << 1 << int(TraceLog::ErrorLevel) << 0x102;
    QTest::newRow("information") << 1 << int(TraceLog::InfoLevel) << 0x103;
    QTest::newRow("entry") << 0x151 << int(TraceLog::EntryLevel) << 0x15105;
}

void tst_TraceModule::levelTestGetsTheIdAboveTheLevel()
{
    QFETCH(const int, moduleId);
    QFETCH(const int, level);
    const RegisteredModule module;
    QVERIFY(TraceLog::isTraced(module.record, moduleId, level, "file", 1));
    QTEST(module.journal.levelTests.at(0).moduleAndLevel, "moduleAndLevel");
}

void tst_TraceModule::levelTestGetsContextZeroFileAndLine()
{
    const RegisteredModule module;
    QVERIFY(
        TraceLog::isTraced(module.record, module.id, TraceLog::EntryLevel, "src/File.cpp", 321));
    QVERIFY(TraceLog::isTraced(module.record, module.id, TraceLog::EntryLevel, "src/File.cpp", 0));

    const auto &levelTests = module.journal.levelTests;
    QCOMPARE(levelTests.size(), 2U);
    QCOMPARE(levelTests[0].context, module.journal.context);
    QCOMPARE(levelTests[0].zero, 0);
    QCOMPARE(levelTests[0].file, std::string("src/File.cpp"));
    QCOMPARE(levelTests[0].line, 321);
    QCOMPARE(levelTests[1].line, 0);
}

void tst_TraceModule::idAssignedAfterRegistrationIsHonoured()
{
    const RegisteredModule module;
    *module.journal.registrations.at(0).moduleId = Id;
    QVERIFY(TraceLog::isTraced(module.record, module.id, TraceLog::ErrorLevel, "file", 1));
    QCOMPARE(module.journal.levelTests.at(0).moduleId(), Id);
}

void tst_TraceModule::messageIsSuppressedByAnyAnswerButZero_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("traced");
    QTest::newRow("zero") << 0 << true;
    QTest::newRow("one") << 1 << false;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("above a byte") << 256 << false;
}

void tst_TraceModule::messageIsSuppressedByAnyAnswerButZero()
{
    QFETCH(const int, answer);
    const RegisteredModule module;
    module.journal.levelTestAnswer = answer;
    QTEST(TraceLog::isTraced(module.record, module.id, TraceLog::ErrorLevel, "file", 1), "traced");
}

void tst_TraceModule::levelTestWritesNothing()
{
    const RegisteredModule module;
    QVERIFY(TraceLog::isTraced(module.record, module.id, TraceLog::ErrorLevel, "file", 1));
    QVERIFY(module.journal.messages.empty());
}

void tst_TraceModule::outputGetsContextFormatAndArguments()
{
    const RegisteredModule module;
    writeMessage(module.record, "%s, %d of %.1f%%", "operation", 3, 4.5);
    writeMessage(module.record, "no argument");

    const auto &messages = module.journal.messages;
    QCOMPARE(messages.size(), 2U);
    QCOMPARE(messages[0].context, module.journal.context);
    QCOMPARE(messages[0].text, std::string("operation, 3 of 4.5%"));
    QCOMPARE(messages[1].text, std::string("no argument"));
}

void tst_TraceModule::outputAsksNoLevelTest()
{
    const RegisteredModule module;
    writeMessage(module.record, "message");
    QVERIFY(module.journal.levelTests.empty());
}

void tst_TraceModule::contextIsTheFourthWord()
{
    int context = 0;
    Words words = {};
    words[3] = &context;
    QCOMPARE(std::bit_cast<TraceLog::TraceRecord>(words).context, &context);
}

void tst_TraceModule::levelTestIsTheFifteenthWord()
{
    int context = 0;
    Words words = {};
    words[3] = &context;
    words[14] = reinterpret_cast<void *>(answerZero);
    const auto record = std::bit_cast<TraceLog::TraceRecord>(words);
    QVERIFY(TraceLog::isTraced(&record, Id, TraceLog::ErrorLevel, "file", 1));
}

void tst_TraceModule::outputIsTheSixteenthWord()
{
    std::string written;
    Words words = {};
    words[3] = &written;
    words[15] = reinterpret_cast<void *>(appendFormat);
    const auto record = std::bit_cast<TraceLog::TraceRecord>(words);
    writeMessage(&record, "%s, Leave", "operation");
    QCOMPARE(written, std::string("%s, Leave"));
}

void tst_TraceModule::nullRecordIsSilent()
{
    QVERIFY(!TraceLog::isTraced(nullptr, Id, TraceLog::ErrorLevel, "file", 1));
    writeMessage(nullptr, "message");
}

QTEST_GUILESS_MAIN(tst_TraceModule)
#include "tst_TraceModule.moc"
