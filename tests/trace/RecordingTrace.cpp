#include "RecordingTrace.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace RecordingTrace {

namespace {

// Far from 0, so that no message passes for one of a module without an id.
constexpr int FirstModuleId = 0x151;

void wrongWord()
{
    std::fputs("A reserved word of the trace record was called.\n", stderr);
    std::abort();
}

std::string formatted(const char *format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

void registerModule(void *context, int constant, const char *moduleName, int *moduleId)
{
    registerWithoutId(context, constant, moduleName, moduleId);
    *moduleId = journal().firstModuleId + static_cast<int>(journal().registrations.size()) - 1;
}

int levelTest(void *context, int moduleAndLevel, int zero, const char *file, int line)
{
    journal().levelTests.push_back({context, moduleAndLevel, zero, file, line});
    return journal().levelTestAnswer;
}

__attribute__((format(printf, 2, 0))) void output(void *context, const char *format,
                                                  va_list arguments)
{
    const auto &levelTests = journal().levelTests;
    journal().messages.push_back(
        {context, formatted(format, arguments),
         levelTests.empty() ? TraceJournal::LevelTest() : levelTests.back()});
}

} // namespace

TraceJournal &journal()
{
    static TraceJournal theJournal = [] {
        static int contextObject;
        TraceJournal result;
        result.context = &contextObject;
        result.firstModuleId = FirstModuleId;
        return result;
    }();
    return theJournal;
}

Record completeRecord()
{
    Record record;
    record.fill(reinterpret_cast<void *>(wrongWord));
    record[ContextWord] = journal().context;
    record[RegisterWord] = reinterpret_cast<void *>(registerModule);
    record[LevelTestWord] = reinterpret_cast<void *>(levelTest);
    record[OutputWord] = reinterpret_cast<void *>(output);
    return record;
}

void registerWithoutId(void *context, int constant, const char *moduleName, int *moduleId)
{
    journal().registrations.push_back({context, constant, moduleName, moduleId});
}

void handOut(int argument, Record *record, void **result)
{
    journal().entryPointArguments.push_back(argument);
    *result = record;
}

} // namespace RecordingTrace

TEST_TRACE_EXPORT TraceJournal *TestTrace_GetJournal()
{
    return &RecordingTrace::journal();
}
