// A library whose record has no level test.
#include "RecordingTrace.h"

using namespace RecordingTrace;

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    static Record theRecord = [] {
        Record result = completeRecord();
        result[LevelTestWord] = nullptr;
        return result;
    }();
    handOut(argument, &theRecord, record);
}
