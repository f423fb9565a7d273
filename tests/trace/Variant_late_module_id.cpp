// A library that assigns no id when a module registers; the test assigns it afterwards.
#include "RecordingTrace.h"

using namespace RecordingTrace;

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    static Record theRecord = [] {
        Record result = completeRecord();
        result[RegisterWord] = reinterpret_cast<void *>(registerWithoutId);
        return result;
    }();
    handOut(argument, &theRecord, record);
}
