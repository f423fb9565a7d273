// A library whose record has no register function.
#include "RecordingTrace.h"

using namespace RecordingTrace;

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    static Record theRecord = [] {
        Record result = completeRecord();
        result[RegisterWord] = nullptr;
        return result;
    }();
    handOut(argument, &theRecord, record);
}
