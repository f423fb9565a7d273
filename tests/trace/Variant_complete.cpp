// A library that has everything and lets every message through.
#include "RecordingTrace.h"

using namespace RecordingTrace;

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    static Record theRecord = completeRecord();
    handOut(argument, &theRecord, record);
}
