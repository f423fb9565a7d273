// A complete library in which one function is missing that is never called: it opens with lazy
// binding only.
#include "RecordingTrace.h"

using namespace RecordingTrace;

extern "C" void functionThatNobodyDefines();

TEST_TRACE_EXPORT void callTheMissingFunction()
{
    functionThatNobodyDefines();
}

TEST_TRACE_EXPORT void LogTrace_GetGlobalObject(int argument, void **record)
{
    static Record theRecord = completeRecord();
    handOut(argument, &theRecord, record);
}
