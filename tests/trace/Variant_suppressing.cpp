// A library that lets no message through.
#include "RecordingTrace.h"

using namespace RecordingTrace;

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    static Record theRecord = completeRecord();
    journal().levelTestAnswer = 1;
    handOut(argument, &theRecord, record);
}
